#include "HostServices.h"
#include "LoadedLibrary.h"
#include "RootTable.h"

#include <Row.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QApplication>
#include <QPointer>
#include <QtTest>

/**
 * The root object of the priority plug-in, every operation called by its position. The tests run in the order
 * of a host's calls, over one life of the plug-in.
 */
class RootPositionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void PartsLieOneAfterTheOther();
    void OperationsHaveTheirNames_data();
    void OperationsHaveTheirNames();
    void AnswersNeedNoService();
    void HideMakesTheService();
    void InitSaysSo();
    void ShowWindowLeavesTheRectangleAlone();
    void QueryInterfaceHandsOutTheServiceForItsNumbersOnly_data();
    void QueryInterfaceHandsOutTheServiceForItsNumbersOnly();
    void ChangeLanguageAnswersForTheName();
    void NotifyTranslatesOnTheLanguageEventOnly_data();
    void NotifyTranslatesOnTheLanguageEventOnly();
    void UnregisterEventSaysSo();
    void OnDestroyTakesTheServiceDown();
    void DestructorsDestroyTheWholeObject_data();
    void DestructorsDestroyTheWholeObject();

private:
    void *Root() { return m_library.Root()->qt_metacast(rootIdentifier); }
    void *DestroyPart() { return NextPart(Root()); }
    void *NotifyPart() { return m_library.Root()->qt_metacast(notifyIdentifier); }
    void *Part(int number);
    QObject *Service(int number);

    TemporaryDirectory m_directory;
    LoadedLibrary m_library;

public:
    RootPositionsTest() : m_library("PriorityPlugin") {}
};

/** The root object's parts in their order in memory. */
void *RootPositionsTest::Part(int number)
{
    return number == 0 ? Root() : number == 1 ? DestroyPart() : NotifyPart();
}

QObject *RootPositionsTest::Service(int number)
{
    QObject *service = nullptr;
    const bool known = At<QueryOperation>(Root(), RootTable::queryInterface)(Root(), number, &service);
    return known ? service : nullptr;
}

void RootPositionsTest::initTestCase()
{
    HostServices::Reset(m_directory.Path());
}

void RootPositionsTest::PartsLieOneAfterTheOther()
{
    QObject *root = m_library.Root();
    char *const begin = reinterpret_cast<char *>(root);
    const int word = static_cast<int>(sizeof(void *));
    const int first = static_cast<int>(sizeof(QObject));
    QCOMPARE(static_cast<int>(static_cast<char *>(Root()) - begin), first);
    QCOMPARE(static_cast<int>(static_cast<char *>(NotifyPart()) - begin), first + 2 * word);
    QCOMPARE(root->qt_metacast("com.torvik.netquillforge.plugin.IBasePlugin"), Root());
    QCOMPARE(root->qt_metacast("IUIPlugin"), Root());
    QCOMPARE(root->qt_metacast("INotify"), NotifyPart());
    QCOMPARE(root->qt_metacast("CPriorityPlugin"), static_cast<void *>(root));
    QVERIFY(!root->qt_metacast("com.torvik.netquillforge.plugin.ISettingUIPlugin"));
    QVERIFY(!root->qt_metacast("com.torvik.netquillforge.plugin.IPriorityPlugin"));
    QVERIFY(!root->qt_metacast("com.torvik.netquillforge.plugin.IWLANUIPlugin"));
    QVERIFY(!root->qt_metacast("IDestroyEvent"));
}

