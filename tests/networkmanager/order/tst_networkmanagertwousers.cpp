#include "FakeNetworkManager.h"
#include "PrivateBus.h"

#include <DashboardProcess.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QtTest>

namespace
{

const int patience = 30000;

/** A user with a list of their own, and a program that keeps it in effect. */
class User
{
public:
    User() { QDir().mkpath(m_directory.FilePath("priority-dashboard")); }
    ~User()
    {
        m_agent.terminate();
        m_agent.waitForFinished();
    }

    void SetList(const QStringList &names)
    {
        QByteArray items;
        for (const QString &name : names) {
            items += "<item name=\"" + name.toUtf8() + "\" type=\"1\"/>";
        }
        m_directory.Write("priority-dashboard/Priority.xml",
                          "<zeltdoc><profile>" + items + "</profile></zeltdoc>");
    }

    void StartAgent()
    {
        ChangeEnvironment(&m_agent, QStringList("XDG_DATA_HOME=" + m_directory.Path()));
        m_agent.start(BUILD_DIRECTORY "/bin/priority-dashboard", {"--agent"});
    }

private:
    Q_DISABLE_COPY(User)

    TemporaryDirectory m_directory;
    QProcess m_agent;
};

} // namespace

/** Two users of one computer, with different lists that both rule. */
class tst_networkmanagertwousers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void ListThatWasChangedLastRules();

private:
    /** The names of the profiles, the greatest priority first. */
    QStringList Order();
    /** Something happens that has both compare, and all that comes of it. */
    void Trigger();

    PrivateBus m_bus;
    QScopedPointer<FakeNetworkManager> m_fake;
    QMap<QString, QString> m_profiles;
};

void tst_networkmanagertwousers::initTestCase()
{
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
    m_fake.reset(new FakeNetworkManager);
    QVERIFY(m_fake->Appear());
    for (const char *name : {"Home", "Office", "Coffee", "Train"}) {
        m_profiles[name] = m_fake->AddProfile(name);
    }
}

QStringList tst_networkmanagertwousers::Order()
{
    QMultiMap<int, QString> byPriority;
    for (QMap<QString, QString>::const_iterator i = m_profiles.constBegin(); i != m_profiles.constEnd();
         ++i) {
        byPriority.insert(-m_fake->PriorityOf(i.value()), i.key());
    }
    return byPriority.values();
}

void tst_networkmanagertwousers::Trigger()
{
    m_fake->AddProfile("wired", "802-3-ethernet");
    int calls = 0;
    do {
        calls = m_fake->CallCount();
        QTest::qWait(1000);
    } while (m_fake->CallCount() != calls);
}

void tst_networkmanagertwousers::ListThatWasChangedLastRules()
{
    const QStringList firstList = {"Home", "Office", "Coffee", "Train"};
    const QStringList laterList = {"Train", "Coffee", "Office", "Home"};
    const QStringList lastList = {"Home", "Coffee", "Train", "Office"};
    User first;
    first.SetList(firstList);
    first.StartAgent();
    QTRY_COMPARE_WITH_TIMEOUT(Order(), firstList, patience);
    User later;
    later.SetList(laterList);
    later.StartAgent();
    QTRY_COMPARE_WITH_TIMEOUT(Order(), laterList, patience);

    m_fake->ForgetCalls();
    for (int i = 0; i < 3; ++i) {
        Trigger();
    }
    QCOMPARE(Order(), laterList);
    // Each program has set each profile right once at most.
    const int writes = m_fake->CallCount("Update2");
    QVERIFY2(writes <= 2 * m_profiles.size(), qPrintable(QString::number(writes)));
    Trigger();
    QCOMPARE(m_fake->CallCount("Update2"), writes);

    first.SetList(lastList);
    QTRY_COMPARE_WITH_TIMEOUT(Order(), lastList, patience);
    Trigger();
    Trigger();
    QCOMPARE(Order(), lastList);
}

QTEST_MAIN(tst_networkmanagertwousers)
#include "tst_networkmanagertwousers.moc"
