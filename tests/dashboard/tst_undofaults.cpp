#include "Lists.h"
#include "PluginWorld.h"
#include "SystemCalls.h"

#include <ListKeeper.h>
#include <OrderFile.h>

#include <QtTest>

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

/** Undo over the real plug-in while one system call after the other fails, or is the last one. */
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
    enum Way { Undo, Import };

    /** A history of two lists, the second one in force. */
    void Begin();
    void StartAnew() { m_keeper.reset(new ListKeeper(m_world.UserData(), nullptr)); }
    QStringList Lists() const;
    void RestoreEach();

    PluginWorld m_world;
    QScopedPointer<ListKeeper> m_keeper;
};

static const QString before = QLatin1String("B, A, Mobile/2");
static const QString after = QLatin1String("A, Mobile/2");

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

void UndoFaultsTest::Begin()
{
    m_keeper.reset();
    QVERIFY(m_world.Begin());
    m_world.Write("Priority.xml", OrderFile::Document(Listed(after)));
    StartAnew();
    m_world.Write("Priority.xml", OrderFile::Document(Listed(before)));
    m_keeper->Follow();
    QCOMPARE(Lists(), QStringList() << after << before);
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

void UndoFaultsTest::RestoreEach()
{
    const QStringList wanted = QStringList() << before << after;
    for (int i = 0; i < wanted.size(); ++i) {
        const int place = Lists().indexOf(wanted.at(i));
        QVERIFY2(place >= 0, qPrintable(Lists().join(" | ")));
        QCOMPARE(m_keeper->Restore(place, m_keeper->History().States().at(place)), QString());
        QCOMPARE(PluginWorld::Stored(), wanted.at(i));
    }
}

void UndoFaultsTest::FailingCallLosesNoList_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("error");
    QTest::newRow("open, no descriptors left") << int(SystemCalls::Open) << EMFILE;
    QTest::newRow("open, input or output error") << int(SystemCalls::Open) << EIO;
    QTest::newRow("read, input or output error") << int(SystemCalls::Read) << EIO;
    QTest::newRow("read, interrupted") << int(SystemCalls::Read) << EINTR;
    QTest::newRow("write, disk full") << int(SystemCalls::Write) << ENOSPC;
    QTest::newRow("write, interrupted") << int(SystemCalls::Write) << EINTR;
    QTest::newRow("unlink, not permitted") << int(SystemCalls::Unlink) << EPERM;
    QTest::newRow("rename, not permitted") << int(SystemCalls::Rename) << EPERM;
    QTest::newRow("sync, input or output error") << int(SystemCalls::Sync) << EIO;
}

void UndoFaultsTest::FailingCallLosesNoList()
{
    QFETCH(int, call);
    QFETCH(int, error);
    int faults = 0;
    for (int number = 1;; ++number) {
        Begin();
        SystemCalls::Watch(m_world.UserData());
        SystemCalls::MakeFail(SystemCalls::Call(call), number, error);
        const QString problem = m_keeper->Undo();
        const bool hasFailed = SystemCalls::HasFailed();
        SystemCalls::Forget();
        const QString where = QString("fault %1: %2, %3").arg(number).arg(problem, PluginWorld::Stored());
        // Who is told nothing has what was asked for: of a list that can't be read to its end the last good
        // one.
        const bool isBroughtBack = call == SystemCalls::Read && PluginWorld::Stored() == before;
        QVERIFY2(!problem.isNull() || PluginWorld::Stored() == after || isBroughtBack, qPrintable(where));
        QVERIFY2(Lists().contains(before) && Lists().contains(after), qPrintable(where));
        // The next start has what the history's file has.
        StartAnew();
        QVERIFY2(m_keeper->ProblemText().isNull(), qPrintable(where + m_keeper->ProblemText()));
        RestoreEach();
        if (!hasFailed) {
            QCOMPARE(problem, QString());
            break;
        }
        ++faults;
    }
    std::printf("%d faults\n", faults);
    QVERIFY2(faults > 0, "the call was made to fail at least once");
}

void UndoFaultsTest::EndAtAnyCallIsMadeGoodByTheNextStart_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("undo") << int(Undo) << after;
    QTest::newRow("import") << int(Import) << "C, B, Mobile/2";
}

void UndoFaultsTest::EndAtAnyCallIsMadeGoodByTheNextStart()
{
    QFETCH(int, way);
    QFETCH(QString, wanted);
    const int bytesOfAWrite[] = {0, 60};
    int ends = 0;
    for (const int bytes : bytesOfAWrite) {
        for (int number = 1;; ++number) {
            Begin();
            m_keeper.reset();
            const pid_t child = fork();
            if (child == 0) {
                ListKeeper keeper(m_world.UserData(), nullptr);
                SystemCalls::Watch(m_world.UserData());
                SystemCalls::MakeDie(number, bytes);
                const QString problem = way == Undo ? keeper.Undo() : keeper.Replace(Listed(wanted));
                SystemCalls::Forget();
                _exit(problem.isNull() ? 0 : 1);
            }
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            StartAnew();
            const QString where = QString("call %1, %2 bytes: %3 of %4")
                                      .arg(QString::number(number), QString::number(bytes),
                                           PluginWorld::Stored(), Lists().join(" | "));
            QVERIFY2(m_keeper->ProblemText().isNull(), qPrintable(where + m_keeper->ProblemText()));
            QVERIFY2(PluginWorld::Stored() == before || PluginWorld::Stored() == wanted, qPrintable(where));
            QVERIFY2(Lists().mid(0, 2) == (QStringList() << after << before), qPrintable(where));
            QVERIFY2(Lists().mid(2).isEmpty() || Lists().mid(2) == QStringList(wanted), qPrintable(where));
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