void RootPositionsTest::OperationsHaveTheirNames_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<int>("position");
    Row("Release", 0, RootTable::release);
    Row("GetLastError", 0, RootTable::getLastError);
    Row("Init", 0, RootTable::init);
    Row("GetPluginType", 0, RootTable::getPluginType);
    Row("GetCLSID", 0, RootTable::getClassId);
    Row("GetVersion", 0, RootTable::getVersion);
    Row("GetPluginName", 0, RootTable::getPluginName);
    Row("IsAllowRelease", 0, RootTable::isAllowRelease);
    Row("QueryInterface", 0, RootTable::queryInterface);
    Row("ShowWindow", 0, RootTable::showWindow);
    Row("DoModal", 0, RootTable::doModal);
    Row("Hide", 0, RootTable::hide);
    Row("FitSize", 0, RootTable::fitSize);
    Row("IsReady", 0, RootTable::isReady);
    Row("ChangeLang", 0, RootTable::changeLanguage);
    Row("OnDestroy", 1, DestroyTable::onDestroy);
    Row("UnSDKRegisterEvent", 1, DestroyTable::unregisterEvent);
    Row("Notify", 2, NotifyTable::notify);
}

void RootPositionsTest::OperationsHaveTheirNames()
{
    QFETCH(int, part);
    QFETCH(int, position);
    const QStringList names = m_library.NamesAt(Part(part), position);
    if (!m_library.HasNames()) {
        QSKIP("the library was stripped: the names of its operations can't be compared");
    }
    QVERIFY2(names.contains(QString("CPriorityPlugin::") + QTest::currentDataTag()),
             qPrintable(names.join(" ")));
}

void RootPositionsTest::AnswersNeedNoService()
{
    QRect rect(1, 2, 3, 4);
    At<PlainOperation>(Root(), RootTable::release)(Root());
    QCOMPARE(At<NumberOperation>(Root(), RootTable::getLastError)(Root()), 0);
    QCOMPARE(At<NumberOperation>(Root(), RootTable::getPluginType)(Root()), 0);
    QCOMPARE(At<TextOperation>(Root(), RootTable::getClassId)(Root()), QString(""));
    QCOMPARE(At<NumberOperation>(Root(), RootTable::getVersion)(Root()), 0);
    QCOMPARE(At<TextOperation>(Root(), RootTable::getPluginName)(Root()), QString("PriorityPlugin"));
    QVERIFY(!At<AnswerOperation>(Root(), RootTable::isAllowRelease)(Root()));
    QCOMPARE(At<NumberOperation>(Root(), RootTable::doModal)(Root()), 0);
    At<FitOperation>(Root(), RootTable::fitSize)(Root(), rect);
    QCOMPARE(rect, QRect(1, 2, 3, 4));
    QVERIFY(!At<AnswerOperation>(Root(), RootTable::isReady)(Root()));

    QCOMPARE(HostServices::texts, QStringList());
    QCOMPARE(HostServices::userDataQuestions, 0);
    QVERIFY(QApplication::allWidgets().isEmpty());
}

void RootPositionsTest::HideMakesTheService()
{
    At<PlainOperation>(Root(), RootTable::hide)(Root());
    QVERIFY(!HostServices::texts.isEmpty());
    QVERIFY(HostServices::userDataQuestions > 0);
    QVERIFY(!QApplication::allWidgets().isEmpty());
}

void RootPositionsTest::InitSaysSo()
{
    TraceCapture trace;
    QVERIFY(At<AnswerOperation>(Root(), RootTable::init)(Root()));
    QCOMPARE(trace.Lines(), QStringList("../../src/PriorityPlugin/PriorityPlugin.cpp: Init: called"));
}

void RootPositionsTest::ShowWindowLeavesTheRectangleAlone()
{
    TraceCapture trace;
    QWidget parent;
    QRect rect(1, 2, 3, 4);
    QVERIFY(At<ShowOperation>(Root(), RootTable::showWindow)(Root(), &parent, rect));
    QCOMPARE(rect, QRect(1, 2, 3, 4));
    QVERIFY(parent.children().isEmpty());
    QCOMPARE(trace.Lines(), QStringList());
}

