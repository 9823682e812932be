#include "HostServices.h"
#include "LoadedLibrary.h"
#include "RootTable.h"
#include "ServiceTable.h"

#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

/** The priority plug-in's service, every operation called by its position. */
class ServicePositionsTest : public QObject
{
    Q_OBJECT

public:
    ServicePositionsTest() : m_library("PriorityPlugin") {}

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void PartsLieOneAfterTheOther();
    void OperationsHaveTheirNames_data();
    void OperationsHaveTheirNames();

    void ThirdOfTheSettingPageStoresAndHides();
    void FourthHidesAndStoresNothing();
    void FifthShowsThePageAtItsPlace();
    void SixthGivesTheTitle();
    void SeventhTakesThePageOutOfTheWindow();
    void EighthAnswersAndLeavesThePage();

    void ThirdOfThePriorityListGivesTheEntries();
    void ThirdGivesACode_data();
    void ThirdGivesACode();
    void FourthAppendsAndKeepsRepeats();
    void FifthMovesToTheTop();
    void RefreshSignalIsConnectedByName();

private:
    void *Setting() { return m_service->qt_metacast(settingIdentifier); }
    void *Priority() { return m_service->qt_metacast(priorityIdentifier); }
    void Show();
    QWidget *Page() { return m_window->findChild<QWidget *>("priorityPage"); }
    void Store(const QStringList &entries);
    QStringList Stored();

    LoadedLibrary m_library;
    QObject *m_service;
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QWidget> m_window;
};

namespace
{

Entry MakeEntry(const QString &name, const QString &type)
{
    Entry entry;
    entry.name = name;
    entry.type = type;
    return entry;
}

} // namespace

void ServicePositionsTest::initTestCase()
{
    const TemporaryDirectory empty;
    HostServices::Reset(empty.Path());
    void *root = m_library.Root()->qt_metacast(rootIdentifier);
    QVERIFY(At<AnswerOperation>(root, RootTable::init)(root));
    QObject *other = nullptr;
    QVERIFY(At<QueryOperation>(root, RootTable::queryInterface)(root, settingNumber, &m_service));
    QVERIFY(At<QueryOperation>(root, RootTable::queryInterface)(root, priorityNumber, &other));
    QCOMPARE(other, m_service);
}

void ServicePositionsTest::cleanupTestCase()
{
    void *farewell = NextPart(m_library.Root()->qt_metacast(rootIdentifier));
    At<PlainOperation>(farewell, DestroyTable::onDestroy)(farewell);
    delete m_library.Root();
}

void ServicePositionsTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    HostServices::Reset(m_directory->Path());
    m_window.reset(new QWidget);
    m_window->resize(600, 500);
    m_window->show();
}

void ServicePositionsTest::cleanup()
{
    // Not by its position: the tests must not leave the page in a window that goes away, whatever they found.
    if (QWidget *page = Page()) {
        page->setParent(nullptr);
        page->hide();
    }
    m_window.reset();
    m_directory.reset();
}

void ServicePositionsTest::Show()
{
    QRect rect(70, 80, 1, 1);
    QVERIFY(At<ShowPageOperation>(Setting(), SettingTable::show)(Setting(), m_window.data(), rect));
}

/** Entries as "name/type". */
void ServicePositionsTest::Store(const QStringList &entries)
{
    QByteArray items;
    for (int i = 0; i < entries.size(); ++i) {
        items += "<item name='" + entries.at(i).section('/', 0, 0).toUtf8() + "' type='" +
                 entries.at(i).section('/', 1).toUtf8() + "'/>";
    }
    m_directory->Write("Priority.xml", "<zeltdoc><profile>" + items + "</profile></zeltdoc>");
}

/** What stands in the file, item by item. */
QStringList ServicePositionsTest::Stored()
{
    QStringList entries;
    const QStringList items = QString::fromUtf8(m_directory->Read("Priority.xml")).split("<item ");
    for (int i = 1; i < items.size(); ++i) {
        entries << items.at(i).section('"', 1, 1) + '/' + items.at(i).section('"', 3, 3);
    }
    return entries;
}

