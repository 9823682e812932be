#include "DashboardSession.h"
#include "FakeNetworkManager.h"
#include "PrivateBus.h"

#include <DashboardProcess.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QSaveFile>
#include <QtTest>

#include <limits>
#include <utility>

namespace
{

const char profileInterface[] = "org.freedesktop.NetworkManager.Settings.Connection";

/** From the top of the list. */
const char *const listed[] = {"Office", "Home", "Coffee", "Train", "Library"};
/** Of those, before there was a list. */
const int priorities[] = {-7, -999, 0, 999, 12};
const char unlisted[] = "Hotel";
const int longEnough = 30000;

enum Moment { BeforeItIsTaken, BeforeItIsAnswered, AfterItIsAnswered };

} // namespace

Q_DECLARE_METATYPE(Moment)

/** The order over a fake NetworkManager, where programs are killed and several work at once. */
class tst_networkmanagerorder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void KilledProgramLosesNothing_data();
    void KilledProgramLosesNothing();
    void KilledNetworkManagerLosesNothing_data();
    void KilledNetworkManagerLosesNothing();
    void KilledBusLosesNothing_data();
    void KilledBusLosesNothing();
    void EditsOfAnotherProgramSurvive_data();
    void EditsOfAnotherProgramSurvive();
    void OneOfTwoAgentsStays();
    void WindowAndAgentWriteAChangeOnce();

private:
    typedef QMap<QString, NMVariantMapMap> Profiles;

    static QStringList Environment()
    {
        return {"XDG_DATA_HOME=" + QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME"))};
    }
    static Outcome Run(const char *command) { return RunDashboard({command}, Environment()); }
    static void Start(const char *command, QProcess *process);
    /** A row for each call of one order, at each of the moments. */
    void AddRows(const QList<Moment> &moments);
    /** Has an order come as far as that call. */
    void Begin(QProcess *process);
    /** The last entry of the list goes to the top; the path of its profile. */
    QString MoveLastToTop();
    void WriteList() const;
    /** NetworkManager counts the versions of profiles from 1.44 on. */
    void AddProfiles(const Profiles &profiles, bool haveVersions);
    Profiles Stored();
    bool IsInOrder();
    /** Another NetworkManager with the profiles of this one. */
    void StartNetworkManagerAgain(const Profiles &profiles, bool hasVersions = true);
    /** An order that did not come to its end does not say that it did. */
    void VerifyEnd(QProcess *process);
    /** The next order is carried out, and its end leaves all as it was. */
    void VerifyNothingIsLost(const Profiles &before);

    PrivateBus m_bus;
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<FakeNetworkManager> m_fake;
    QStringList m_list;
};

void tst_networkmanagerorder::initTestCase()
{
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
}

void tst_networkmanagerorder::init()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    QDir().mkpath(m_directory->FilePath("priority-dashboard"));
    m_list = QStringList(std::begin(listed), std::end(listed));
    WriteList();
    Profiles profiles;
    for (size_t i = 0; i < sizeof(listed) / sizeof(*listed); ++i) {
        profiles[listed[i]] = FakeNetworkManager::Settings(listed[i]);
        profiles[listed[i]]["connection"]["autoconnect-priority"] = priorities[i];
    }
    profiles[unlisted] = FakeNetworkManager::Settings(unlisted);
    profiles[unlisted]["connection"]["autoconnect-priority"] = 3;
    m_fake.reset();
    StartNetworkManagerAgain(profiles);
}

