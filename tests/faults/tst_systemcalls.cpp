#include "SystemCalls.h"

#include <FakeWLAN.h>
#include <ListDocument.h>
#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QScopedPointer>
#include <QtTest>

#include <cerrno>

/** The loaded plug-in while one system call after the other fails, and files that change between two of them.
 */
class tst_SystemCalls : public QObject, public SystemCalls::Listener
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void aFailingCallLosesNoMoreThanTheRulesSay_data();
    void aFailingCallLosesNoMoreThanTheRulesSay();
    void aFailingReadIsTold_data();
    void aFailingReadIsTold();
    void fileVanishesBetweenLookAndOpen();
    void fileGrowsBetweenLookAndOpen();
    void fileVanishesBeforeItIsReplaced();
    void fileAppearsBetweenLookAndOpen();
    void directoryVanishesInTheMiddleOfASave();
    void externalEntitiesOpenNothing_data();
    void externalEntitiesOpenNothing();

private:
    enum Event { Nothing, Vanish, Appear, RemoveDirectory };

    void BeforeOpen(const QString &path, bool forWriting) override;
    void Put(const Model::Document &document);
    /** Whether the file is part of document from its beginning on, the whole of it included. */
    bool HoldsBeginningOf(const Model::Document &document) const;
    QStringList Listed(int expectedCode);

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QWidget> m_window;
    LoadedPlugin m_plugin;
    Event m_event;
    bool m_onWriting;
};

static const Model::Entries before = {{u"Home", u"1"}, {u"Caf\u00e9", u"1"}, {u"Mobile", u"2"}};
static const Model::Entries after = {
    {u"New", u"1"}, {u"Home", u"1"}, {u"Caf\u00e9", u"1"}, {u"Mobile", u"2"}};

void tst_SystemCalls::initTestCase()
{
    TemporaryDirectory empty;
    StandInHost::Reset(empty.Path());
    m_plugin.Plugin()->Init();
}

void tst_SystemCalls::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_window.reset(new QWidget);
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    m_event = Nothing;
    m_onWriting = false;
}

void tst_SystemCalls::cleanup()
{
    SystemCalls::Forget();
    m_plugin.Setting()->HideSetting();
    m_window.reset();
    m_directory.reset();
}

void tst_SystemCalls::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

void tst_SystemCalls::BeforeOpen(const QString &path, bool forWriting)
{
    if (forWriting != m_onWriting) {
        return;
    }
    const Event event = m_event;
    m_event = Nothing;
    switch (event) {
    case Vanish:
        QFile::remove(path);
        break;
    case Appear:
        Put(Model::ForeignDocument(before));
        break;
    case RemoveDirectory:
        QVERIFY(QDir().rename(m_directory->Path(), m_directory->Path() + "-away"));
        break;
    case Nothing:
        break;
    }
}

void tst_SystemCalls::Put(const Model::Document &document)
{
    m_directory->Write("Priority.xml", QByteArray(document.bytes.data(), int(document.bytes.size())));
}

bool tst_SystemCalls::HoldsBeginningOf(const Model::Document &document) const
{
    return QByteArray(document.bytes.data(), int(document.bytes.size()))
        .startsWith(m_directory->Read("Priority.xml"));
}

QStringList tst_SystemCalls::Listed(int expectedCode)
{
    QList<PriorityList> list;
    const int code = m_plugin.Priority()->GetPriorityList(&list);
    if (code != expectedCode) {
        QTest::qFail(qPrintable(QString("reading yields %1").arg(code)), __FILE__, __LINE__);
    }
    return AsTexts(list);
}