void ServicePositionsTest::PartsLieOneAfterTheOther()
{
    char *const begin = reinterpret_cast<char *>(m_service);
    const int first = static_cast<int>(sizeof(QObject));
    const int word = static_cast<int>(sizeof(void *));
    QCOMPARE(static_cast<int>(static_cast<char *>(Setting()) - begin), first);
    QCOMPARE(static_cast<int>(static_cast<char *>(Priority()) - begin), first + word);
    QCOMPARE(m_service->qt_metacast("CPriorityService"), static_cast<void *>(m_service));
    QCOMPARE(m_service->qt_metacast("ISettingUIPlugin"), Setting());
    QCOMPARE(m_service->qt_metacast("IPriorityPlugin"), Priority());
    QVERIFY(!m_service->qt_metacast("com.torvik.netquillforge.plugin.IUIPlugin"));
    QVERIFY(!m_service->qt_metacast("com.torvik.netquillforge.plugin.IBasePlugin"));
    QVERIFY(!m_service->qt_metacast("com.torvik.netquillforge.plugin.INotify"));
}

void ServicePositionsTest::OperationsHaveTheirNames_data()
{
    QTest::addColumn<bool>("isSetting");
    QTest::addColumn<int>("position");
    Row("OnClickSettingOkButton", true, SettingTable::okButton);
    Row("OnClickSettingCancelButton", true, SettingTable::cancelButton);
    Row("ShowSettingDialog", true, SettingTable::show);
    Row("GetModuleName", true, SettingTable::moduleName);
    Row("HideSetting", true, SettingTable::hide);
    Row("IsActiveSetting", true, SettingTable::isActive);
    Row("GetPriorityList", false, PriorityTable::getList);
    Row("AddPriorityList", false, PriorityTable::addList);
    Row("AddTopPriority", false, PriorityTable::addTop);
}

void ServicePositionsTest::OperationsHaveTheirNames()
{
    QFETCH(bool, isSetting);
    QFETCH(int, position);
    const QStringList names = m_library.NamesAt(isSetting ? Setting() : Priority(), position);
    if (!m_library.HasNames()) {
        QSKIP("the library was stripped: the names of its operations can't be compared");
    }
    QVERIFY2(names.contains(QString("CPriorityService::") + QTest::currentDataTag()),
             qPrintable(names.join(" ")));
}

void ServicePositionsTest::ThirdOfTheSettingPageStoresAndHides()
{
    Store(QStringList() << "Home/1");
    Show();
    QVERIFY(QFile::remove(m_directory->FilePath("Priority.xml")));
    QVERIFY(At<AnswerOperation>(Setting(), SettingTable::okButton)(Setting()));
    QCOMPARE(Stored(), QStringList("Home/1"));
    QVERIFY(!Page());
}

void ServicePositionsTest::FourthHidesAndStoresNothing()
{
    Store(QStringList() << "Home/1");
    Show();
    QVERIFY(QFile::remove(m_directory->FilePath("Priority.xml")));
    QVERIFY(At<AnswerOperation>(Setting(), SettingTable::cancelButton)(Setting()));
    QVERIFY(!QFile::exists(m_directory->FilePath("Priority.xml")));
    QVERIFY(!Page());
}

void ServicePositionsTest::FifthShowsThePageAtItsPlace()
{
    Store(QStringList() << "Home/1"
                        << "Phone/2");
    Show();
    QVERIFY(Page() && Page()->isVisible());
    QCOMPARE(Page()->geometry(), QRect(70, 80, 420, 374));
    QCOMPARE(Page()->findChild<QTableWidget *>("priorityTable")->rowCount(), 2);
}

void ServicePositionsTest::SixthGivesTheTitle()
{
    HostServices::texts.clear();
    QCOMPARE(At<ModuleNameOperation>(Setting(), SettingTable::moduleName)(Setting()),
             QString("en:IDS_SETTING_NAME"));
    QCOMPARE(HostServices::texts, QStringList("PriorityPlugin/IDS_SETTING_NAME"));
}

