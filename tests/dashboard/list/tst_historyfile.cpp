#include "Lists.h"

#include <DashboardLanguage.h>
#include <FileFaultText.h>
#include <HistoryFile.h>
#include <HostControl.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

ListState State(int minute, const QString &entries)
{
    ListState state;
    state.time = QDateTime::fromString("2026-03-01T09:00:00Z", Qt::ISODate).addSecs(minute * 60);
    state.entries = Listed(entries);
    return state;
}

ListHistory Example()
{
    ListHistory history;
    history.Record(State(0, QString::fromUtf8("Café")));
    history.Record(State(5, QString::fromUtf8("Café, Office")));
    history.Record(State(6, QString::fromUtf8("Office, Café")));
    history.GoTo(1, QDateTime::fromString("2026-03-01T09:07:00Z", Qt::ISODate));
    return history;
}

QByteArray ExampleDocument()
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<listhistory version=\"2\" current=\"1\" since=\"2026-03-01T09:07:00Z\">\n"
                      "    <entries>\n"
                      "        <item name=\"Caf\xc3\xa9\" type=\"1\"/>\n"
                      "        <item name=\"Office\" type=\"1\"/>\n"
                      "    </entries>\n"
                      "    <states>\n"
                      "        <state time=\"2026-03-01T09:00:00Z\" order=\"0\"/>\n"
                      "        <state time=\"2026-03-01T09:05:00Z\" order=\"0 1\"/>\n"
                      "        <state time=\"2026-03-01T09:06:00Z\" order=\"1 0\"/>\n"
                      "    </states>\n"
                      "</listhistory>\n");
}

bool IsSame(const ListHistory &left, const ListHistory &right)
{
    return left.Position() == right.Position() && left.States() == right.States() &&
           left.CameBack() == right.CameBack();
}

int Permissions(const QString &path)
{
    struct stat status;
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? static_cast<int>(status.st_mode & 0777)
                                                                   : -1;
}

} // namespace

class HistoryFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void DocumentIsAsDocumented();
    void WhatIsSavedIsLoaded();
    void HistoryOfTheFormerVersionIsRead();
    void EveryMarkComesBack();
    void AnyEntryComesBack();
    void TimesOfOtherWritersAreWholeSeconds();
    void OnlyTheOwnerMayReadIt();
    void MissingFileIsAnEmptyHistory();
    void EmptyListIsAState();
    void FaultIsNamedWithItsLineAndLeftAlone_data();
    void FaultIsNamedWithItsLineAndLeftAlone();
    void EveryTruncationIsNoticed();
    void FileThatCannotBeReadIsTold_data();
    void FileThatCannotBeReadIsTold();
    void FileThatCannotBeWrittenIsTold();
    void FullDiskKeepsTheEarlierHistory();
    void HistoryWithoutAPlaceLivesOn();
    void ChangesByOthersAreSeen();
    void UnusableFileIsSetAsideUnderAFreeName();
    void OldestStatesGoWhereThereIsNoRoom();
    void SuddenEndLeavesAReadableHistory();

private:
    QString UserData() const { return m_directory->Path() + '/'; }
    QString Path() const { return HistoryFile(UserData()).Path(); }
    void WriteFile(const QByteArray &bytes) const
    {
        QVERIFY(HistoryFile(UserData()).Prepare());
        m_directory->Write("history/states.xml", bytes);
    }

    QScopedPointer<TemporaryDirectory> m_directory;
};

void HistoryFileTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
}

void HistoryFileTest::DocumentIsAsDocumented()
{
    QCOMPARE(HistoryFile::Document(Example()), ExampleDocument());
}

void HistoryFileTest::WhatIsSavedIsLoaded()
{
    HistoryFile file(UserData());
    QVERIFY(file.Prepare());
    ListHistory saved = Example();
    QVERIFY(file.Save(&saved));
    HistoryFile other(UserData());
    ListHistory loaded;
    QVERIFY(other.Load(&loaded));
    QVERIFY(IsSame(loaded, Example()));
    QCOMPARE(m_directory->Read("history/states.xml"), ExampleDocument());
}