void tst_SystemCalls::aFailingCallLosesNoMoreThanTheRulesSay_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("error");
    Row("open, no descriptors left", int(SystemCalls::Open), EMFILE);
    Row("open, input or output error", int(SystemCalls::Open), EIO);
    Row("read, input or output error", int(SystemCalls::Read), EIO);
    Row("write, disk full", int(SystemCalls::Write), ENOSPC);
    Row("write, input or output error", int(SystemCalls::Write), EIO);
    Row("write, interrupted", int(SystemCalls::Write), EINTR);
    Row("unlink, not permitted", int(SystemCalls::Unlink), EPERM);
    Row("unlink, device busy", int(SystemCalls::Unlink), EBUSY);
}

void tst_SystemCalls::aFailingCallLosesNoMoreThanTheRulesSay()
{
    QFETCH(int, call);
    QFETCH(int, error);
    const Model::Document old = Model::ProductDocument(before);
    const Model::Document fresh = Model::ProductDocument(after);
    const Model::Document alone = Model::ProductDocument(Model::Entries(1, after.front()));
    int faults = 0;
    for (int number = 1;; ++number) {
        Put(old);
        SystemCalls::Watch(m_directory->Path());
        SystemCalls::MakeFail(SystemCalls::Call(call), number, error);
        m_plugin.Priority()->AddTopPriority(Entry("New"));
        const bool failed = SystemCalls::HasFailed();
        SystemCalls::Forget();
        // Missing, the old list, the new one, or the new entry alone where the old list could not be read.
        const bool missing = !QFile::exists(m_directory->FilePath("Priority.xml"));
        QVERIFY2(missing || HoldsBeginningOf(old) || HoldsBeginningOf(fresh) || HoldsBeginningOf(alone),
                 m_directory->Read("Priority.xml").constData());
        if (call == SystemCalls::Write) {
            QVERIFY2(!missing && m_directory->Read("Priority.xml").size() >= int(old.bytes.size()),
                     "a disk that fails once costs nothing");
        }
        // The next change works again.
        m_plugin.Priority()->AddTopPriority(Entry("Next"));
        QCOMPARE(Listed(0).first(), QString("Next/1"));
        if (!failed) {
            break;
        }
        ++faults;
    }
    QVERIFY2(faults > 0, "the call was made to fail at least once");
}

void tst_SystemCalls::aFailingReadIsTold_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("line");
    Row("open", int(SystemCalls::Open), 25, "Error open file: ");
    Row("read", int(SystemCalls::Read), 6,
        "../../src/PriorityPlugin/PriorityXMLParser.cpp: ReadPriorityItem: Read Error: n");
}

void tst_SystemCalls::aFailingReadIsTold()
{
    QFETCH(int, call);
    QFETCH(int, code);
    QFETCH(QString, line);
    Put(Model::ProductDocument(before));
    TraceCapture trace;
    SystemCalls::Watch(m_directory->Path());
    SystemCalls::MakeFail(SystemCalls::Call(call), 1, EIO);
    QCOMPARE(Listed(code), QStringList());
    QVERIFY(SystemCalls::HasFailed());
    QVERIFY(trace.Lines().contains(line));
}

void tst_SystemCalls::fileVanishesBetweenLookAndOpen()
{
    Put(Model::ProductDocument(before));
    TraceCapture trace;
    SystemCalls::Watch(m_directory->Path(), this);
    m_event = Vanish;
    QCOMPARE(Listed(25), QStringList());
    QVERIFY(trace.Lines().contains("Error open file: "));
    QCOMPARE(Listed(23), QStringList());
}

void tst_SystemCalls::fileGrowsBetweenLookAndOpen()
{
    Put(Model::ProductDocument(Model::Entries(1, before.front())));
    SystemCalls::Watch(m_directory->Path(), this);
    m_event = Appear;
    QCOMPARE(Listed(0), QStringList() << "Home/1" << QString::fromUtf8("Café/1") << "Mobile/2");
}

void tst_SystemCalls::fileVanishesBeforeItIsReplaced()
{
    Put(Model::ProductDocument(before));
    SystemCalls::Watch(m_directory->Path(), this);
    m_event = Vanish;
    m_onWriting = true;
    m_plugin.Priority()->AddTopPriority(Entry("New"));
    QCOMPARE(Listed(0), QStringList() << "New/1"
                                      << "Home/1" << QString::fromUtf8("Café/1") << "Mobile/2");
}