void ServicePositionsTest::SeventhTakesThePageOutOfTheWindow()
{
    Show();
    QVERIFY(At<AnswerOperation>(Setting(), SettingTable::hide)(Setting()));
    QVERIFY(!Page());
    QVERIFY(!QFile::exists(m_directory->FilePath("Priority.xml")));
}

void ServicePositionsTest::EighthAnswersAndLeavesThePage()
{
    Show();
    QVERIFY(At<AnswerOperation>(Setting(), SettingTable::isActive)(Setting()));
    QVERIFY(Page() && Page()->isVisible());
}

void ServicePositionsTest::ThirdOfThePriorityListGivesTheEntries()
{
    Store(QStringList() << "Home/1"
                        << "Phone/2");
    QList<Entry> list;
    list.append(MakeEntry("before", "0"));
    QCOMPARE(At<GetListOperation>(Priority(), PriorityTable::getList)(Priority(), &list), 0);
    QCOMPARE(static_cast<int>(list.size()), 3);
    QCOMPARE(list.at(0).name, QString("before"));
    QCOMPARE(list.at(1).name, QString("Home"));
    QCOMPARE(list.at(1).type, QString("1"));
    QCOMPARE(list.at(2).name, QString("Phone"));
    QCOMPARE(list.at(2).type, QString("2"));
}

void ServicePositionsTest::ThirdGivesACode_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isDirectory");
    QTest::addColumn<int>("code");
    Row("read", QByteArray("<zeltdoc/>"), false, 0);
    Row("damaged", QByteArray("<zeltdoc>"), false, 6);
    Row("missing", QByteArray(), false, 23);
    Row("not opened", QByteArray(), true, 25);
}

void ServicePositionsTest::ThirdGivesACode()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, isDirectory);
    QFETCH(int, code);
    if (isDirectory) {
        QVERIFY(QDir(m_directory->Path()).mkdir("Priority.xml"));
    } else if (!file.isNull()) {
        m_directory->Write("Priority.xml", file);
    }
    QList<Entry> list;
    QCOMPARE(At<GetListOperation>(Priority(), PriorityTable::getList)(Priority(), &list), code);
    QVERIFY(list.isEmpty());
    QCOMPARE(At<GetListOperation>(Priority(), PriorityTable::getList)(Priority(), nullptr), 23);
}

void ServicePositionsTest::FourthAppendsAndKeepsRepeats()
{
    Store(QStringList() << "Home/1"
                        << "Phone/2");
    QList<Entry> entries;
    entries << MakeEntry("Office", "1") << MakeEntry("Home", "1");
    At<AddListOperation>(Priority(), PriorityTable::addList)(Priority(), entries);
    QCOMPARE(Stored(), QStringList() << "Home/1"
                                     << "Phone/2"
                                     << "Office/1"
                                     << "Home/1");
    QCOMPARE(static_cast<int>(entries.size()), 2);
    QCOMPARE(entries.first().name, QString("Office"));
}

void ServicePositionsTest::FifthMovesToTheTop()
{
    Store(QStringList() << "Home/1"
                        << "Phone/2"
                        << "Phone/1");
    const Entry entry = MakeEntry("Phone", "2");
    At<AddTopOperation>(Priority(), PriorityTable::addTop)(Priority(), entry);
    QCOMPARE(Stored(), QStringList() << "Phone/2"
                                     << "Home/1"
                                     << "Phone/1");
}

void ServicePositionsTest::RefreshSignalIsConnectedByName()
{
    QSignalSpy spy(m_service, SIGNAL(OnUpdataPriorityView()));
    QVERIFY(spy.isValid());
    QList<Entry> none;
    At<AddListOperation>(Priority(), PriorityTable::addList)(Priority(), none);
    QCOMPARE(spy.count(), 1);
    At<AddTopOperation>(Priority(), PriorityTable::addTop)(Priority(), MakeEntry("", "1"));
    QCOMPARE(spy.count(), 1);
    At<AddTopOperation>(Priority(), PriorityTable::addTop)(Priority(), MakeEntry("Home", "1"));
    QCOMPARE(spy.count(), 2);
}

QTEST_MAIN(ServicePositionsTest)
#include "tst_servicepositions.moc"
