#include "Lists.h"
#include "PluginWorld.h"
#include "SystemCalls.h"

#include <ListKeeper.h>
#include <OrderFile.h>
#include <PluginList.h>

#include <QDir>
#include <QtTest>

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <Row.h>
#include <sys/wait.h>
#include <unistd.h>

/** Changes of the list as a whole over the real plug-in, while one system call after the other fails, or is
 * the last one. */
class UndoFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();

    void FailingCallLosesNoList_data();
    void FailingCallLosesNoList();
    void EndAtAnyCallIsMadeGoodByTheNextStart_data();
    void EndAtAnyCallIsMadeGoodByTheNextStart();

private:
    enum Way { Undo, Import, Restore, ImportAfterUndo, BringBack, GoOn };

    static bool IsOfDamagedList(int way) { return way == BringBack || way == GoOn; }

    /** A history of two lists, the second one in force, or the first for an import after an undo. The list is
     * damaged where the way is for such a list. */
    void Begin(int way);
    static ListKeeper::Obstacle Do(int way, ListKeeper *keeper, const QString &wanted);
    void StartAnew() { m_keeper.reset(new ListKeeper(m_world.UserData(), &m_source, nullptr)); }
    QStringList Lists() const;
    /** What is wrong with what was kept; null when nothing is. */
    QString Loss(int way) const;
    void RestoreEach();

    PluginWorld m_world;
    PluginList m_source;
    QScopedPointer<ListKeeper> m_keeper;
};

static const QString before = QLatin1String("B, A, Mobile/2");
static const QString after = QLatin1String("A, Mobile/2");

static QByteArray Damaged()
{
    const QByteArray whole = OrderFile::Document(Listed(before));
    return whole.left(whole.lastIndexOf("<item") + 8);
}

void UndoFaultsTest::initTestCase()
{
    QVERIFY(m_world.Load());
}

void UndoFaultsTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void UndoFaultsTest::cleanup()
{
    SystemCalls::Forget();
    m_keeper.reset();
}

void UndoFaultsTest::Begin(int way)
{
    m_keeper.reset();
    QVERIFY(m_world.Begin());
    m_world.Write("Priority.xml", OrderFile::Document(Listed(after)));
    StartAnew();
    m_world.Write("Priority.xml", OrderFile::Document(Listed(before)));
    m_keeper->Follow();
    QCOMPARE(Lists(), QStringList() << after << before);
    if (way == ImportAfterUndo) {
        QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    } else if (IsOfDamagedList(way)) {
        // Nobody has seen that yet.
        m_world.Write("Priority.xml", Damaged());
    }
}

ListKeeper::Obstacle UndoFaultsTest::Do(int way, ListKeeper *keeper, const QString &wanted)
{
    switch (way) {
    case Undo:
        return keeper->Undo();
    case Restore:
        return keeper->Restore(0, keeper->History().States().at(0));
    case BringBack:
        return keeper->BringBack();
    case GoOn:
        return keeper->GoOnWith(Listed(wanted));
    default:
        return keeper->Replace(Listed(wanted));
    }
}

QStringList UndoFaultsTest::Lists() const
{
    QStringList lists;
    const QList<ListState> states = m_keeper->History().States();
    for (int i = 0; i < states.size(); ++i) {
        lists.append(AsText(states.at(i).entries));
    }
    return lists;
}

QString UndoFaultsTest::Loss(int way) const
{
    if (Lists().mid(0, 2) != (QStringList() << after << before)) {
        return QString("the history has %1").arg(Lists().join(" | "));
    }
    if (!IsOfDamagedList(way) || m_world.Read("Priority.xml") == Damaged()) {
        return QString();
    }
    const QStringList copies = QDir(m_world.UserData()).entryList(QStringList("Priority-damaged-*.xml"));
    for (int i = 0; i < copies.size(); ++i) {
        if (m_world.Read(copies.at(i)) == Damaged()) {
            return QString();
        }
    }
    return "the damaged file was not kept";
}

void UndoFaultsTest::RestoreEach()
{
    const QStringList wanted = QStringList() << before << after;
    for (int i = 0; i < wanted.size(); ++i) {
        const int place = Lists().indexOf(wanted.at(i));
        QVERIFY2(place >= 0, qPrintable(Lists().join(" | ")));
        QCOMPARE(m_keeper->Restore(place, m_keeper->History().States().at(place)), ListKeeper::NoObstacle);
        QCOMPARE(PluginWorld::Stored(), wanted.at(i));
    }
}

void UndoFaultsTest::FailingCallLosesNoList_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("error");
    const int ways[] = {Undo, BringBack, GoOn};
    const char *const names[] = {"undo", "bring back", "go on"};
    const QString wanted[] = {after, before, "B, A"};
    for (int i = 0; i < 3; ++i) {
        const auto add = [&](const char *name, SystemCalls::Call call, int error) {
            Row(qPrintable(QString("%1, %2").arg(names[i], name)), ways[i], wanted[i], int(call), error);
        };
        add("open, no descriptors left", SystemCalls::Open, EMFILE);
        add("open, input or output error", SystemCalls::Open, EIO);
        add("read, input or output error", SystemCalls::Read, EIO);
        add("read, interrupted", SystemCalls::Read, EINTR);
        add("write, disk full", SystemCalls::Write, ENOSPC);
        add("write, interrupted", SystemCalls::Write, EINTR);
        add("rename, not permitted", SystemCalls::Rename, EPERM);
        add("sync, input or output error", SystemCalls::Sync, EIO);
    }
}

