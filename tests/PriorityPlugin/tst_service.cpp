#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QFile>
#include <QMetaMethod>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

class tst_Service : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void cleanupTestCase();

    void metaObject();
    void casts();
    void names();
    void getPriorityListAppends();
    void getPriorityListCodes();
    void addPriorityListKeepsDuplicates();
    void addPriorityListOfNothingRewritesAndSignals();
    void addPriorityListCreatesTheFile();
    void addPriorityListAfterAReadError();
    void addTopMovesAnEqualEntry();
    void addTopOfANewEntry();
    void addTopWithoutANameIsIgnored();
    void changesReachAnOpenPageBeforeTheyReturn();
    void okSavesThePagesList();
    void cancelWritesNothing();
    void hidingTakesThePageOut();
    void thePageIsAlwaysOffered();
    void showingWithoutAParentIsStillTrue();

private:
    void Store(const QString &names);
    QString Stored();

    QScopedPointer<TemporaryDirectory> m_directory;
    LoadedPlugin m_plugin;
};

void tst_Service::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_plugin.Plugin()->Init();
}

void tst_Service::cleanup()
{
    m_plugin.Setting()->HideSetting();
    m_directory.reset();
}

void tst_Service::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

void tst_Service::Store(const QString &names)
{
    QByteArray xml = "<r>";
    for (int i = 0; i < names.size(); ++i) {
        xml += "<item name='" + names.mid(i, 1).toUtf8() + "' type='1'/>";
    }
    m_directory->Write("Priority.xml", xml + "</r>");
}

QString tst_Service::Stored()
{
    QList<PriorityList> list;
    m_plugin.Priority()->GetPriorityList(&list);
    QString names;
    for (int i = 0; i < list.size(); ++i) {
        names += list.at(i).name;
    }
    return names;
}

void tst_Service::metaObject()
{
    const QMetaObject *meta = m_plugin.Service()->metaObject();
    QCOMPARE(QString(meta->className()), QString("CPriorityService"));
    QCOMPARE(meta->methodCount(), QObject::staticMetaObject.methodCount() + 1);
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta->indexOfSignal("OnUpdataPriorityView()"), QObject::staticMetaObject.methodCount());
}

void tst_Service::casts()
{
    QObject *service = m_plugin.Service();
    QVERIFY(service->qt_metacast("CPriorityService") == service);
    QVERIFY(service->qt_metacast("ISettingUIPlugin"));
    QCOMPARE(service->qt_metacast("com.torvik.netquillforge.plugin.ISettingUIPlugin"),
             service->qt_metacast("ISettingUIPlugin"));
    QVERIFY(service->qt_metacast("IPriorityPlugin"));
    QCOMPARE(service->qt_metacast("com.torvik.netquillforge.plugin.IPriorityPlugin"),
             service->qt_metacast("IPriorityPlugin"));
    QVERIFY(!service->qt_metacast("com.torvik.netquillforge.plugin.IUIPlugin"));
    QVERIFY(!service->parent());
}

void tst_Service::names()
{
    QCOMPARE(m_plugin.Setting()->GetModuleName(), QString("en:IDS_SETTING_NAME"));
    StandInHost::language = "ar";
    QCOMPARE(m_plugin.Setting()->GetModuleName(), QString("ar:IDS_SETTING_NAME"));
}

void tst_Service::getPriorityListAppends()
{
    Store("AB");
    QList<PriorityList> list;
    list << Entry("first");
    QCOMPARE(m_plugin.Priority()->GetPriorityList(&list), 0);
    QCOMPARE(AsTexts(list), QStringList() << "first/1"
                                          << "A/1"
                                          << "B/1");
}

void tst_Service::getPriorityListCodes()
{
    QList<PriorityList> list;
    QCOMPARE(m_plugin.Priority()->GetPriorityList(&list), 23);
    QCOMPARE(m_plugin.Priority()->GetPriorityList(nullptr), 23);
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/>");
    QCOMPARE(m_plugin.Priority()->GetPriorityList(&list), 6);
    QCOMPARE(AsTexts(list), QStringList() << "A/1");
    StandInHost::userDataDirectory = m_directory->FilePath("");
    QVERIFY(QFile::remove(m_directory->FilePath("Priority.xml")));
    QVERIFY(QDir().mkdir(m_directory->FilePath("Priority.xml")));
    QCOMPARE(m_plugin.Priority()->GetPriorityList(&list), 25);
}

