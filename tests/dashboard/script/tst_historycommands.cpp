#include "DashboardProcess.h"
#include "Lists.h"

#include <DirectoryLock.h>
#include <HistoryFile.h>
#include <OrderFile.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QScopedPointer>
#include <QtTest>

/** The commands that change the list as the window does, given to the program itself. */
class HistoryCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void ListIsChanged_data();
    void ListIsChanged();
    void WhatIsNotListedIsTold_data();
    void WhatIsNotListedIsTold();
    void MoveToItsOwnPlaceWritesNothing();
    void ChangesAreTakenBackAndMadeAgain();
    void WhatWasAddedIsTakenBack();
    void MovesOfOneNetworkAreOneStep();
    void NothingToUndoIsTold_data();
    void NothingToUndoIsTold();
    void ExportIsTheList();
    void ExportReplacesListsOnly_data();
    void ExportReplacesListsOnly();
    void ImportIsOneStep();
    void ImportOfTheSameListWritesNothing();
    void WhatIsNoListIsNotImported_data();
    void WhatIsNoListIsNotImported();
    void DamagedListIsLeftAlone_data();
    void DamagedListIsLeftAlone();
    void DamagedHistoryIsToldAndNoObstacleToMoves();
    void BusyListIsWaitedFor();
    void BusyListIsTold();

private:
    Outcome Run(const QStringList &arguments) const
    {
        return RunDashboard(arguments, QStringList("XDG_DATA_HOME=" + m_directory->Path()));
    }
    void SetList(const QString &entries) const
    {
        Write("Priority.xml", OrderFile::Document(Listed(entries)));
    }
    void Write(const QString &file, const QByteArray &bytes) const
    {
        m_directory->Write("priority-dashboard/" + file, bytes);
    }
    QByteArray File() const { return m_directory->Read("priority-dashboard/Priority.xml"); }
    QString List() const
    {
        QList<PriorityList> entries;
        OrderFile::Parse(File(), &entries);
        return AsText(entries);
    }
    int States() const
    {
        ListHistory history;
        HistoryFile::Parse(m_directory->Read("priority-dashboard/history/states.xml"), &history);
        return static_cast<int>(history.States().size());
    }

    QScopedPointer<TemporaryDirectory> m_directory;
};

void HistoryCommandsTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    QVERIFY(QDir().mkpath(m_directory->FilePath("priority-dashboard")));
}

void HistoryCommandsTest::ListIsChanged_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("list");
    const auto add = [](const char *name, const QStringList &arguments, const char *list) {
        Row(name, arguments, QString(list));
    };
    add("removed", {"--remove", "B"}, "A, C/2, A, D");
    add("of a type", {"--remove", "C:mobile"}, "A, B, A, D");
    add("the first of two", {"--remove=A"}, "B, C/2, A, D");
    add("to the top", {"--move", "D", "1"}, "D, A, B, C/2, A");
    add("up", {"--move", "D", "3"}, "A, B, D, C/2, A");
    add("down", {"--move", "B", "4"}, "A, C/2, A, B, D");
    add("to the end", {"--move", "B", "5"}, "A, C/2, A, D, B");
    add("beyond the end", {"--move=B", "99999999999"}, "A, C/2, A, D, B");
    add("the first of two is moved", {"--move", "A", "2"}, "B, A, C/2, A, D");
    add("one after the other", {"--move", "D", "1", "--remove", "B", "--add", "E"}, "D, A, C/2, A, E");
}

void HistoryCommandsTest::ListIsChanged()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, list);
    SetList("A, B, C/2, A, D");
    const Outcome outcome = Run(arguments);
    QCOMPARE(outcome.err + outcome.out, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(List(), list);
}

void HistoryCommandsTest::WhatIsNotListedIsTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    Row("remove", QStringList({"--remove", "Office"}));
    Row("move", QStringList({"--move", "Office", "1"}));
    Row("other type", QStringList({"--remove", "A:mobile"}));
    Row("other case", QStringList({"--remove", "a"}));
}

void HistoryCommandsTest::WhatIsNotListedIsTold()
{
    QFETCH(QStringList, arguments);
    SetList("A, B");
    const QByteArray before = File();
    const Outcome outcome = Run(arguments);
    QCOMPARE(outcome.status, 12);
    QVERIFY2(outcome.err.contains("is not listed"), qPrintable(outcome.err));
    QCOMPARE(File(), before);
}