void HistoryFileTest::HistoryOfTheFormerVersionIsRead()
{
    WriteFile(ExampleDocument()
                  .replace("version=\"2\"", "version=\"1\"")
                  .replace(" since=\"2026-03-01T09:07:00Z\"", ""));
    HistoryFile file(UserData());
    ListHistory history;
    QVERIFY2(file.Load(&history), qPrintable(FileFaultText(file.Fault())));
    QCOMPARE(history.States(), Example().States());
    QCOMPARE(history.Position(), 1);
    QCOMPARE(history.RedoPlace(), 2);
    QVERIFY(file.Save(&history));
    QVERIFY(m_directory->Read("history/states.xml").contains("<listhistory version=\"2\" current=\"1\">"));
}

void HistoryFileTest::EveryMarkComesBack()
{
    ListHistory history = Example();
    ListState moved = State(8, QString::fromUtf8("Shop, Café"));
    moved.moved = 1;
    history.Record(moved);
    history.GoTo(history.UndoPlace(), State(9, QString()).time);
    history.SetTarget(4);
    const QByteArray document = HistoryFile::Document(history);
    QVERIFY2(document.contains("<listhistory version=\"2\" current=\"3\" since=\"2026-03-01T09:09:00Z\" "
                               "target=\"4\">\n"),
             document.constData());
    QVERIFY2(document.contains("<state time=\"2026-03-01T09:06:00Z\" passed=\"true\" order=\"1 0\"/>\n"),
             document.constData());
    QVERIFY2(document.contains("<state time=\"2026-03-01T09:07:00Z\" back=\"2026-03-01T09:05:00Z\" "
                               "order=\"0 1\"/>\n"),
             document.constData());
    QVERIFY2(document.contains("<state time=\"2026-03-01T09:08:00Z\" moved=\"0\" order=\"2 0\"/>\n"),
             document.constData());
    ListHistory parsed;
    QCOMPARE(HistoryFile::Parse(document, &parsed).kind, FileFault::None);
    QVERIFY(IsSame(parsed, history));
    QCOMPARE(parsed.Target(), 4);
}

void HistoryFileTest::AnyEntryComesBack()
{
    ListHistory history;
    ListState state = State(0, "x, x, y/, z/2, x/2");
    state.entries[2].name = "<a & \"b\"> \n\t";
    history.Record(state);
    ListHistory parsed;
    QCOMPARE(HistoryFile::Parse(HistoryFile::Document(history), &parsed).kind, FileFault::None);
    QVERIFY(IsSame(parsed, history));
}

void HistoryFileTest::TimesOfOtherWritersAreWholeSeconds()
{
    ListHistory history;
    const QByteArray document = ExampleDocument().replace("09:05:00Z", "10:05:00.250+01:00");
    QCOMPARE(HistoryFile::Parse(document, &history).kind, FileFault::None);
    QVERIFY(IsSame(history, Example()));
    QCOMPARE(HistoryFile::Document(history), ExampleDocument());
}

void HistoryFileTest::OnlyTheOwnerMayReadIt()
{
    const mode_t mask = umask(0);
    HistoryFile file(UserData());
    ListHistory history = Example();
    const bool isSaved = file.Prepare() && file.Save(&history);
    umask(mask);
    QVERIFY(isSaved);
    QCOMPARE(Permissions(file.Directory()), 0700);
    QCOMPARE(Permissions(file.Path()), 0600);
}

void HistoryFileTest::MissingFileIsAnEmptyHistory()
{
    HistoryFile file(UserData());
    ListHistory history = Example();
    QVERIFY(file.Load(&history));
    QVERIFY(history.IsEmpty());
    QCOMPARE(file.LastTrouble(), HistoryFile::NoTrouble);
}

void HistoryFileTest::EmptyListIsAState()
{
    ListHistory history;
    history.Record(State(0, ""));
    ListHistory parsed;
    QCOMPARE(HistoryFile::Parse(HistoryFile::Document(history), &parsed).kind, FileFault::None);
    QVERIFY(IsSame(parsed, history));
}