void tst_Service::addPriorityListKeepsDuplicates()
{
    Store("ABC");
    QSignalSpy spy(m_plugin.Service(), SIGNAL(OnUpdataPriorityView()));
    QList<PriorityList> entries;
    entries << Entry("B") << Entry("X");
    m_plugin.Priority()->AddPriorityList(entries);
    QCOMPARE(Stored(), QString("ABCBX"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(AsTexts(entries), QStringList() << "B/1"
                                             << "X/1");
}

void tst_Service::addPriorityListOfNothingRewritesAndSignals()
{
    Store("AB");
    QSignalSpy spy(m_plugin.Service(), SIGNAL(OnUpdataPriorityView()));
    QList<PriorityList> entries;
    m_plugin.Priority()->AddPriorityList(entries);
    QVERIFY(m_directory->Read("Priority.xml").startsWith("<?xml"));
    QCOMPARE(Stored(), QString("AB"));
    QCOMPARE(spy.count(), 1);
}

void tst_Service::addPriorityListCreatesTheFile()
{
    QList<PriorityList> entries;
    entries << Entry("X");
    m_plugin.Priority()->AddPriorityList(entries);
    QCOMPARE(Stored(), QString("X"));
}

void tst_Service::addPriorityListAfterAReadError()
{
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/>");
    QList<PriorityList> entries;
    entries << Entry("X");
    m_plugin.Priority()->AddPriorityList(entries);
    QCOMPARE(Stored(), QString("AX"));
}

void tst_Service::addTopMovesAnEqualEntry()
{
    Store("ABCDE");
    QSignalSpy spy(m_plugin.Service(), SIGNAL(OnUpdataPriorityView()));
    m_plugin.Priority()->AddTopPriority(Entry("D"));
    QCOMPARE(Stored(), QString("DABCE"));
    QCOMPARE(spy.count(), 1);
}

void tst_Service::addTopOfANewEntry()
{
    Store("AB");
    m_plugin.Priority()->AddTopPriority(Entry("A", "2"));
    QList<PriorityList> list;
    m_plugin.Priority()->GetPriorityList(&list);
    QCOMPARE(AsTexts(list), QStringList() << "A/2"
                                          << "A/1"
                                          << "B/1");
}

void tst_Service::addTopWithoutANameIsIgnored()
{
    Store("AB");
    const QByteArray before = m_directory->Read("Priority.xml");
    QSignalSpy spy(m_plugin.Service(), SIGNAL(OnUpdataPriorityView()));
    m_plugin.Priority()->AddTopPriority(Entry(""));
    m_plugin.Priority()->AddTopPriority(Entry(QString(), "2"));
    QCOMPARE(m_directory->Read("Priority.xml"), before);
    QCOMPARE(spy.count(), 0);
}

void tst_Service::changesReachAnOpenPageBeforeTheyReturn()
{
    Store("AB");
    QWidget window;
    QRect rect;
    QVERIFY(m_plugin.Setting()->ShowSettingDialog(&window, rect));
    QTableWidget *table = window.findChild<QTableWidget *>("priorityTable");
    QCOMPARE(table->rowCount(), 2);
    m_plugin.Priority()->AddTopPriority(Entry("X"));
    QCOMPARE(table->rowCount(), 3);
    QCOMPARE(table->cellWidget(0, 0)->accessibleName(), QString("X"));
    QList<PriorityList> entries;
    entries << Entry("Y");
    m_plugin.Priority()->AddPriorityList(entries);
    QCOMPARE(table->rowCount(), 4);
    QCOMPARE(table->cellWidget(3, 0)->accessibleName(), QString("Y"));
    m_plugin.Setting()->HideSetting();
}

void tst_Service::okSavesThePagesList()
{
    Store("AB");
    QWidget window;
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(&window, rect);
    Store("CCC");
    QVERIFY(m_plugin.Setting()->OnClickSettingOkButton());
    QCOMPARE(Stored(), QString("AB"));
    QVERIFY(!window.findChild<QWidget *>("priorityPage"));
}

void tst_Service::cancelWritesNothing()
{
    Store("AB");
    QWidget window;
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(&window, rect);
    Store("CCC");
    const QByteArray before = m_directory->Read("Priority.xml");
    QVERIFY(m_plugin.Setting()->OnClickSettingCancelButton());
    QCOMPARE(m_directory->Read("Priority.xml"), before);
    QVERIFY(!window.findChild<QWidget *>("priorityPage"));
}

void tst_Service::hidingTakesThePageOut()
{
    QWidget window;
    QRect rect;
    window.show();
    m_plugin.Setting()->ShowSettingDialog(&window, rect);
    QWidget *page = window.findChild<QWidget *>("priorityPage");
    QVERIFY(page && page->isVisible());
    QVERIFY(m_plugin.Setting()->HideSetting());
    QVERIFY(!page->parent());
    QVERIFY(!page->isVisible());
    QVERIFY(m_plugin.Setting()->HideSetting());
}

void tst_Service::thePageIsAlwaysOffered()
{
    QVERIFY(m_plugin.Setting()->IsActiveSetting());
}

void tst_Service::showingWithoutAParentIsStillTrue()
{
    Store("AB");
    ISettingUIPlugin *setting = m_plugin.Setting();
    TraceCapture trace;
    QRect rect;
    QVERIFY(setting->ShowSettingDialog(nullptr, rect));
    QCOMPARE(
        trace.Normalised(),
        QStringList() << "TIME: ../../src/PriorityPlugin/qprioritywidget.cpp: ShowSettingDialog: Entered "
                      << "TIME: ../../src/PriorityPlugin/qprioritywidget.cpp: ShowSettingDialog: Exit");
}

QTEST_MAIN(tst_Service)
#include "tst_service.moc"