void tst_SystemCalls::fileAppearsBetweenLookAndOpen()
{
    SystemCalls::Watch(m_directory->Path(), this);
    m_event = Appear;
    m_onWriting = true;
    m_plugin.Priority()->AddTopPriority(Entry("New"));
    QCOMPARE(Listed(0), QStringList() << "New/1");
}

void tst_SystemCalls::directoryVanishesInTheMiddleOfASave()
{
    Put(Model::ProductDocument(before));
    TraceCapture trace;
    SystemCalls::Watch(m_directory->Path(), this);
    m_event = RemoveDirectory;
    m_onWriting = true;
    m_plugin.Priority()->AddTopPriority(Entry("New"));
    QVERIFY(trace.Lines().contains("Error open file: "));
    SystemCalls::Forget();
    QVERIFY(QDir().rename(m_directory->Path() + "-away", m_directory->Path()));
    m_plugin.Priority()->AddTopPriority(Entry("Next"));
    QCOMPARE(Listed(0), QStringList() << "Next/1");
}

void tst_SystemCalls::externalEntitiesOpenNothing_data()
{
    QTest::addColumn<QByteArray>("xml");
    const QByteArray item = "<r><item name='A' type='1'/>&x;<item name='&x;' type='1'/></r>";
    Row("file", QByteArray("<!DOCTYPE r [<!ENTITY x SYSTEM 'file:///etc/hostname'>]>" + item));
    Row("path", QByteArray("<!DOCTYPE r [<!ENTITY x SYSTEM '/etc/hostname'>]>" + item));
    Row("network", QByteArray("<!DOCTYPE r [<!ENTITY x SYSTEM 'http://localhost:9/x'>]>" + item));
    Row("public", QByteArray("<!DOCTYPE r [<!ENTITY x PUBLIC 'p' 'http://localhost:9/x'>]>" + item));
    Row("type definition", QByteArray("<!DOCTYPE r SYSTEM 'http://localhost:9/r.dtd'>" + item));
    Row("parameter entity",
        QByteArray("<!DOCTYPE r [<!ENTITY % p SYSTEM 'file:///etc/hostname'> %p;]>" + item));
}

void tst_SystemCalls::externalEntitiesOpenNothing()
{
    QFETCH(QByteArray, xml);
    m_directory->Write("Priority.xml", xml);
    QDir().mkpath(m_directory->FilePath("plugins/PriorityPlugin"));
    m_directory->Write("plugins/PriorityPlugin/config.xml", xml);
    StandInHost::libraryPath = m_directory->Path();
    FakeWLAN wlan;
    FakeContainer container;
    container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &wlan);
    StandInHost::container = &container;

    SystemCalls::Watch(m_directory->Path());
    QList<PriorityList> list;
    m_plugin.Priority()->GetPriorityList(&list);
    QTest::mouseClick(m_window->findChild<QPushButton *>("addButton"), Qt::LeftButton);
    const QStringList opened = SystemCalls::Opened();
    SystemCalls::Forget();
    QVERIFY(opened.contains(m_directory->FilePath("Priority.xml")));
    QVERIFY(opened.contains(m_directory->FilePath("plugins/PriorityPlugin/config.xml")));
    for (int i = 0; i < opened.size(); ++i) {
        QVERIFY2(opened.at(i).startsWith(m_directory->Path()), qPrintable(opened.at(i)));
    }
    for (int i = 0; i < list.size(); ++i) {
        // A reference to what was not read stays a reference.
        QVERIFY2(list.at(i).name == "A" || list.at(i).name == "&x;", qPrintable(list.at(i).name));
    }
    delete m_window->findChild<QDialog *>("addDialog");
}

QTEST_MAIN(tst_SystemCalls)
#include "tst_systemcalls.moc"