void UndoFaultsTest::FailingCallLosesNoList()
{
    QFETCH(int, way);
    QFETCH(QString, wanted);
    QFETCH(int, call);
    QFETCH(int, error);
    int faults = 0;
    for (int number = 1;; ++number) {
        Begin(way);
        SystemCalls::Watch(m_world.UserData());
        SystemCalls::MakeFail(SystemCalls::Call(call), number, error);
        const ListKeeper::Obstacle problem = Do(way, m_keeper.data(), wanted);
        const bool hasFailed = SystemCalls::HasFailed();
        SystemCalls::Forget();
        const QString where = QString("fault %1: %2, %3").arg(number).arg(problem).arg(PluginWorld::Stored());
        // Who is told nothing has what was asked for: of a list that can't be read to its end the last good
        // one.
        const bool isBroughtBack =
            !IsOfDamagedList(way) && call == SystemCalls::Read && PluginWorld::Stored() == before;
        QVERIFY2(problem != ListKeeper::NoObstacle || PluginWorld::Stored() == wanted || isBroughtBack,
                 qPrintable(where));
        QVERIFY2(Loss(way).isNull(), qPrintable(where + Loss(way)));
        // The next start has what the history's file has.
        StartAnew();
        QVERIFY2(m_keeper->HistoryProblem() == ListKeeper::NoObstacle, qPrintable(where));
        QVERIFY2(Loss(way).isNull(), qPrintable(where + Loss(way)));
        RestoreEach();
        if (!hasFailed) {
            QCOMPARE(problem, ListKeeper::NoObstacle);
            break;
        }
        ++faults;
    }
    std::printf("%d faults\n", faults);
    QVERIFY2(faults > 0, "the call was made to fail");
}

void UndoFaultsTest::EndAtAnyCallIsMadeGoodByTheNextStart_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<QString>("wanted");
    Row("undo", int(Undo), after);
    Row("import", int(Import), "C, B, Mobile/2");
    Row("restore", int(Restore), after);
    Row("import after an undo", int(ImportAfterUndo), "C, B, Mobile/2");
    Row("bring back", int(BringBack), before);
    Row("go on", int(GoOn), "B, A");
}

void UndoFaultsTest::EndAtAnyCallIsMadeGoodByTheNextStart()
{
    QFETCH(int, way);
    QFETCH(QString, wanted);
    const QString found = way == ImportAfterUndo ? after : before;
    const int bytesOfAWrite[] = {0, 60};
    int ends = 0;
    for (const int bytes : bytesOfAWrite) {
        for (int number = 1;; ++number) {
            Begin(way);
            m_keeper.reset();
            const pid_t child = fork();
            if (child == 0) {
                SystemCalls::Watch(m_world.UserData());
                SystemCalls::MakeDie(number, bytes);
                ListKeeper keeper(m_world.UserData(), &m_source, nullptr);
                const ListKeeper::Obstacle problem = Do(way, &keeper, wanted);
                SystemCalls::Forget();
                _exit(problem == ListKeeper::NoObstacle ? 0 : 1);
            }
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            StartAnew();
            const QString where = QString("call %1, %2 bytes: %3 of %4")
                                      .arg(QString::number(number), QString::number(bytes),
                                           PluginWorld::Stored(), Lists().join(" | "));
            QVERIFY2(m_keeper->HistoryProblem() == ListKeeper::NoObstacle, qPrintable(where));
            const bool isStillDamaged = IsOfDamagedList(way) && m_world.Read("Priority.xml") == Damaged();
            QVERIFY2(isStillDamaged || PluginWorld::Stored() == found || PluginWorld::Stored() == wanted,
                     qPrintable(where));
            QVERIFY2(Loss(way).isNull(), qPrintable(where + Loss(way)));
            const QStringList added = Lists().mid(2);
            QVERIFY2(added.isEmpty() || added == QStringList(wanted) ||
                         added == (QStringList() << found << wanted),
                     qPrintable(where));
            QCOMPARE(AsText(m_keeper->Entries()), PluginWorld::Stored());
            if (WIFEXITED(status)) {
                QCOMPARE(WEXITSTATUS(status), 0);
                QCOMPARE(PluginWorld::Stored(), wanted);
            }
            RestoreEach();
            if (WIFEXITED(status)) {
                break;
            }
            ++ends;
        }
    }
    std::printf("%d ends\n", ends);
    QVERIFY(ends > 0);
}

QTEST_MAIN(UndoFaultsTest)
#include "tst_undofaults.moc"