void HistoryFileTest::FaultIsNamedWithItsLineAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("found");
    QTest::addColumn<QByteArray>("replaced");
    QTest::addColumn<QString>("told");
    Row("target that is none", QByteArray("current=\"1\""), QByteArray("current=\"1\" target=\"3\""),
        QString::fromUtf8("Line 2: the attribute “target”"));
    Row("all of it", ExampleDocument(), QByteArray("\n\nnonsense"), "Line 3: ");
    Row("nothing there", ExampleDocument(), QByteArray(), "Line 1: ");
    Row("other root", QByteArray("listhistory"), QByteArray("history"),
        QString::fromUtf8("Line 2: the element “history”"));
    Row("later version", QByteArray("version=\"2\""), QByteArray("version=\"3\""),
        QString::fromUtf8("Line 2: the attribute “version”"));
    Row("no state in force", QByteArray("current=\"1\""), QByteArray("current=\"3\""),
        QString::fromUtf8("Line 2: the attribute “current”"));
    Row("state in force below 0", QByteArray("current=\"1\""), QByteArray("current=\"-1\""),
        QString::fromUtf8("Line 2: the attribute “current”"));
    Row("state in force passed by", QByteArray("09:05:00Z\""), QByteArray("09:05:00Z\" passed=\"true\""),
        QString::fromUtf8("Line 2: the attribute “current”"));
    Row("target passed by",
        QByteArray("current=\"1\" since=\"2026-03-01T09:07:00Z\">\n    <entries>\n        <item "
                   "name=\"Caf\xc3\xa9\" type=\"1\"/>\n        <item name=\"Office\" type=\"1\"/>\n    "
                   "</entries>\n    <states>\n        <state "),
        QByteArray("current=\"1\" target=\"0\"><entries><item name=\"a\" type=\"1\"/>"
                   "<item name=\"b\" type=\"1\"/></entries><states><state passed=\"true\" "),
        QString::fromUtf8("Line 2: the attribute “target”"));
    Row("passed by in another way", QByteArray("09:06:00Z\""), QByteArray("09:06:00Z\" passed=\"maybe\""),
        QString::fromUtf8("Line 10: the attribute “passed”"));
    Row("moved what is not in the list", QByteArray("09:00:00Z\""), QByteArray("09:00:00Z\" moved=\"1\""),
        QString::fromUtf8("Line 8: the attribute “moved”"));
    Row("moved what is behind the entries", QByteArray("09:00:00Z\""), QByteArray("09:00:00Z\" moved=\"2\""),
        QString::fromUtf8("Line 8: the attribute “moved”"));
    Row("gone back to no time", QByteArray("09:06:00Z\""), QByteArray("09:06:00Z\" back=\"9:00\""),
        QString::fromUtf8("Line 10: the attribute “back”"));
    Row("since no time", QByteArray("since=\"2026"), QByteArray("since=\"today"),
        QString::fromUtf8("Line 2: the attribute “since”"));
    Row("place behind the entries", QByteArray("\"0 1\""), QByteArray("\"0 2\""),
        QString::fromUtf8("Line 9: the attribute “order”"));
    Row("place that is none", QByteArray("\"0 1\""), QByteArray("\"0 x\""),
        QString::fromUtf8("Line 9: the attribute “order”"));
    Row("two blanks", QByteArray("\"0 1\""), QByteArray("\"0  1\""),
        QString::fromUtf8("Line 9: the attribute “order”"));
    Row("time that is none", QByteArray("2026-03-01T09:06"), QByteArray("yesterday"),
        QString::fromUtf8("Line 10: the attribute “time”"));
    Row("time that can't be written again", QByteArray("2026-03-01T09:06:00Z"),
        QByteArray("9999-12-31T23:59:59-14:00"), QString::fromUtf8("Line 10: the attribute “time”"));
    Row("no time", QByteArray(" time=\"2026-03-01T09:06:00Z\""), QByteArray(),
        QString::fromUtf8("Line 10: the attribute “time”"));
    Row("entry without a name", QByteArray(" name=\"Office\""), QByteArray(),
        QString::fromUtf8("Line 5: the attribute “name”"));
    Row("unknown element", QByteArray("<states>"), QByteArray("<states><note/>"),
        QString::fromUtf8("Line 7: the element “note”"));
    QByteArray states;
    for (int i = 0; i < 62; ++i) {
        states += "\n<state time=\"2026-03-01T09:05:00Z\" order=\"\"/>";
    }
    Row("too many states", QByteArray("<states>"), "<states>" + states,
        QString::fromUtf8("Line 72: there are too many “state” elements"));
}