void HistoryCommandsTest::MoveToItsOwnPlaceWritesNothing()
{
    // Not as it would be written here.
    const QByteArray own = "<zeltdoc><item name=\"A\" type=\"1\"/><item name=\"B\" type=\"1\"/></zeltdoc>";
    Write("Priority.xml", own);
    QCOMPARE(Run({"--move", "B", "2"}).status, 0);
    QCOMPARE(Run({"--move", "B", "7"}).status, 0);
    QCOMPARE(File(), own);
    QCOMPARE(States(), 1);
}

void HistoryCommandsTest::ChangesAreTakenBackAndMadeAgain()
{
    SetList("A, B, C");
    QCOMPARE(Run({"--remove", "B"}).status, 0);
    QCOMPARE(Run({"--move", "C", "1"}).status, 0);
    QCOMPARE(Run({"--undo"}).status, 0);
    QCOMPARE(List(), QString("A, C"));
    QCOMPARE(Run({"--undo"}).status, 0);
    QCOMPARE(List(), QString("A, B, C"));
    QCOMPARE(Run({"--redo", "--redo"}).status, 0);
    QCOMPARE(List(), QString("C, A"));
}

void HistoryCommandsTest::WhatWasAddedIsTakenBack()
{
    SetList("A");
    QCOMPARE(Run({"--add", "B"}).status, 0);
    QCOMPARE(Run({"--undo"}).status, 0);
    QCOMPARE(List(), QString("A"));
}

void HistoryCommandsTest::MovesOfOneNetworkAreOneStep()
{
    SetList("A, B, C");
    QCOMPARE(Run({"--move", "C", "2", "--move", "C", "1"}).status, 0);
    QCOMPARE(States(), 2);
}

void HistoryCommandsTest::NothingToUndoIsTold_data()
{
    QTest::addColumn<QString>("command");
    Row("undo", "--undo");
    Row("redo", "--redo");
}

void HistoryCommandsTest::NothingToUndoIsTold()
{
    QFETCH(QString, command);
    SetList("A");
    const Outcome outcome = Run({command});
    QCOMPARE(outcome.status, 15);
    QCOMPARE(outcome.err, QString("priority-dashboard: there is nothing to %1\n").arg(command.mid(2)));
}

void HistoryCommandsTest::ExportIsTheList()
{
    SetList("A, C/2");
    const QString path = m_directory->FilePath("mine.xml");
    QCOMPARE(Run({"--export", path}).status, 0);
    QCOMPARE(m_directory->Read("mine.xml"), OrderFile::Document(Listed("A, C/2")));
    QCOMPARE(QFile::permissions(path) & QFile::Permissions(0x0777),
             QFile::Permissions(QFile::ReadUser | QFile::WriteUser));
    QVERIFY(!QFile::exists(m_directory->FilePath("priority-dashboard/history")));
}

void HistoryCommandsTest::ExportReplacesListsOnly_data()
{
    QTest::addColumn<QByteArray>("former");
    QTest::addColumn<int>("status");
    Row("list", OrderFile::Document(Listed("X")), 0);
    Row("text", QByteArray("shopping: milk"), 8);
    Row("other XML", QByteArray("<html/>"), 8);
    Row("nothing in it", QByteArray(), 8);
}

void HistoryCommandsTest::ExportReplacesListsOnly()
{
    QFETCH(QByteArray, former);
    QFETCH(int, status);
    SetList("A");
    m_directory->Write("mine.xml", former);
    QCOMPARE(Run({"--export", m_directory->FilePath("mine.xml")}).status, status);
    QCOMPARE(m_directory->Read("mine.xml"), status == 0 ? OrderFile::Document(Listed("A")) : former);
}

void HistoryCommandsTest::ImportIsOneStep()
{
    SetList("A, B");
    m_directory->Write("mine.xml", OrderFile::Document(Listed("X, B, Y/2")));
    QCOMPARE(Run({"--import", m_directory->FilePath("mine.xml")}).status, 0);
    QCOMPARE(List(), QString("X, B, Y/2"));
    QCOMPARE(Run({"--undo"}).status, 0);
    QCOMPARE(List(), QString("A, B"));
}

void HistoryCommandsTest::ImportOfTheSameListWritesNothing()
{
    const QByteArray own = "<zeltdoc><item name=\"A\" type=\"1\"/></zeltdoc>";
    Write("Priority.xml", own);
    m_directory->Write("mine.xml", OrderFile::Document(Listed("A")));
    QCOMPARE(Run({"--import", m_directory->FilePath("mine.xml")}).status, 0);
    QCOMPARE(File(), own);
}

