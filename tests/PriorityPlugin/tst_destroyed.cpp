#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

/** What is left after the host's OnDestroy. */
class tst_Destroyed : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void pageAndServiceAreGone();
    void notifyDoesNothing();
    void queryYieldsAFreshService();
    void showingIsRefusedAndTraced();
    void listCannotBeReadOrChanged();
    void settingOperationsAreHarmless();
    void destroyingAgainIsHarmless();
    void initStillAnswersTrue();

private:
    TemporaryDirectory m_directory;
    LoadedPlugin m_plugin;
    QWidget m_window;
    QPointer<QObject> m_service;
    QPointer<QWidget> m_page;
};

void tst_Destroyed::initTestCase()
{
    StandInHost::Reset(m_directory.Path());
    m_directory.Write("Priority.xml", "<r><item name='A' type='1'/></r>");
    m_plugin.Plugin()->Init();
    m_service = m_plugin.Service();
    QRect rect;
    QVERIFY(m_plugin.Setting()->ShowSettingDialog(&m_window, rect));
    m_page = m_window.findChild<QWidget *>("priorityPage");
    QVERIFY(m_page);
    m_plugin.Plugin()->OnDestroy();
}

void tst_Destroyed::pageAndServiceAreGone()
{
    QVERIFY(!m_page);
    QVERIFY(!m_service);
    QVERIFY(m_window.children().isEmpty());
}

void tst_Destroyed::notifyDoesNothing()
{
    QCOMPARE(m_plugin.Notification()->Notify(320, 0, 0), 0);
}

void tst_Destroyed::queryYieldsAFreshService()
{
    QObject *service = nullptr;
    QVERIFY(m_plugin.Plugin()->QueryInterface(4103, &service));
    QVERIFY(service);
    QCOMPARE(m_plugin.Service(), service);
    QCOMPARE(m_plugin.Notification()->Notify(320, 0, 0), 0);
}

void tst_Destroyed::showingIsRefusedAndTraced()
{
    QRect rect;
    TraceCapture trace;
    ISettingUIPlugin *setting = m_plugin.Setting();
    trace.Clear();
    QVERIFY(!setting->ShowSettingDialog(&m_window, rect));
    QCOMPARE(trace.Normalised(),
             QStringList()
                 << "Arg is NULL: TIME: ../../src/PriorityPlugin/PriorityService.cpp: ShowSettingDialog 142");
    QVERIFY(m_window.children().isEmpty());
}

void tst_Destroyed::listCannotBeReadOrChanged()
{
    const QByteArray before = m_directory.Read("Priority.xml");
    IPriorityPlugin *priority = m_plugin.Priority();
    QSignalSpy spy(m_plugin.Service(), SIGNAL(OnUpdataPriorityView()));
    QList<PriorityList> list;
    QCOMPARE(priority->GetPriorityList(&list), 0);
    QCOMPARE(priority->GetPriorityList(nullptr), 0);
    QVERIFY(list.isEmpty());
    priority->AddTopPriority(Entry("X"));
    list << Entry("Y");
    priority->AddPriorityList(list);
    QCOMPARE(m_directory.Read("Priority.xml"), before);
    QCOMPARE(spy.count(), 0);
}

void tst_Destroyed::settingOperationsAreHarmless()
{
    ISettingUIPlugin *setting = m_plugin.Setting();
    const QByteArray before = m_directory.Read("Priority.xml");
    QVERIFY(setting->OnClickSettingOkButton());
    QVERIFY(setting->OnClickSettingCancelButton());
    QVERIFY(setting->HideSetting());
    QVERIFY(setting->IsActiveSetting());
    QCOMPARE(setting->GetModuleName(), QString("en:IDS_SETTING_NAME"));
    QCOMPARE(m_directory.Read("Priority.xml"), before);
}

void tst_Destroyed::destroyingAgainIsHarmless()
{
    m_plugin.Plugin()->OnDestroy();
    m_plugin.Plugin()->OnDestroy();
    QVERIFY(m_plugin.Service());
    m_plugin.Plugin()->OnDestroy();
}

void tst_Destroyed::initStillAnswersTrue()
{
    QVERIFY(m_plugin.Plugin()->Init());
}

QTEST_MAIN(tst_Destroyed)
#include "tst_destroyed.moc"