void HistoryFileTest::FaultIsNamedWithItsLineAndLeftAlone()
{
    QFETCH(QByteArray, found);
    QFETCH(QByteArray, replaced);
    QFETCH(QString, told);
    const QByteArray damaged = ExampleDocument().replace(found, replaced);
    QVERIFY(damaged != ExampleDocument());
    WriteFile(damaged);
    HistoryFile file(UserData());
    ListHistory history;
    history.Record(State(0, "kept"));
    QVERIFY(!file.Load(&history));
    QCOMPARE(file.LastTrouble(), HistoryFile::Damaged);
    QVERIFY2(FileFaultText(file.Fault()).startsWith(told), qPrintable(FileFaultText(file.Fault())));
    QCOMPARE(AsText(history.Entries()), QString("kept"));
    QVERIFY(!file.Load(&history));
    QCOMPARE(m_directory->Read("history/states.xml"), damaged);
}

void HistoryFileTest::EveryTruncationIsNoticed()
{
    const QByteArray document = ExampleDocument();
    // The last byte is a line break, without which the document is whole.
    for (int size = 0; size < document.size() - 1; ++size) {
        ListHistory history;
        QVERIFY2(HistoryFile::Parse(document.left(size), &history).kind != FileFault::None,
                 qPrintable(QString::number(size)));
        QVERIFY(history.IsEmpty());
    }
}

void HistoryFileTest::FileThatCannotBeReadIsTold_data()
{
    QTest::addColumn<QString>("what");
    Row("a directory", "directory");
    Row("a link", "link");
    Row("far too large", "large");
}

void HistoryFileTest::FileThatCannotBeReadIsTold()
{
    QFETCH(QString, what);
    HistoryFile file(UserData());
    QVERIFY(file.Prepare());
    if (what == "directory") {
        QVERIFY(QDir().mkdir(Path()));
    } else if (what == "link") {
        m_directory->Write("elsewhere", ExampleDocument());
        QVERIFY(QFile::link(m_directory->FilePath("elsewhere"), Path()));
    } else {
        m_directory->Write("history/states.xml", "");
        QVERIFY(QFile::resize(Path(), HistoryFile::largestFile + 1));
    }
    ListHistory history;
    QVERIFY(!file.Load(&history));
    QCOMPARE(file.LastTrouble(), HistoryFile::NotReadable);
}

void HistoryFileTest::FileThatCannotBeWrittenIsTold()
{
    // In place of the directory there is a file.
    m_directory->Write("history", "");
    HistoryFile file(UserData());
    QVERIFY(!file.Prepare());
    ListHistory history = Example();
    QVERIFY(!file.Save(&history));
    QCOMPARE(file.LastTrouble(), HistoryFile::NotWritable);
    // What couldn't be saved goes on to be the history.
    QVERIFY(file.Load(&history));
    QVERIFY(IsSame(history, Example()));
}

