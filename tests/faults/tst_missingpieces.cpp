#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QScopedPointer>
#include <QTableWidget>
#include <QValidator>
#include <QtTest>

/** The loaded plug-in in a host that lacks something, or that deletes what it should leave alone. */
class tst_MissingPieces : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void partDeletedByTheHost_data();
    void partDeletedByTheHost();
    void sdkKnowsNoDirectory_data();
    void sdkKnowsNoDirectory();
    void iconsMissing();
    void readOnlyIsAskedOfNobody_data();
    void readOnlyIsAskedOfNobody();

private:
    enum Place { Page, AddDialog, NewDialog };

    void Open(Place place);
    QWidget *PageWidget() { return m_window->findChild<QWidget *>("priorityPage"); }
    QList<QObject *> Parts(Place place);
    void Run(const char *object, const char *slot);
    void UseEverything(Place place);
    QStringList Rows();

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QWidget> m_window;
    LoadedPlugin m_plugin;
    FakeWLAN m_wlan;
    FakeContainer m_container;
};

static QPair<QString, int> WLANKey()
{
    return qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102);
}

void tst_MissingPieces::initTestCase()
{
    TemporaryDirectory empty;
    StandInHost::Reset(empty.Path());
    m_plugin.Plugin()->Init();
    m_wlan.Remember("D", "1");
    m_wlan.config.authenticationList << "WPA2PSK"
                                     << "open";
}

void tst_MissingPieces::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_container.objects.clear();
    m_container.objects.insert(WLANKey(), &m_wlan);
    StandInHost::container = &m_container;
    m_directory->Write("Priority.xml",
                       "<r><item name='A' type='1'/><item name='B' type='1'/><item name='C' type='2'/></r>");
    m_window.reset(new QWidget);
    m_window->show();
}

void tst_MissingPieces::cleanup()
{
    StandInHost::container = nullptr;
    // With the page in it: the next one is whole.
    m_window.reset();
    m_directory.reset();
}

void tst_MissingPieces::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

void tst_MissingPieces::Open(Place place)
{
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    if (place != Page) {
        Run("priorityPage", place == AddDialog ? "AddPriority" : "NewPriority");
    }
}

/** What the plug-in made itself: its named widgets, the layouts and the validator. */
QList<QObject *> tst_MissingPieces::Parts(Place place)
{
    static const char *const roots[] = {"priorityPage", "addDialog", "newDialog"};
    const QList<QObject *> children = m_window->findChild<QWidget *>(roots[place])->findChildren<QObject *>();
    QList<QObject *> parts;
    for (int i = 0; i < children.size(); ++i) {
        QObject *child = children.at(i);
        const QString name = child->objectName();
        const bool isOurs = child->isWidgetType() && !name.isEmpty() && !name.startsWith("qt_");
        if (isOurs || qobject_cast<QLayout *>(child) || qobject_cast<QValidator *>(child)) {
            parts << child;
        }
    }
    return parts;
}

void tst_MissingPieces::Run(const char *object, const char *slot)
{
    QObject *target = m_window->findChild<QObject *>(object);
    if (target) {
        QVERIFY(QMetaObject::invokeMethod(target, slot));
    }
}

void tst_MissingPieces::UseEverything(Place place)
{
    QCoreApplication::processEvents();
    if (place == NewDialog && m_window->findChild<QComboBox *>("networkNameBox")) {
        m_window->findChild<QComboBox *>("networkNameBox")->setEditText("New");
    }
    if (place == NewDialog && m_window->findChild<QComboBox *>("authenticationBox")) {
        QComboBox *box = m_window->findChild<QComboBox *>("authenticationBox");
        box->setCurrentIndex(box->findText("open"));
    }
    QMetaObject::invokeMethod(m_plugin.Service(), "OnUpdataPriorityView");
    m_plugin.Notification()->Notify(320, 0, 0);
    if (place == NewDialog) {
        Run("newDialogBody", "OnOK");
        Run("newDialogBody", "OnCancel");
    } else if (place == AddDialog) {
        Run("addDialogBody", "OnOK");
        Run("addDialogBody", "OnCanel");
    }
    QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
    if (table && table->rowCount() > 1) {
        QMetaObject::invokeMethod(PageWidget(), "OnCellClicked", Q_ARG(int, 1), Q_ARG(int, 0));
        QTest::keyClick(table, Qt::Key_Up);
    }
    static const char *const slotNames[] = {"UpPriority",        "DownPriority", "RemovePriority",
                                            "AddPriority",       "NewPriority",  "RemovePriority",
                                            "UpdataPriorityList"};
    for (const char *slot : slotNames) {
        Run("priorityPage", slot);
        QCoreApplication::processEvents();
    }
    QList<PriorityList> list;
    list << Entry("E");
    m_plugin.Priority()->AddPriorityList(list);
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    m_plugin.Setting()->OnClickSettingOkButton();
    m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
    QCoreApplication::processEvents();
}