void HistoryCommandsTest::WhatIsNoListIsNotImported_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("status");
    Row("missing", QByteArray(), 7);
    Row("text", QByteArray("shopping: milk"), 6);
    Row("cut off", OrderFile::Document(Listed("X, Y")).left(90), 6);
    Row("other XML", QByteArray("<html/>"), 6);
}

void HistoryCommandsTest::WhatIsNoListIsNotImported()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, status);
    SetList("A");
    const QByteArray before = File();
    if (status != 7) {
        m_directory->Write("mine.xml", bytes);
    }
    const Outcome outcome = Run({"--import", m_directory->FilePath("mine.xml")});
    QCOMPARE(outcome.status, status);
    QVERIFY2(outcome.err.contains("mine.xml"), qPrintable(outcome.err));
    QCOMPARE(File(), before);
}

void HistoryCommandsTest::DamagedListIsLeftAlone_data()
{
    QTest::addColumn<QStringList>("arguments");
    Row("remove", QStringList({"--remove", "A"}));
    Row("move", QStringList({"--move", "A", "2"}));
    Row("undo", QStringList({"--undo"}));
    Row("redo", QStringList({"--redo"}));
    Row("export", QStringList({"--export", "MINE"}));
    Row("import", QStringList({"--import", "MINE"}));
}

void HistoryCommandsTest::DamagedListIsLeftAlone()
{
    QFETCH(QStringList, arguments);
    SetList("A, B");
    QCOMPARE(Run({"--move", "B", "1"}).status, 0);
    const QByteArray other = OrderFile::Document(Listed("X"));
    m_directory->Write("mine.xml", other);
    const QByteArray damaged = OrderFile::Document(Listed("A, B")).left(100);
    Write("Priority.xml", damaged);
    const Outcome outcome = Run(arguments.replaceInStrings("MINE", m_directory->FilePath("mine.xml")));
    QCOMPARE(outcome.status, 6);
    QVERIFY2(outcome.err.contains("Priority.xml:"), qPrintable(outcome.err));
    QCOMPARE(File(), damaged);
    QCOMPARE(m_directory->Read("mine.xml"), other);
}

void HistoryCommandsTest::DamagedHistoryIsToldAndNoObstacleToMoves()
{
    SetList("A, B");
    QCOMPARE(Run({"--move", "B", "1"}).status, 0);
    Write("history/states.xml", "damaged");
    QCOMPARE(Run({"--move", "A", "1"}).status, 0);
    QCOMPARE(List(), QString("A, B"));
    const Outcome outcome = Run({"--undo"});
    QCOMPARE(outcome.status, 6);
    QVERIFY2(outcome.err.contains("history/states.xml:"), qPrintable(outcome.err));
    QCOMPARE(List(), QString("A, B"));
    QCOMPARE(m_directory->Read("priority-dashboard/history/states.xml"), QByteArray("damaged"));
}

void HistoryCommandsTest::BusyListIsWaitedFor()
{
    SetList("A, B");
    QScopedPointer<DirectoryLock> lock(
        new DirectoryLock(m_directory->FilePath("priority-dashboard"), DirectoryLock::Changing));
    QProcess process;
    ChangeEnvironment(&process, QStringList("XDG_DATA_HOME=" + m_directory->Path()));
    process.start(BUILD_DIRECTORY "/bin/priority-dashboard", {"--move", "B", "1"});
    QVERIFY(!process.waitForFinished(2500));
    lock.reset();
    QCOMPARE(OutcomeOf(&process).status, 0);
    QCOMPARE(List(), QString("B, A"));
}

void HistoryCommandsTest::BusyListIsTold()
{
    SetList("A, B");
    const DirectoryLock lock(m_directory->FilePath("priority-dashboard"), DirectoryLock::Changing);
    QVERIFY(!lock.IsRefused());
    const Outcome outcome = Run({"--move", "B", "1"});
    QCOMPARE(outcome.status, 10);
    QVERIFY2(outcome.err.contains("busy with the list"), qPrintable(outcome.err));
    QCOMPARE(List(), QString("A, B"));
}

QTEST_GUILESS_MAIN(HistoryCommandsTest)
#include "tst_historycommands.moc"