void tst_networkmanagerorder::WriteList() const
{
    QString items;
    for (const QString &name : m_list) {
        items += QString("<item name=\"%1\" type=\"1\"/>").arg(name);
    }
    QSaveFile file(QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME")) + "/priority-dashboard/Priority.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<zeltdoc><profile>" + items.toUtf8() + "</profile></zeltdoc>");
    QVERIFY(file.commit());
}

QString tst_networkmanagerorder::MoveLastToTop()
{
    m_list.prepend(m_list.takeLast());
    WriteList();
    const QStringList paths = m_fake->ProfilePaths();
    for (const QString &path : paths) {
        if (m_fake->SettingsOf(path)["connection"]["id"].toString() == m_list.constFirst()) {
            return path;
        }
    }
    return QString();
}

void tst_networkmanagerorder::Start(const char *command, QProcess *process)
{
    ChangeEnvironment(process, Environment());
    process->start(BUILD_DIRECTORY "/bin/priority-dashboard", {command});
}

void tst_networkmanagerorder::AddProfiles(const Profiles &profiles, bool haveVersions)
{
    for (const NMVariantMapMap &settings : profiles) {
        const QString path = m_fake->AddProfile(settings);
        if (haveVersions) {
            m_fake->SetProperty(path, profileInterface, "VersionId", qulonglong(7));
        }
    }
}

tst_networkmanagerorder::Profiles tst_networkmanagerorder::Stored()
{
    Profiles profiles;
    const QStringList paths = m_fake->ProfilePaths();
    for (const QString &path : paths) {
        const NMVariantMapMap settings = m_fake->SettingsOf(path);
        profiles[settings["connection"]["id"].toString()] = settings;
    }
    return profiles;
}

bool tst_networkmanagerorder::IsInOrder()
{
    const Profiles profiles = Stored();
    const auto priority = [&](const QString &name) {
        return profiles[name]["connection"]["autoconnect-priority"].toInt();
    };
    int last = std::numeric_limits<int>::max();
    for (const QString &name : std::as_const(m_list)) {
        if (priority(name) >= last) {
            return false;
        }
        last = priority(name);
    }
    return last > priority(unlisted);
}

void tst_networkmanagerorder::AddRows(const QList<Moment> &moments)
{
    QTest::addColumn<int>("call");
    QTest::addColumn<Moment>("moment");
    init();
    const Outcome outcome = Run("--apply");
    QCOMPARE(outcome.status, 0);
    const char *const words[] = {"before it is taken", "before it is answered", "after it is answered"};
    for (int call = 1; call <= m_fake->CallCount(); ++call) {
        for (const Moment moment : moments) {
            QTest::addRow("call %d, %s", call, words[moment]) << call << moment;
        }
    }
}

void tst_networkmanagerorder::Begin(QProcess *process)
{
    QFETCH(int, call);
    QFETCH(Moment, moment);
    m_fake->TakeOnly(call - (moment == BeforeItIsTaken ? 1 : 0), moment != BeforeItIsAnswered);
    Start("--apply", process);
    QVERIFY(process->waitForStarted());
    const int step = 1;
    while (m_fake->CallCount() < call && !process->waitForFinished(step)) {
        QCOMPARE(process->state(), QProcess::Running);
    }
    // What is asked after the last change is not waited for, so there may be less of it than in the first
    // run.
    QVERIFY(m_fake->CallCount() >= call || IsInOrder());
}

void tst_networkmanagerorder::StartNetworkManagerAgain(const Profiles &profiles, bool hasVersions)
{
    m_fake.reset(new FakeNetworkManager);
    AddProfiles(profiles, hasVersions);
    QVERIFY(m_fake->Appear());
}

void tst_networkmanagerorder::VerifyEnd(QProcess *process)
{
    const Outcome outcome = OutcomeOf(process);
    QVERIFY2(outcome.status > 0 || (outcome.status == 0 && IsInOrder()), qPrintable(outcome.err));
}

void tst_networkmanagerorder::VerifyNothingIsLost(const Profiles &before)
{
    const Outcome outcome = Run("--apply");
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QVERIFY(IsInOrder());
    QCOMPARE(Run("--release").status, 0);
    QCOMPARE(Stored(), before);
}

void tst_networkmanagerorder::KilledProgramLosesNothing_data()
{
    AddRows({BeforeItIsTaken, AfterItIsAnswered});
}

void tst_networkmanagerorder::KilledProgramLosesNothing()
{
    const Profiles before = Stored();
    QProcess process;
    Begin(&process);
    process.kill();
    process.waitForFinished();
    m_fake->Behave();
    VerifyNothingIsLost(before);
}

void tst_networkmanagerorder::KilledNetworkManagerLosesNothing_data()
{
    AddRows({BeforeItIsAnswered});
}

void tst_networkmanagerorder::KilledNetworkManagerLosesNothing()
{
    const Profiles before = Stored();
    QProcess process;
    Begin(&process);
    const Profiles left = Stored();
    m_fake.reset();
    StartNetworkManagerAgain(left);
    VerifyEnd(&process);
    VerifyNothingIsLost(before);
}

void tst_networkmanagerorder::KilledBusLosesNothing_data()
{
    AddRows({BeforeItIsTaken});
}

void tst_networkmanagerorder::KilledBusLosesNothing()
{
    const Profiles before = Stored();
    QProcess process;
    Begin(&process);
    const Profiles left = Stored();
    m_bus.Kill();
    m_fake.reset();
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
    StartNetworkManagerAgain(left);
    VerifyEnd(&process);
    VerifyNothingIsLost(before);
}

void tst_networkmanagerorder::EditsOfAnotherProgramSurvive_data()
{
    QTest::addColumn<bool>("hasVersions");
    Row("NetworkManager that counts versions", true);
    Row("an earlier one", false);
}

void tst_networkmanagerorder::EditsOfAnotherProgramSurvive()
{
    QFETCH(bool, hasVersions);
    const Profiles profiles = Stored();
    m_fake.reset();
    StartNetworkManagerAgain(profiles, hasVersions);
    QProcess agent;
    Start("--agent", &agent);
    QTRY_VERIFY_WITH_TIMEOUT(IsInOrder(), longEnough);
    QHash<QString, QStringList> edits;
    for (int i = 0; i < 50; ++i) {
        const QString method = i % 2 == 0 ? "GetSettings" : "Update2";
        m_fake->ForgetCalls();
        m_fake->Hold(method);
        const QString moved = MoveLastToTop();
        QTRY_VERIFY_WITH_TIMEOUT(m_fake->CallCount(method) > 0, longEnough);
        edits[moved].append(QString("edit%1.example.org").arg(i));
        m_fake->SetSetting(moved, "ipv4", "dns-search", edits.value(moved));
        m_fake->Hold(QString());
        m_fake->Release();
        QTRY_VERIFY_WITH_TIMEOUT(IsInOrder(), longEnough);
        QCOMPARE(m_fake->SettingsOf(moved)["ipv4"]["dns-search"].toStringList(), edits.value(moved));
    }
    agent.terminate();
    QCOMPARE(OutcomeOf(&agent).err, QString());
    for (auto i = edits.cbegin(); i != edits.cend(); ++i) {
        QCOMPARE(m_fake->SettingsOf(i.key())["ipv4"]["dns-search"].toStringList(), i.value());
    }
}

void tst_networkmanagerorder::OneOfTwoAgentsStays()
{
    QProcess agents[2];
    Start("--agent", &agents[0]);
    Start("--agent", &agents[1]);
    const auto isOver = [&](int i) {
        return agents[i].state() == QProcess::NotRunning;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isOver(0) || isOver(1), longEnough);
    QProcess *refused = &agents[isOver(0) ? 0 : 1];
    QProcess *staying = &agents[isOver(0) ? 1 : 0];
    const Outcome outcome = OutcomeOf(refused);
    QCOMPARE(outcome.status, 10);
    QCOMPARE(outcome.err.count('\n'), 1);
    QTRY_VERIFY_WITH_TIMEOUT(IsInOrder(), longEnough);
    staying->terminate();
    QCOMPARE(OutcomeOf(staying).status, 0);
}

void tst_networkmanagerorder::WindowAndAgentWriteAChangeOnce()
{
    const int pause = 300;
    DashboardSession window;
    window.VerifyPlugins();
    window.OpenWindow();
    window.WaitForSource();
    WriteList();
    QTRY_VERIFY_WITH_TIMEOUT(IsInOrder(), longEnough);
    m_fake->ForgetCalls();
    QProcess agent;
    Start("--agent", &agent);
    QTRY_VERIFY_WITH_TIMEOUT(m_fake->CallCount("GetSettings") >= m_fake->ProfilePaths().size(), longEnough);
    QTest::qWait(pause);
    m_fake->ForgetCalls();
    int changed = 0;
    for (int i = 0; i < 20; ++i) {
        const Profiles before = Stored();
        MoveLastToTop();
        QTRY_VERIFY_WITH_TIMEOUT(IsInOrder(), longEnough);
        const Profiles after = Stored();
        for (const QString &name : std::as_const(m_list)) {
            changed += after[name] != before[name] ? 1 : 0;
        }
    }
    // For what might still come.
    QTest::qWait(pause);
    agent.terminate();
    QCOMPARE(OutcomeOf(&agent).status, 0);
    QCOMPARE(m_fake->CallCount("Update2"), changed);
}

QTEST_MAIN(tst_networkmanagerorder)
#include "tst_networkmanagerorder.moc"