void HistoryFileTest::FullDiskKeepsTheEarlierHistory()
{
    HistoryFile file(UserData());
    ListHistory history;
    history.Record(State(0, "A"));
    QVERIFY(file.Prepare() && file.Save(&history));
    const QByteArray before = m_directory->Read("history/states.xml");
    for (int i = 0; i < 40; ++i) {
        history.Record(State(1 + i, QString("Network %1").arg(i)));
    }
    const pid_t child = fork();
    if (child == 0) {
        // As with a full disk, no file grows beyond that many bytes.
        std::signal(SIGXFSZ, SIG_IGN);
        const struct rlimit limit = {200, 200};
        setrlimit(RLIMIT_FSIZE, &limit);
        _exit(!file.Save(&history) && file.LastTrouble() == HistoryFile::NotWritable ? 0 : 1);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    QCOMPARE(m_directory->Read("history/states.xml"), before);
    QCOMPARE(QDir(file.Directory()).entryList(QDir::Files), QStringList("states.xml"));
}

void HistoryFileTest::HistoryWithoutAPlaceLivesOn()
{
    HistoryFile file((QString()));
    QVERIFY(!file.Prepare());
    ListHistory history;
    QVERIFY(file.Load(&history));
    history = Example();
    QVERIFY(!file.Save(&history));
    QVERIFY(!file.HasChanged());
    QVERIFY(file.Load(&history));
    QVERIFY(IsSame(history, Example()));
}

void HistoryFileTest::ChangesByOthersAreSeen()
{
    HistoryFile mine(UserData());
    ListHistory history = Example();
    QVERIFY(mine.Prepare() && mine.Save(&history));
    QVERIFY(!mine.HasChanged());
    HistoryFile other(UserData());
    ListHistory others = Example();
    others.GoTo(0, QDateTime());
    QVERIFY(other.Save(&others));
    QVERIFY(mine.HasChanged());
    QVERIFY(mine.Load(&history));
    QCOMPARE(history.Position(), 0);
    QVERIFY(!mine.HasChanged());
}

void HistoryFileTest::UnusableFileIsSetAsideUnderAFreeName()
{
    for (int i = 1; i <= 2; ++i) {
        const QByteArray damaged = "damaged " + QByteArray::number(i);
        WriteFile(damaged);
        HistoryFile file(UserData());
        ListHistory history;
        QVERIFY(!file.Load(&history));
        QCOMPARE(file.SetAside(), file.Directory() + QString("/states-damaged-%1.xml").arg(i));
        QCOMPARE(m_directory->Read(QString("history/states-damaged-%1.xml").arg(i)), damaged);
        QVERIFY(file.Load(&history));
        QCOMPARE(file.LastTrouble(), HistoryFile::NoTrouble);
    }
    QCOMPARE(m_directory->Read("history/states-damaged-1.xml"), QByteArray("damaged 1"));
}

void HistoryFileTest::OldestStatesGoWhereThereIsNoRoom()
{
    HistoryFile file(UserData());
    QVERIFY(file.Prepare());
    ListHistory history;
    for (int i = 0; i < 4; ++i) {
        ListState state = State(i, "x");
        state.entries.first().name = QString(5 * 1024 * 1024, QChar('a' + i));
        history.Record(state);
    }
    QVERIFY(file.Save(&history));
    QVERIFY(history.States().size() < 4);
    QCOMPARE(history.Entries().first().name.at(0), QChar('d'));
    ListHistory loaded;
    QVERIFY(HistoryFile(UserData()).Load(&loaded));
    QVERIFY(IsSame(loaded, history));
}

void HistoryFileTest::SuddenEndLeavesAReadableHistory()
{
    HistoryFile file(UserData());
    QVERIFY(file.Prepare());
    QString names = "x";
    for (int i = 0; i < 200; ++i) {
        names += QString(", Network %1").arg(i);
    }
    int seen = 0;
    int leftBehind = 0;
    for (int round = 0; round < 60; ++round) {
        int saved[2];
        QCOMPARE(pipe(saved), 0);
        const pid_t child = fork();
        if (child == 0) {
            HistoryFile writer(UserData());
            ListHistory history;
            if (!writer.Load(&history)) {
                _exit(1);
            }
            for (int i = 0;; ++i) {
                history.Record(State(i % 60, names));
                writer.Save(&history);
                if (write(saved[1], "", 1) != 1) {
                    _exit(1);
                }
            }
        }
        // Every other end comes after something has been saved, however slow the machine is.
        char sign = 0;
        QVERIFY(round % 2 == 0 || read(saved[0], &sign, 1) == 1);
        usleep(static_cast<useconds_t>(2000 + 137 * round));
        QCOMPARE(kill(child, SIGKILL), 0);
        close(saved[0]);
        close(saved[1]);
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        leftBehind += QFile::exists(Path() + ".new") ? 1 : 0;
        ListHistory history;
        HistoryFile reader(UserData());
        QVERIFY2(reader.Load(&history), qPrintable(FileFaultText(reader.Fault())));
        for (int i = 0; i < history.States().size(); ++i) {
            QCOMPARE(history.States().at(i).entries.size(), 201);
        }
        seen += history.IsEmpty() ? 0 : 1;
        // The next start works, whatever the earlier one left.
        QVERIFY(history.IsEmpty() || reader.Save(&history));
    }
    qDebug("%d of 60 ends found a history, %d left a half-written file beside it", seen, leftBehind);
    QVERIFY(seen > 0);
}

QTEST_MAIN(HistoryFileTest)
#include "tst_historyfile.moc"
