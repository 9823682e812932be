#include "FakeNetworkManager.h"
#include "LoadedWLAN.h"
#include "Namespace.h"
#include "NetworkManagerDaemon.h"
#include "PrivateBus.h"

#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <ContractNumbers.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <QtTest>

#include <cstdio>
#include <functional>

namespace
{

const int profileCount = 500;
const int mostCallsOfAMove = 5;
/** Its settings are read, it is written, and read again as NetworkManager has told of the change. */
const int mostCallsOfAProfile = 3;
const int mostMilliseconds = 120000;

QString NameOf(int profile)
{
    return QString("network-%1").arg(profile, 3, 10, QLatin1Char('0'));
}

QStringList Names()
{
    QStringList names;
    for (int i = 0; i < profileCount; ++i) {
        names.append(NameOf(i));
    }
    return names;
}

QByteArray ListOf(const QStringList &names)
{
    QByteArray items;
    for (const QString &name : names) {
        items += "<item name=\"" + name.toUtf8() + "\" type=\"1\"/>";
    }
    return "<zeltdoc><profile>" + items + "</profile></zeltdoc>";
}

void Discard(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

/** Counts the profiles that NetworkManager says have been written. */
class WriteCounter : public QObject
{
    Q_OBJECT

public:
    WriteCounter()
    {
        PrivateBus::Connection().connect("org.freedesktop.NetworkManager", QString(),
                                         "org.freedesktop.NetworkManager.Settings.Connection", "Updated",
                                         this, SLOT(Take()));
    }

    int Count() const { return m_count; }

    /** Returns when as many as that have been written since the last call, or none of them comes any more. */
    void WaitFor(int count)
    {
        m_count = 0;
        m_awaited = count;
        QTimer limit;
        connect(&limit, &QTimer::timeout, &m_loop, &QEventLoop::quit);
        limit.start(mostMilliseconds);
        // An event loop of its own: what looks again and again sleeps in between.
        m_loop.exec();
    }

private slots:
    void Take()
    {
        ++m_count;
        if (m_count == m_awaited) {
            m_loop.quit();
        }
    }

private:
    Q_DISABLE_COPY(WriteCounter)

    QEventLoop m_loop;
    int m_count = 0;
    int m_awaited = 0;
};

namespace
{

/** The plug-ins over whatever is NetworkManager on the bus, with a list of their own. */
class Session
{
public:
    Session()
    {
        StandInHost::Reset(m_user.Path());
        m_plugin.Plugin()->Init();
        m_container.objects[qMakePair(QString(priorityClassId), int(PriorityInterface))] = m_plugin.Service();
        StandInHost::container = &m_container;
        m_user.Write("Priority.xml", ListOf(QStringList()));
        LoadedWLAN::Root()->Init();
        (void)QTest::qWaitFor([] { return LoadedWLAN::Remembered().size() == profileCount; },
                              mostMilliseconds);
        Rest();
    }

    ~Session()
    {
        LoadedWLAN::Root()->OnDestroy();
        StandInHost::Reset(QString());
    }

    /** The milliseconds until as many profiles as that have been written. */
    qint64 Order(const QStringList &names, int writes)
    {
        QElapsedTimer timer;
        timer.start();
        m_user.Write("Priority.xml", ListOf(names));
        m_writes.WaitFor(writes);
        const qint64 elapsed = timer.elapsed();
        // More might come.
        Rest();
        return elapsed;
    }

    int Writes() const { return m_writes.Count(); }

private:
    Q_DISABLE_COPY(Session)

    static void Rest() { QTest::qWait(2000); }

    TemporaryDirectory m_user;
    LoadedPlugin m_plugin;
    FakeContainer m_container;
    WriteCounter m_writes;
};

bool isMissed = false;

/** calls is -1 where they are not counted. */
void Tell(const char *operation, const char *over, int writes, int mostWrites, int calls, int mostCalls,
          qint64 milliseconds)
{
    std::printf("| %s | %s | %d | %s | %lld |\n", operation, over, writes,
                calls < 0 ? "not counted" : qPrintable(QString::number(calls)),
                static_cast<long long>(milliseconds));
    isMissed = isMissed || writes != mostWrites || calls > mostCalls;
}

void Measure(const char *over, const std::function<int()> &takeCalls)
{
    Session session;
    QStringList names = Names();
    takeCalls();
    const qint64 first = session.Order(names, profileCount);
    Tell("the first time that 500 are ordered", over, session.Writes(), profileCount, takeCalls(),
         profileCount * mostCallsOfAProfile, first);
    names.move(profileCount * 4 / 5, profileCount / 5);
    const qint64 move = session.Order(names, 1);
    Tell("a move of one among 500", over, session.Writes(), 1, takeCalls(), mostCallsOfAMove, move);
}

void MeasureOverFake()
{
    FakeNetworkManager fake;
    fake.Appear();
    for (const QString &name : Names()) {
        fake.AddProfile(name);
    }
    Measure("a stand-in", [&fake] {
        const int calls = fake.CallCount();
        fake.ForgetCalls();
        return calls;
    });
}

/** Empty, or why it can't be done. */
QString MeasureOverDaemon(PrivateBus *bus)
{
    NetworkManagerDaemon daemon(bus);
    if (!daemon.Start()) {
        return daemon.WhyNot();
    }
    for (int i = 0; i < profileCount; ++i) {
        const QByteArray name = NameOf(i).toLatin1();
        daemon.WriteKeyfile(NameOf(i), "[connection]\nid=" + name +
                                           "\nuuid=00000000-0000-4000-8000-000000000" + name.right(3) +
                                           "\ntype=wifi\n[wifi]\nssid=" + name + "\n");
    }
    NetworkManagerDaemon::Nmcli({"connection", "reload"});
    Measure("NetworkManager", [] { return -1; });
    return QString();
}

} // namespace

int main(int argc, char **argv)
{
    // Before there is a second thread.
    QString whyNot = Namespace::Enter();
    QApplication application(argc, argv);
    qInstallMessageHandler(Discard);
    PrivateBus bus;
    if (!bus.Start()) {
        std::fprintf(stderr, "%s\n", qPrintable(bus.WhyNot()));
        return 1;
    }
    std::printf("\n| operation | over | writes | calls | ms |\n|---|---|---:|---:|---:|\n");
    MeasureOverFake();
    if (whyNot.isEmpty()) {
        whyNot = MeasureOverDaemon(&bus);
    }
    if (!whyNot.isEmpty()) {
        std::printf("\nNot measured over NetworkManager itself: %s\n", qPrintable(whyNot));
    }
    std::printf("%s", isMissed ? "\nA target is missed.\n" : "");
    return isMissed ? 1 : 0;
}
#include "bench_order.moc"
