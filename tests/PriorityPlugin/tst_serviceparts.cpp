#include <PriorityService.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QtTest>

/** The service's operations that no interface leads to, called directly. */
class tst_ServiceParts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void thereIsOneService();
    void classIdIsTheServices();
    void nameIsTranslated();
    void fixedAnswers();
    void changeLangAnswersForTheName();

private:
    TemporaryDirectory m_directory;
    CPriorityService *m_service;
};

void tst_ServiceParts::initTestCase()
{
    StandInHost::Reset(m_directory.Path());
    m_service = CPriorityService::instance();
}

void tst_ServiceParts::cleanupTestCase()
{
    CPriorityService::Destroy();
}

void tst_ServiceParts::thereIsOneService()
{
    QCOMPARE(CPriorityService::instance(), m_service);
}

void tst_ServiceParts::classIdIsTheServices()
{
    QCOMPARE(m_service->GetCLSID(), QString("D78C8E0F-7A3F-4f51-87E3-753F0F7F0E05"));
}

void tst_ServiceParts::nameIsTranslated()
{
    QCOMPARE(m_service->GetPluginName(), QString("en:IDS_PLUGIN_NAME"));
}

void tst_ServiceParts::fixedAnswers()
{
    QRect rect(1, 2, 3, 4);
    TraceCapture trace;
    QVERIFY(m_service->Init());
    QVERIFY(m_service->ShowWindow(nullptr, rect));
    QCOMPARE(m_service->DoModal(), 0);
    m_service->Hide();
    m_service->FitSize(rect);
    QVERIFY(!m_service->IsReady());
    QCOMPARE(m_service->GetVersion(), 0);
    QVERIFY(!m_service->IsAllowRelease());
    m_service->Release();
    QCOMPARE(m_service->GetLastError(), 0);
    QCOMPARE(rect, QRect(1, 2, 3, 4));
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_ServiceParts::changeLangAnswersForTheName()
{
    QVERIFY(m_service->ChangeLang("en"));
    QVERIFY(!m_service->ChangeLang(""));
}

QTEST_MAIN(tst_ServiceParts)
#include "tst_serviceparts.moc"