QStringList tst_MissingPieces::Rows()
{
    const QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row) {
        names << table->cellWidget(row, 0)->accessibleName();
    }
    return names;
}

void tst_MissingPieces::partDeletedByTheHost_data()
{
    QTest::addColumn<int>("place");
    Row("page", int(Page));
    Row("add dialog", int(AddDialog));
    Row("new-network dialog", int(NewDialog));
}

void tst_MissingPieces::partDeletedByTheHost()
{
    QFETCH(int, place);
    const TraceCapture silence;
    Open(Place(place));
    const int count = Parts(Place(place)).size();
    QVERIFY(count > 8);
    for (int i = 0; i < count; ++i) {
        cleanup();
        init();
        Open(Place(place));
        QObject *part = Parts(Place(place)).at(i);
        qDebug("without %s \"%s\"", part->metaObject()->className(), qPrintable(part->objectName()));
        delete part;
        UseEverything(Place(place));
        // Whatever was missing, the list is there.
        QList<PriorityList> list;
        QCOMPARE(m_plugin.Priority()->GetPriorityList(&list), 0);
        QVERIFY(!list.isEmpty());
        QCOMPARE(list.last().name, QString("E"));
    }
}

void tst_MissingPieces::sdkKnowsNoDirectory_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("allocated");
    Row("fails", 5, false);
    Row("fails and gives a path", -1, true);
    Row("succeeds and gives null", 0, false);
}

void tst_MissingPieces::sdkKnowsNoDirectory()
{
    QFETCH(int, status);
    QFETCH(bool, allocated);
    const TraceCapture silence;
    const QString before = QDir::currentPath();
    const QByteArray untouched = m_directory->Read("Priority.xml");
    const TemporaryDirectory current;
    QVERIFY(QDir::setCurrent(current.Path()));
    StandInHost::userDataStatus = status;
    StandInHost::userDataAllocated = allocated;
    Open(Page);
    QCOMPARE(Rows(), QStringList());
    UseEverything(Page);
    QCOMPARE(Rows(), QStringList("E"));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(current.Read("Priority.xml").contains("name=\"E\""));
    QCOMPARE(m_directory->Read("Priority.xml"), untouched);
}

void tst_MissingPieces::iconsMissing()
{
    const TraceCapture silence;
    StandInHost::libraryPath = m_directory->FilePath("nowhere");
    // Icons are looked for where the page was made.
    m_window.reset();
    m_window.reset(new QWidget);
    Open(AddDialog);
    QCOMPARE(Rows(), QStringList() << "A"
                                   << "B"
                                   << "C");
    const QList<QLabel *> icons = m_window->findChildren<QLabel *>("rowIcon");
    QCOMPARE(icons.size(), 4);
    for (int i = 0; i < icons.size(); ++i) {
        QVERIFY(Picture(icons.at(i)).isNull());
    }
    UseEverything(AddDialog);
}

void tst_MissingPieces::readOnlyIsAskedOfNobody_data()
{
    QTest::addColumn<int>("step");
    Row("no container", 0);
    Row("nothing under the class id", 1);
    Row("an object of another kind", 2);
}

void tst_MissingPieces::readOnlyIsAskedOfNobody()
{
    QFETCH(int, step);
    m_wlan.AddReadOnly("A", "true");
    Open(Page);
    const QWidget *button = m_window->findChild<QWidget *>("deleteButton");
    QMetaObject::invokeMethod(PageWidget(), "OnCellClicked", Q_ARG(int, 0), Q_ARG(int, 0));
    QVERIFY(!button->isEnabled());
    m_container.objects.clear();
    if (step == 0) {
        StandInHost::container = nullptr;
    } else if (step == 2) {
        m_container.objects.insert(WLANKey(), qApp);
    }
    QMetaObject::invokeMethod(PageWidget(), "OnCellClicked", Q_ARG(int, 0), Q_ARG(int, 0));
    QVERIFY(button->isEnabled());
    m_wlan.profiles.clear();
}

QTEST_MAIN(tst_MissingPieces)
#include "tst_missingpieces.moc"
