#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

class tst_RootObject : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void notifyBeforeAnyQueryChangesNothing();
    void instanceIsTheSameUntilDeleted();
    void metaObject();
    void casts();
    void castsAreToTheSameParts();
    void fixedAnswers();
    void initIsTracedAndTrue();
    void queryInterface();
    void unknownInterfaceNumbers_data();
    void unknownInterfaceNumbers();
    void changeLangAnswersOnly();
    void unregisteringIsTraced();
    void languageChangeEventTranslatesThePage();
    void otherEventsDoNothing_data();
    void otherEventsDoNothing();

private:
    TemporaryDirectory m_directory;
    LoadedPlugin m_plugin;
    QWidget m_window;
};

static const char rootSource[] = "../../src/PriorityPlugin/PriorityPlugin.cpp";

void tst_RootObject::initTestCase()
{
    StandInHost::Reset(m_directory.Path());
}

void tst_RootObject::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
    delete m_plugin.Root();
}

static QString UpText(const QWidget &window)
{
    const QPushButton *button = window.findChild<QPushButton *>("upButton");
    return button ? button->text() : QString();
}

void tst_RootObject::notifyBeforeAnyQueryChangesNothing()
{
    QVERIFY(m_plugin.Plugin()->Init());
    StandInHost::language = "he";
    QCOMPARE(m_plugin.Notification()->Notify(320, 0, 0), 0);
    StandInHost::language = "en";
    QVERIFY(m_plugin.Setting());
    // The page exists since Init; had the event reached it, its texts would be the other language's until it
    // is shown.
    QPushButton *up = nullptr;
    const QWidgetList widgets = QApplication::allWidgets();
    for (int i = 0; i < widgets.size(); ++i) {
        if (widgets.at(i)->objectName() == "upButton") {
            up = qobject_cast<QPushButton *>(widgets.at(i));
        }
    }
    QVERIFY(up);
    QCOMPARE(up->text(), QString("en:IDS_PROFILE_UP"));
}

void tst_RootObject::instanceIsTheSameUntilDeleted()
{
    QPointer<QObject> first = m_plugin.Root();
    QCOMPARE(m_plugin.Root(), first.data());
    QVERIFY(!first->parent());
    delete first.data();
    QVERIFY(!first);
    QVERIFY(m_plugin.Root());
    QVERIFY(m_plugin.Plugin()->Init());
}