void RootPositionsTest::QueryInterfaceHandsOutTheServiceForItsNumbersOnly_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("known");
    Row("settings page", 4098, true);
    Row("priority list", 4103, true);
    Row("WLAN", 4102, false);
    Row("below", 4097, false);
    Row("between", 4099, false);
    Row("above", 4104, false);
    Row("zero", 0, false);
}

void RootPositionsTest::QueryInterfaceHandsOutTheServiceForItsNumbersOnly()
{
    QFETCH(int, number);
    QFETCH(bool, known);
    TraceCapture trace;
    QObject before;
    QObject *object = &before;
    QCOMPARE(At<QueryOperation>(Root(), RootTable::queryInterface)(Root(), number, &object), known);
    QCOMPARE(object != &before, known);
    QCOMPARE(QByteArray(object->metaObject()->className()),
             QByteArray(known ? "CPriorityService" : "QObject"));
    QCOMPARE(trace.Lines().first(),
             QString("../../src/PriorityPlugin/PriorityPlugin.cpp: QueryInterface called"));
}

void RootPositionsTest::ChangeLanguageAnswersForTheName()
{
    HostServices::texts.clear();
    QVERIFY(!At<LanguageOperation>(Root(), RootTable::changeLanguage)(Root(), QString()));
    QVERIFY(At<LanguageOperation>(Root(), RootTable::changeLanguage)(Root(), "ar"));
    QCOMPARE(HostServices::texts, QStringList());
}

void RootPositionsTest::NotifyTranslatesOnTheLanguageEventOnly_data()
{
    QTest::addColumn<uint>("event");
    QTest::addColumn<bool>("translates");
    Row("language", 320U, true);
    Row("before it", 319U, false);
    Row("behind it", 321U, false);
    Row("zero", 0U, false);
}

void RootPositionsTest::NotifyTranslatesOnTheLanguageEventOnly()
{
    QFETCH(uint, event);
    QFETCH(bool, translates);
    QVERIFY(Service(4098));
    HostServices::texts.clear();
    QCOMPARE(At<NotifyOperation>(NotifyPart(), NotifyTable::notify)(NotifyPart(), event, 320, 320), 0);
    QCOMPARE(HostServices::texts.contains("PriorityPlugin/IDS_PROFILE_UP"), translates);
}

void RootPositionsTest::UnregisterEventSaysSo()
{
    TraceCapture trace;
    At<PlainOperation>(DestroyPart(), DestroyTable::unregisterEvent)(DestroyPart());
    const QString source("../../src/PriorityPlugin/PriorityPlugin.cpp");
    QCOMPARE(trace.Lines(),
             QStringList() << source + ": UnSDKRegisterEvent called" << source + ": UnSDKRegisterEvent exit");
}

void RootPositionsTest::OnDestroyTakesTheServiceDown()
{
    const QPointer<QObject> service = Service(4103);
    QVERIFY(service);
    At<PlainOperation>(DestroyPart(), DestroyTable::onDestroy)(DestroyPart());
    QVERIFY(!service);
    QVERIFY(QApplication::allWidgets().isEmpty());
}

void RootPositionsTest::DestructorsDestroyTheWholeObject_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<int>("position");
    Row("deleting, root", 0, deletingDestructor);
    Row("deleting, farewell", 1, deletingDestructor);
    Row("deleting, events", 2, deletingDestructor);
    Row("complete, root", 0, completeDestructor);
    Row("complete, farewell", 1, completeDestructor);
    Row("complete, events", 2, completeDestructor);
}

void RootPositionsTest::DestructorsDestroyTheWholeObject()
{
    QFETCH(int, part);
    QFETCH(int, position);
    void *const storage = m_library.Root();
    const QPointer<QObject> root = m_library.Root();
    At<Destructor>(Part(part), position)(Part(part));
    QVERIFY(!root);
    if (position == completeDestructor) {
        operator delete(storage);
    }
    QVERIFY(m_library.Root());
}

QTEST_MAIN(RootPositionsTest)
#include "tst_rootpositions.moc"