void tst_RootObject::metaObject()
{
    const QMetaObject *meta = m_plugin.Root()->metaObject();
    QCOMPARE(QString(meta->className()), QString("CPriorityPlugin"));
    QCOMPARE(meta->superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_RootObject::casts()
{
    QObject *root = m_plugin.Root();
    QVERIFY(root->qt_metacast("CPriorityPlugin") == root);
    QVERIFY(root->qt_metacast("IUIPlugin"));
    QVERIFY(root->qt_metacast("INotify"));
    QVERIFY(root->qt_metacast("com.torvik.netquillforge.plugin.IBasePlugin"));
    QVERIFY(root->qt_metacast("com.torvik.netquillforge.plugin.IUIPlugin"));
    QVERIFY(root->qt_metacast("com.torvik.netquillforge.plugin.INotify"));
    QVERIFY(!root->qt_metacast("IDestroyEvent"));
    QVERIFY(!root->qt_metacast("IBasePlugin"));
    QVERIFY(!root->qt_metacast("com.torvik.netquillforge.plugin.IDestroyEvent"));
    QVERIFY(!root->qt_metacast("com.torvik.netquillforge.plugin.ISettingUIPlugin"));
    QVERIFY(root->qt_metacast("QObject") == root);
    QVERIFY(!root->qt_metacast(nullptr));
}

void tst_RootObject::castsAreToTheSameParts()
{
    QObject *root = m_plugin.Root();
    void *part = root->qt_metacast("IUIPlugin");
    QCOMPARE(root->qt_metacast("com.torvik.netquillforge.plugin.IBasePlugin"), part);
    QCOMPARE(root->qt_metacast("com.torvik.netquillforge.plugin.IUIPlugin"), part);
    QCOMPARE(root->qt_metacast("com.torvik.netquillforge.plugin.INotify"), root->qt_metacast("INotify"));
    QVERIFY(root->qt_metacast("INotify") != part);
}

void tst_RootObject::fixedAnswers()
{
    IUIPlugin *plugin = m_plugin.Plugin();
    QRect rect(1, 2, 3, 4);
    QCOMPARE(plugin->GetPluginType(), 0);
    QCOMPARE(plugin->GetCLSID(), QString(""));
    QCOMPARE(plugin->GetVersion(), 0);
    QCOMPARE(plugin->GetPluginName(), QString("PriorityPlugin"));
    QVERIFY(!plugin->IsAllowRelease());
    QCOMPARE(plugin->GetLastError(), 0);
    QVERIFY(plugin->ShowWindow(nullptr, rect));
    QCOMPARE(plugin->DoModal(), 0);
    QVERIFY(!plugin->IsReady());
    plugin->Hide();
    plugin->FitSize(rect);
    plugin->Release();
    QCOMPARE(rect, QRect(1, 2, 3, 4));
}

void tst_RootObject::initIsTracedAndTrue()
{
    TraceCapture trace;
    QVERIFY(m_plugin.Plugin()->Init());
    QCOMPARE(trace.Lines().first(), QString("%1: Init: called").arg(rootSource));
}

void tst_RootObject::queryInterface()
{
    QObject *setting = nullptr;
    QObject *priority = nullptr;
    TraceCapture trace;
    QVERIFY(m_plugin.Plugin()->QueryInterface(4098, &setting));
    QCOMPARE(trace.Lines(), QStringList() << QString("%1: QueryInterface called").arg(rootSource));
    QVERIFY(m_plugin.Plugin()->QueryInterface(4103, &priority));
    QVERIFY(setting);
    QCOMPARE(setting, priority);
    QCOMPARE(QString(setting->metaObject()->className()), QString("CPriorityService"));
}

void tst_RootObject::unknownInterfaceNumbers_data()
{
    QTest::addColumn<int>("number");
    Row("WLAN", 4102);
    Row("0", 0);
    Row("-1", -1);
    Row("between", 4099);
    Row("below", 4097);
    Row("above", 4104);
}

void tst_RootObject::unknownInterfaceNumbers()
{
    QFETCH(int, number);
    QObject marker;
    QObject *object = &marker;
    TraceCapture trace;
    QVERIFY(!m_plugin.Plugin()->QueryInterface(number, &object));
    QCOMPARE(object, &marker);
    QCOMPARE(trace.Lines(), QStringList() << QString("%1: QueryInterface called").arg(rootSource));
}

void tst_RootObject::changeLangAnswersOnly()
{
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(&m_window, rect);
    StandInHost::language = "he";
    QVERIFY(!m_plugin.Plugin()->ChangeLang(""));
    QVERIFY(!m_plugin.Plugin()->ChangeLang(QString()));
    QVERIFY(m_plugin.Plugin()->ChangeLang("he"));
    QVERIFY(m_plugin.Plugin()->ChangeLang("no such language"));
    QCOMPARE(UpText(m_window), QString("en:IDS_PROFILE_UP"));
    StandInHost::language = "en";
    m_plugin.Setting()->HideSetting();
}

void tst_RootObject::unregisteringIsTraced()
{
    TraceCapture trace;
    m_plugin.Plugin()->UnSDKRegisterEvent();
    QCOMPARE(trace.Lines(), QStringList() << QString("%1: UnSDKRegisterEvent called").arg(rootSource)
                                          << QString("%1: UnSDKRegisterEvent exit").arg(rootSource));
}

void tst_RootObject::languageChangeEventTranslatesThePage()
{
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(&m_window, rect);
    QCOMPARE(UpText(m_window), QString("en:IDS_PROFILE_UP"));
    StandInHost::language = "he";
    QCOMPARE(m_plugin.Notification()->Notify(320, 17, 18), 0);
    QCOMPARE(UpText(m_window), QString("he:IDS_PROFILE_UP"));
    QCOMPARE(m_window.findChild<QLabel *>("nameLabel")->text(), QString("he:IDS_SETTING_NAME:"));
    StandInHost::language = "en";
    m_plugin.Setting()->HideSetting();
}

void tst_RootObject::otherEventsDoNothing_data()
{
    QTest::addColumn<uint>("event");
    Row("0", 0u);
    Row("319", 319u);
    Row("321", 321u);
    Row("largest", 0xffffffffu);
}

void tst_RootObject::otherEventsDoNothing()
{
    QFETCH(uint, event);
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(&m_window, rect);
    StandInHost::language = "he";
    QCOMPARE(m_plugin.Notification()->Notify(event, 320, 320), 0);
    QCOMPARE(UpText(m_window), QString("en:IDS_PROFILE_UP"));
    StandInHost::language = "en";
    m_plugin.Setting()->HideSetting();
}

QTEST_MAIN(tst_RootObject)
#include "tst_rootobject.moc"
