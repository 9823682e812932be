#include "DashboardProcess.h"
#include "Eventually.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <MainWindow.h>
#include <NetworkList.h>
#include <PluginHost.h>
#include <Row.h>
#include <TemporaryDirectory.h>
#include <TraceLog.h>

#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QScopedPointer>
#include <QXmlStreamReader>
#include <QtTest>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

/** The commands for scripts, given to the program itself. */
class CommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void ListOfAMissingFileIsEmpty();
    void ListGivesPositionTypeAndName();
    void NameStaysInItsColumn();
    void ListedEntryCanBeGivenBack_data();
    void ListedEntryCanBeGivenBack();

    void AddAppends();
    void AddTopPutsFirst();
    void AddTopMovesWhatIsListed();
    void TypeFollowsTheLastColon_data();
    void TypeFollowsTheLastColon();
    void NameIsStoredAsGiven_data();
    void NameIsStoredAsGiven();
    void NameIsUtf8InEveryLocale_data();
    void NameIsUtf8InEveryLocale();
    void CommandsAreDoneInOrder();
    void ListedEntryIsNotAddedAgain();
    void SameNameOfAnotherTypeIsAdded();
    void FirstFailureIsTheLastCommand();

    void CheckOfAMissingFileSaysSo();
    void CheckCountsTheEntries();
    void CheckTellsRepeatsByPosition();

    void BadArgumentIsToldInOneLine_data();
    void BadArgumentIsToldInOneLine();
    void DamagedFileIsToldWithItsLine_data();
    void DamagedFileIsToldWithItsLine();
    void DamagedFileIsLeftAlone_data();
    void DamagedFileIsLeftAlone();
    void ListGivesWhatADamagedFileStillHas();
    void FileThatCannotBeOpenedIsTold_data();
    void FileThatCannotBeOpenedIsTold();
    void DirectoryInTheFilesPlaceIsTold_data();
    void DirectoryInTheFilesPlaceIsTold();
    void PipeInTheFilesPlaceIsTold_data();
    void PipeInTheFilesPlaceIsTold();
    void MissingDataDirectoryIsTold_data();
    void MissingDataDirectoryIsTold();
    void PluginThatIsNotToBeHadIsTold_data();
    void PluginThatIsNotToBeHadIsTold();
    void ChangeWithoutEffectIsTold_data();
    void ChangeWithoutEffectIsTold();
    void FullDiskLeavesTheListAsItWas_data();
    void FullDiskLeavesTheListAsItWas();
    void ReadOnlyDirectoryIsTold();
    void OutputThatCannotBeWrittenIsTold_data();
    void OutputThatCannotBeWrittenIsTold();

    void NoDisplayIsNeeded_data();
    void NoDisplayIsNeeded();
    void NothingElseIsPrinted();
    void MessagesAreEnglishEverywhere();
    void OtherOptionsGoOnToWork();

    void CommandsOfManyProcessesAreAllDone();
    void CommandWaitsForAnother();
    void CommandGivesUpOnAnother();
    void WindowFollowsACommand();

private:
    QStringList Environment() const { return QStringList("XDG_DATA_HOME=" + m_directory->Path()); }
    Outcome Run(const QStringList &arguments) const { return RunDashboard(arguments, Environment()); }
    QString DataDirectory() const { return m_directory->FilePath("priority-dashboard"); }
    QString ListPath() const { return DataDirectory() + "/Priority.xml"; }
    QByteArray File() const { return m_directory->Read("priority-dashboard/Priority.xml"); }
    void Write(const QByteArray &bytes) const;
    void WriteList(const QStringList &entries) const;
    QStringList Listed() const;

    QScopedPointer<TemporaryDirectory> m_directory;
};

namespace
{

/** Root is let through everywhere; this is root without that right. */
QStringList WithoutRootRights()
{
    return geteuid() == 0 ? QStringList() << "setpriv"
                                          << "--bounding-set=-dac_override,-dac_read_search"
                          : QStringList("env");
}

const char *const damagedList = "<zeltdoc>\n<profile>\n<item name=\"Home\" type=\"1\"/>\n</zeltdoc>\n";

} // namespace

void CommandsTest::init()
{
    m_directory.reset(new TemporaryDirectory);
}

void CommandsTest::Write(const QByteArray &bytes) const
{
    QVERIFY(QDir().mkpath(DataDirectory()));
    m_directory->Write("priority-dashboard/Priority.xml", bytes);
}

/** Entries as "name/type". */
void CommandsTest::WriteList(const QStringList &entries) const
{
    QByteArray items;
    for (int i = 0; i < entries.size(); ++i) {
        items += "<item name=\"" + entries.at(i).section('/', 0, 0).toUtf8() + "\" type=\"" +
                 entries.at(i).section('/', 1).toUtf8() + "\"/>";
    }
    Write("<zeltdoc><profile>" + items + "</profile></zeltdoc>");
}

/** The lines of --list. */
QStringList CommandsTest::Listed() const
{
    const Outcome outcome = Run(QStringList("--list"));
    if (outcome.status != 0 || !outcome.err.isEmpty()) {
        return QStringList(outcome.err);
    }
    QStringList lines = outcome.out.split('\n');
    lines.removeLast();
    return lines;
}

void CommandsTest::ListOfAMissingFileIsEmpty()
{
    const Outcome outcome = Run(QStringList("--list"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, QString());
    QVERIFY(!QFile::exists(ListPath()));
}

void CommandsTest::ListGivesPositionTypeAndName()
{
    WriteList(QStringList() << "Home/1"
                            << "Mobile broadband/2"
                            << "No type/"
                            << "/1"
                            << "Odd/x y");
    const Outcome outcome = Run(QStringList("--list"));
    QCOMPARE(outcome.out, QString("1\t1\tHome\n2\t2\tMobile broadband\n3\t\tNo type\n4\t1\t\n5\tx y\tOdd\n"));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
}

void CommandsTest::NameStaysInItsColumn()
{
    Write("<item name=\"a&#9;b&#10;c\\d\" type=\"1&#9;2\"/>");
    QCOMPARE(Run(QStringList("--list")).out, QString("1\t1\\t2\ta\\tb\\nc\\\\d\n"));
}

void CommandsTest::ListedEntryCanBeGivenBack_data()
{
    QTest::addColumn<QString>("entry");
    Row("Wi-Fi", "Office/1");
    Row("mobile", "Phone/2");
    Row("mobile of another type", "Phone/0");
    Row("colons", "a:b:2/1");
    Row("backslash", "a\\tb/1");
    Row("tab", "a&#9;b/1");
    Row("leading dashes", "--list/1");
    Row("blanks around", "  a  b  /2");
}

/** As the manual tells scripts to do it. */
void CommandsTest::ListedEntryCanBeGivenBack()
{
    QFETCH(QString, entry);
    WriteList(QStringList() << "Home/1" << entry);
    const QByteArray before = File();
    const Outcome outcome = RunProgram("sh",
                                       QStringList() << "-c"
                                                     << "tab=$(printf '\\t')\n"
                                                        "line=$(\"$0\" --list | sed -n 2p)\n"
                                                        "rest=${line#*\"$tab\"}\n"
                                                        "type=${rest%%\"$tab\"*}\n"
                                                        "name=$(printf '%b' \"${rest#*\"$tab\"}\")\n"
                                                        "\"$0\" --add-top=\"$name:$type\" --list\n"
                                                     << BUILD_DIRECTORY "/bin/priority-dashboard",
                                       Environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(static_cast<int>(outcome.out.count('\n')), 2);
    QVERIFY2(outcome.out.endsWith("\n2\t1\tHome\n"), qPrintable(outcome.out));
}

void CommandsTest::AddAppends()
{
    WriteList(QStringList("Home/1"));
    const Outcome outcome = Run(QStringList() << "--add"
                                              << "Office");
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out + outcome.err, QString());
    QCOMPARE(File(), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                "<zeltdoc type=\"profile\">\n"
                                "    <profile>\n"
                                "        <item name=\"Home\" type=\"1\"/>\n"
                                "        <item name=\"Office\" type=\"1\"/>\n"
                                "    </profile>\n"
                                "</zeltdoc>\n"));
}

void CommandsTest::AddTopPutsFirst()
{
    WriteList(QStringList("Home/1"));
    const Outcome outcome = Run(QStringList("--add-top=Office"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out + outcome.err, QString());
    QCOMPARE(Listed(), QStringList() << "1\t1\tOffice"
                                     << "2\t1\tHome");
}

void CommandsTest::AddTopMovesWhatIsListed()
{
    WriteList(QStringList() << "Home/1"
                            << "Office/1"
                            << "Phone/2");
    QCOMPARE(Run(QStringList("--add-top=Phone:2")).status, 0);
    QCOMPARE(Listed(), QStringList() << "1\t2\tPhone"
                                     << "2\t1\tHome"
                                     << "3\t1\tOffice");
    QCOMPARE(Run(QStringList("--add-top=Phone:2")).status, 0);
    QCOMPARE(static_cast<int>(Listed().size()), 3);
}

void CommandsTest::TypeFollowsTheLastColon_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("listed");
    Row("none", "Home", "1\tHome");
    Row("wifi", "Home:wifi", "1\tHome");
    Row("1", "Home:1", "1\tHome");
    Row("mobile", "Phone:mobile", "2\tPhone");
    Row("2", "Phone:2", "2\tPhone");
    Row("another digit", "Phone:0", "0\tPhone");
    Row("no type behind the colon", "Home:net", "1\tHome:net");
    Row("capitals", "Home:WIFI", "1\tHome:WIFI");
    Row("two digits", "00:11:22:33:44:55", "1\t00:11:22:33:44:55");
    Row("sign", "Home:-1", "1\tHome:-1");
    Row("digit of another script", QString::fromUtf8("Home:١"), QString::fromUtf8("1\tHome:١"));
    Row("blank behind the colon", "Home: 2", "1\tHome: 2");
    Row("nothing behind the colon", "Home:", "1\tHome:");
    Row("only a colon", ":", "1\t:");
    Row("colons and a type", "a:b:mobile", "2\ta:b");
    Row("a type in the name", "a:2:wifi", "1\ta:2");
    Row("two colons and a type", "a::2", "2\ta:");
    Row("name that is a type", "wifi", "1\twifi");
    Row("equals sign", "a=b", "1\ta=b");
    Row("dash", "-x", "1\t-x");
}

void CommandsTest::TypeFollowsTheLastColon()
{
    QFETCH(QString, given);
    QFETCH(QString, listed);
    const Outcome outcome = Run(QStringList() << "--add" << given << "--list");
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, "1\t" + listed + '\n');
}

void CommandsTest::NameIsStoredAsGiven_data()
{
    QTest::addColumn<QString>("name");
    Row("markup", "<b>&amp;\"'");
    Row("tab", "a\tb");
    Row("line feed", "a\nb");
    Row("carriage return", "a\rb");
    Row("blanks", "  a  b  ");
    Row("one blank", " ");
    Row("percent signs", "%1 %s %n %2");
    Row("accents", QString::fromUtf8("Café"));
    Row("right to left", QString::fromUtf8("شبكة المنزل"));
    Row("beyond the basic plane", QString::fromUtf8("net 😀"));
    Row("replacement character", QString::fromUtf8("a\xef\xbf\xbd"));
    Row("delete", QString("a") + QChar(0x7f));
    Row("byte order mark inside", QString::fromUtf8("a\xef\xbb\xbf"));
    Row("long", QString(100000, 'x'));
    Row("an option's name", "--list");
}

void CommandsTest::NameIsStoredAsGiven()
{
    QFETCH(QString, name);
    QCOMPARE(Run(QStringList("--add=" + name)).err, QString());
    QStringList stored;
    QXmlStreamReader reader(File());
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("item")) {
            stored.append(reader.attributes().value(QLatin1String("name")).toString());
        }
    }
    QVERIFY(!reader.hasError());
    QCOMPARE(stored, QStringList(name));
}

void CommandsTest::NameIsUtf8InEveryLocale_data()
{
    QTest::addColumn<QString>("locale");
    Row("UTF-8", "C.UTF-8");
    Row("C", "C");
    Row("unknown", "xx_XX.ISO-8859-1");
}

void CommandsTest::NameIsUtf8InEveryLocale()
{
    QFETCH(QString, locale);
    const QString name = QString::fromUtf8("Café 網 😀");
    const Outcome outcome =
        RunDashboard(QStringList() << "--add" << name << "--list", Environment() << "LC_ALL=" + locale);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, "1\t1\t" + name + '\n');
    QVERIFY(File().contains(name.toUtf8()));
}

void CommandsTest::CommandsAreDoneInOrder()
{
    const Outcome outcome = Run(QStringList() << "--add"
                                              << "A"
                                              << "--list"
                                              << "--add-top"
                                              << "B"
                                              << "--add=C:mobile"
                                              << "--add-top=A"
                                              << "--list"
                                              << "--check");
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.out.startsWith("1\t1\tA\n"
                                    "1\t1\tA\n2\t1\tB\n3\t2\tC\n"
                                    "file\t"),
             qPrintable(outcome.out));
}

void CommandsTest::ListedEntryIsNotAddedAgain()
{
    WriteList(QStringList() << "Home/1"
                            << "Office/1");
    const QByteArray before = File();
    const Outcome outcome = Run(QStringList() << "--add"
                                              << "Office:wifi");
    QCOMPARE(outcome.status, 4);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err,
             QString("priority-dashboard: \"Office\" of type 1 is listed already, at position 2\n"));
    QCOMPARE(File(), before);
}

void CommandsTest::SameNameOfAnotherTypeIsAdded()
{
    WriteList(QStringList() << "Home/1");
    QCOMPARE(Run(QStringList("--add=Home:mobile")).status, 0);
    QCOMPARE(Run(QStringList("--add=home")).status, 0);
    QCOMPARE(static_cast<int>(Listed().size()), 3);
}

void CommandsTest::FirstFailureIsTheLastCommand()
{
    const Outcome outcome = Run(QStringList() << "--add=A"
                                              << "--add=A"
                                              << "--add=B"
                                              << "--list");
    QCOMPARE(outcome.status, 4);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(Listed(), QStringList("1\t1\tA"));
}

void CommandsTest::CheckOfAMissingFileSaysSo()
{
    const Outcome outcome = Run(QStringList("--check"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QString("file\t%1\nstate\tdoes not exist yet\nentries\t0\n").arg(ListPath()));
    QCOMPARE(outcome.err, QString());
    QVERIFY(!QFile::exists(ListPath()));
}

void CommandsTest::CheckCountsTheEntries()
{
    WriteList(QStringList() << "Home/1"
                            << "home/1"
                            << "Home/2");
    const QByteArray before = File();
    const Outcome outcome = Run(QStringList("--check"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QString("file\t%1\nstate\treadable\nentries\t3\n").arg(ListPath()));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(File(), before);
}

void CommandsTest::CheckTellsRepeatsByPosition()
{
    WriteList(QStringList() << "A/1"
                            << "B/1"
                            << "A/1"
                            << "A/2"
                            << "B/1"
                            << "A/1"
                            << "C/1");
    const Outcome outcome = Run(QStringList("--check"));
    QCOMPARE(outcome.status, 9);
    QCOMPARE(outcome.out, QString("file\t%1\nstate\treadable\nentries\t7\n"
                                  "duplicate\t1,3,6\t1\tA\nduplicate\t2,5\t1\tB\n")
                              .arg(ListPath()));
    QCOMPARE(outcome.err,
             QString("priority-dashboard: %1: entries listed more than once: 2\n").arg(ListPath()));
}

void CommandsTest::BadArgumentIsToldInOneLine_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("told");
    Row("no name", QStringList("--add"), "--add needs a value");
    Row("no name before another option",
        (QStringList() << "--add"
                       << "--list"),
        "--add needs a value");
    Row("empty name", QStringList("--add="), "--add needs a value");
    Row("empty argument",
        (QStringList() << "--add-top"
                       << ""),
        "--add-top needs a value");
    Row("type without a name", QStringList("--add=:wifi"), "--add needs a name");
    Row("control character", QStringList("--add=a\x01z"), "\"a\\0001z\"");
    Row("escape character", QStringList("--add-top=a\x1bz"), "\"a\\0033z\"");
    Row("no character", QStringList("--add=a" + QString(QChar(0xfffe))), "can't hold");
    Row("value for --list", QStringList("--list=1"), "--list takes no value");
    Row("value for --check", QStringList("--check="), "--check takes no value");
    Row("value behind --list",
        (QStringList() << "--list"
                       << "Home"),
        "\"Home\"");
    Row("shortened option", QStringList("--ad=Home"), "--ad;");
    Row("option with a line feed", QStringList("--a\nb"), "--a\\nb");
    Row("lone dashes", QStringList("--"), "no option --;");
    Row("behind a good command",
        (QStringList() << "--add=Home"
                       << "--fast"),
        "--fast");
    Row("unknown language",
        (QStringList() << "--list"
                       << "--language=tlh"),
        "\"tlh\"");
    Row("library path that is not there",
        (QStringList() << "--list"
                       << "--library-path=/absent/of course"),
        "/absent/of course");
}

void CommandsTest::BadArgumentIsToldInOneLine()
{
    QFETCH(QStringList, given);
    QFETCH(QString, told);
    const Outcome outcome = Run(given);
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.startsWith("priority-dashboard: "), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(told), qPrintable(outcome.err));
    QCOMPARE(static_cast<int>(outcome.err.count('\n')), 1);
    QVERIFY(outcome.err.endsWith('\n'));
    QVERIFY(!QFile::exists(ListPath()));
}

void CommandsTest::DamagedFileIsToldWithItsLine_data()
{
    QTest::addColumn<QString>("command");
    Row("list", "--list");
    Row("check", "--check");
    Row("add", "--add=Office");
    Row("add on top", "--add-top=Office");
}

void CommandsTest::DamagedFileIsToldWithItsLine()
{
    QFETCH(QString, command);
    Write(damagedList);
    const Outcome outcome = Run(QStringList(command));
    QCOMPARE(outcome.status, 6);
    const QString begin = QString("priority-dashboard: %1:4: ").arg(ListPath());
    QVERIFY2(outcome.err.startsWith(begin) && outcome.err.size() > begin.size() + 5, qPrintable(outcome.err));
    QCOMPARE(static_cast<int>(outcome.err.count('\n')), 1);
}

void CommandsTest::DamagedFileIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    Row("cut off", QByteArray("<zeltdoc>\n<profile>\n<item name=\"Home\" type=\"1\"/>\n"));
    Row("wrong end", QByteArray(damagedList));
    Row("empty", QByteArray(""));
    Row("no XML", QByteArray("Home\nOffice\n"));
    Row("binary", QByteArray("\x00\xff\xfe\x01", 4));
    Row("attribute twice", QByteArray("<item name=\"a\" name=\"b\"/>"));
}

void CommandsTest::DamagedFileIsLeftAlone()
{
    QFETCH(QByteArray, bytes);
    Write(bytes);
    const QStringList commands = QStringList() << "--list"
                                               << "--check"
                                               << "--add=Office"
                                               << "--add-top=Office";
    for (int i = 0; i < commands.size(); ++i) {
        QCOMPARE(Run(QStringList(commands.at(i))).status, 6);
        QCOMPARE(File(), bytes);
    }
}

void CommandsTest::ListGivesWhatADamagedFileStillHas()
{
    Write(damagedList);
    QCOMPARE(Run(QStringList("--list")).out, QString("1\t1\tHome\n"));
    QCOMPARE(Run(QStringList("--check")).out,
             QString("file\t%1\nstate\tdamaged\nentries\t1\n").arg(ListPath()));
}

void CommandsTest::FileThatCannotBeOpenedIsTold_data()
{
    DamagedFileIsToldWithItsLine_data();
}

void CommandsTest::FileThatCannotBeOpenedIsTold()
{
    QFETCH(QString, command);
    WriteList(QStringList("Home/1"));
    const QByteArray before = File();
    QCOMPARE(chmod(QFile::encodeName(ListPath()).constData(), 0), 0);
    QStringList start = WithoutRootRights();
    const QString program = start.takeFirst();
    start << BUILD_DIRECTORY "/bin/priority-dashboard" << command;
    const Outcome outcome = RunProgram(program, start, Environment());
    QCOMPARE(outcome.status, 7);
    QCOMPARE(outcome.err, QString("priority-dashboard: %1 can't be opened\n").arg(ListPath()));
    QCOMPARE(chmod(QFile::encodeName(ListPath()).constData(), 0600), 0);
    QCOMPARE(File(), before);
}

void CommandsTest::DirectoryInTheFilesPlaceIsTold_data()
{
    DamagedFileIsToldWithItsLine_data();
}

void CommandsTest::DirectoryInTheFilesPlaceIsTold()
{
    QFETCH(QString, command);
    QVERIFY(QDir().mkpath(ListPath()));
    const Outcome outcome = Run(QStringList(command));
    QCOMPARE(outcome.status, 7);
    QCOMPARE(outcome.err, QString("priority-dashboard: %1 can't be opened\n").arg(ListPath()));
    QVERIFY(QDir(ListPath()).exists());
}

void CommandsTest::PipeInTheFilesPlaceIsTold_data()
{
    DamagedFileIsToldWithItsLine_data();
}

/** Nobody ever writes into the pipe; nobody waits for it either. */
void CommandsTest::PipeInTheFilesPlaceIsTold()
{
    QFETCH(QString, command);
    QVERIFY(QDir().mkpath(DataDirectory()));
    QCOMPARE(mkfifo(QFile::encodeName(ListPath()).constData(), 0600), 0);
    const Outcome outcome = Run(QStringList(command));
    QCOMPARE(outcome.status, 7);
    QCOMPARE(outcome.err, QString("priority-dashboard: %1 can't be opened\n").arg(ListPath()));
    struct stat pipe;
    QCOMPARE(stat(QFile::encodeName(ListPath()).constData(), &pipe), 0);
    QVERIFY(S_ISFIFO(pipe.st_mode));
}

void CommandsTest::MissingDataDirectoryIsTold_data()
{
    QTest::addColumn<QStringList>("environment");
    Row("a file in its place", QStringList("XDG_DATA_HOME=/dev/null"));
    Row("no home", (QStringList() << "XDG_DATA_HOME="
                                  << "HOME="));
}

void CommandsTest::MissingDataDirectoryIsTold()
{
    QFETCH(QStringList, environment);
    const QStringList commands = QStringList() << "--list"
                                               << "--check"
                                               << "--add=Home";
    for (int i = 0; i < commands.size(); ++i) {
        const Outcome outcome = RunDashboard(QStringList(commands.at(i)), environment);
        QCOMPARE(outcome.status, 7);
        QCOMPARE(outcome.out, QString());
        QCOMPARE(outcome.err,
                 QString("priority-dashboard: there is no directory for your data and none can be made\n"));
    }
    QVERIFY(!QFile::exists("Priority.xml"));
}

void CommandsTest::PluginThatIsNotToBeHadIsTold_data()
{
    QTest::addColumn<QString>("fixture");
    QTest::addColumn<QString>("told");
    Row("missing", "", "was not found");
    Row("no library", "../../../../Makefile", "libPriorityPlugin.so");
    Row("no verification", "NoVerification", "libPriorityPlugin.so");
    Row("wrong verification", "WrongVerification", "version=4.6.2");
    Row("no entry point", "NoEntryPoint", "libPriorityPlugin.so");
    Row("no instance", "NullInstance", "libPriorityPlugin.so");
    Row("no plug-in", "NotAPlugin", "libPriorityPlugin.so");
    Row("Init fails", "InitFails", "libPriorityPlugin.so");
    Row("no service", "QueryFails", "offers no list");
    Row("null service", "QueryNull", "offers no list");
    Row("another service", "Working", "offers no list");
}

void CommandsTest::PluginThatIsNotToBeHadIsTold()
{
    QFETCH(QString, fixture);
    QFETCH(QString, told);
    const QString folder = m_directory->FilePath("library/plugins/PriorityPlugin");
    QVERIFY(QDir().mkpath(folder));
    if (fixture.endsWith("Makefile")) {
        m_directory->Write("library/plugins/PriorityPlugin/libPriorityPlugin.so", "all:\n");
    } else if (!fixture.isEmpty()) {
        QVERIFY(QFile::link(QString(BUILD_DIRECTORY "/tests/fixtures/plugins/%1/lib%1.so").arg(fixture),
                            folder + "/libPriorityPlugin.so"));
    }
    WriteList(QStringList("Home/1"));
    const QByteArray before = File();
    const QStringList commands = QStringList() << "--list"
                                               << "--check"
                                               << "--add=Office"
                                               << "--add-top=Office";
    for (int i = 0; i < commands.size(); ++i) {
        const Outcome outcome =
            Run(QStringList() << commands.at(i) << "--library-path=" + m_directory->FilePath("library"));
        QCOMPARE(outcome.status, 5);
        QCOMPARE(outcome.out, QString());
        QVERIFY2(outcome.err.contains(told), qPrintable(outcome.err));
        QCOMPARE(static_cast<int>(outcome.err.count('\n')), 1);
    }
    QCOMPARE(File(), before);
}

void CommandsTest::ChangeWithoutEffectIsTold_data()
{
    QTest::addColumn<QString>("command");
    Row("add", "--add=Office");
    Row("add on top", "--add-top=Office");
}

/** The plug-in takes the entry and does nothing. */
void CommandsTest::ChangeWithoutEffectIsTold()
{
    QFETCH(QString, command);
    const Outcome outcome =
        Run(QStringList() << command << "--library-path=" BUILD_DIRECTORY "/tests/fixtures/Idle");
    QCOMPARE(outcome.status, 8);
    QCOMPARE(outcome.err,
             QString("priority-dashboard: %1 can't be written; the list is as it was\n").arg(ListPath()));
}

void CommandsTest::FullDiskLeavesTheListAsItWas_data()
{
    ChangeWithoutEffectIsTold_data();
}

void CommandsTest::FullDiskLeavesTheListAsItWas()
{
    QFETCH(QString, command);
    WriteList(QStringList() << "Home/1"
                            << "Office/2");
    const QByteArray before = File();
    // A limit of one block for every file, in place of a disk that fills up.
    const QString longName(5000, 'x');
    const Outcome outcome =
        RunProgram("sh",
                   QStringList() << "-c"
                                 << "trap '' XFSZ; ulimit -f 1; exec \"$0\" \"$@\""
                                 << BUILD_DIRECTORY "/bin/priority-dashboard" << command + longName,
                   Environment());
    QCOMPARE(outcome.status, 8);
    QCOMPARE(outcome.err,
             QString("priority-dashboard: %1 can't be written; the list is as it was\n").arg(ListPath()));
    QCOMPARE(File(), before);
}

void CommandsTest::ReadOnlyDirectoryIsTold()
{
    QVERIFY(QDir().mkpath(DataDirectory()));
    QCOMPARE(chmod(QFile::encodeName(DataDirectory()).constData(), 0555), 0);
    QStringList start = WithoutRootRights();
    const QString program = start.takeFirst();
    start << BUILD_DIRECTORY "/bin/priority-dashboard";

    const Outcome added = RunProgram(program, QStringList(start) << "--add=Home", Environment());
    QCOMPARE(added.err,
             QString("priority-dashboard: %1 can't be written; the list is as it was\n").arg(ListPath()));
    QCOMPARE(added.status, 8);
    const Outcome listed = RunProgram(program, QStringList(start) << "--list", Environment());
    QCOMPARE(listed.err, QString());
    QCOMPARE(listed.status, 0);
    QVERIFY(QDir(DataDirectory()).entryList(QDir::Files).isEmpty());
    QCOMPARE(chmod(QFile::encodeName(DataDirectory()).constData(), 0755), 0);
}

void CommandsTest::OutputThatCannotBeWrittenIsTold_data()
{
    QTest::addColumn<QString>("command");
    Row("list", "--list");
    Row("check", "--check");
}

void CommandsTest::OutputThatCannotBeWrittenIsTold()
{
    QFETCH(QString, command);
    WriteList(QStringList("Home/1"));
    const Outcome outcome = RunProgram("sh",
                                       QStringList() << "-c"
                                                     << "\"$0\" \"$@\" >/dev/full"
                                                     << BUILD_DIRECTORY "/bin/priority-dashboard" << command,
                                       Environment());
    QCOMPARE(outcome.status, 8);
    QCOMPARE(outcome.err, QString("priority-dashboard: the standard output can't be written\n"));
}

void CommandsTest::NoDisplayIsNeeded_data()
{
    QTest::addColumn<QStringList>("environment");
    Row("none", (QStringList() << "QT_QPA_PLATFORM="
                               << "DISPLAY="));
    Row("one that is gone", (QStringList() << "QT_QPA_PLATFORM="
                                           << "DISPLAY=:4711"));
    Row("a desktop's choice", (QStringList() << "QT_QPA_PLATFORM=xcb"
                                             << "DISPLAY="));
}

void CommandsTest::NoDisplayIsNeeded()
{
    QFETCH(QStringList, environment);
    const Outcome outcome = RunDashboard(QStringList() << "--add=Home"
                                                       << "--list",
                                         Environment() << "WAYLAND_DISPLAY=" << environment);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QString("1\t1\tHome\n"));
}

void CommandsTest::NothingElseIsPrinted()
{
    WriteList(QStringList("Home/1"));
    const Outcome outcome =
        RunProgram("env",
                   QStringList() << "-i"
                                 << "XDG_DATA_HOME=" + m_directory->Path()
                                 << "LSAN_OPTIONS=" + QString::fromLocal8Bit(qgetenv("LSAN_OPTIONS"))
                                 << BUILD_DIRECTORY "/bin/priority-dashboard"
                                 << "--add-top=Office"
                                 << "--list",
                   QStringList());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString("1\t1\tOffice\n2\t1\tHome\n"));
    QVERIFY(m_directory->Read("priority-dashboard/dashboard.log").contains("AddTop: Entered"));
}

void CommandsTest::MessagesAreEnglishEverywhere()
{
    QVERIFY(QDir().mkpath(DataDirectory()));
    m_directory->Write("priority-dashboard/dashboard.ini", "[General]\nlanguage=ar\n");
    const Outcome outcome = RunDashboard(QStringList() << "--list"
                                                       << "--library-path=" BUILD_DIRECTORY "/tests/fixtures",
                                         Environment() << "LANG=ar_EG.UTF-8"
                                                       << "LC_ALL=ar_EG.UTF-8");
    QCOMPARE(outcome.status, 5);
    QVERIFY2(outcome.err.contains("was not found"), qPrintable(outcome.err));
}

void CommandsTest::OtherOptionsGoOnToWork()
{
    const Outcome outcome = Run(QStringList() << "--library-path" << BUILD_DIRECTORY << "--add=Home"
                                              << "--language"
                                              << "ar"
                                              << "--list");
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QString("1\t1\tHome\n"));
}

void CommandsTest::CommandsOfManyProcessesAreAllDone()
{
    const int processCount = 4;
    const int entryCount = 6;
    QList<QProcess *> processes;
    for (int i = 0; i < processCount; ++i) {
        QStringList arguments;
        for (int j = 0; j < entryCount; ++j) {
            arguments << QString(j % 2 ? "--add=%1 of %2" : "--add-top=%1 of %2").arg(j).arg(i);
        }
        processes.append(new QProcess(this));
        ChangeEnvironment(processes.last(), Environment());
        processes.last()->start(BUILD_DIRECTORY "/bin/priority-dashboard", arguments);
    }
    for (int i = 0; i < processCount; ++i) {
        const Outcome outcome = OutcomeOf(processes.at(i));
        QCOMPARE(outcome.err, QString());
        QCOMPARE(outcome.status, 0);
    }
    qDeleteAll(processes);
    QStringList names;
    const QStringList lines = Listed();
    for (int i = 0; i < lines.size(); ++i) {
        names.append(lines.at(i).section('\t', 2));
    }
    QCOMPARE(names.removeDuplicates(), 0);
    QCOMPARE(static_cast<int>(names.size()), processCount * entryCount);
}

void CommandsTest::CommandWaitsForAnother()
{
    WriteList(QStringList("Home/1"));
    const QByteArray before = File();
    const int other =
        open(QFile::encodeName(DataDirectory()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(flock(other, LOCK_EX), 0);

    QProcess process;
    ChangeEnvironment(&process, Environment());
    process.start(BUILD_DIRECTORY "/bin/priority-dashboard", QStringList("--add=Office"));
    // Until it has told that it is there; then it has to wait, however slow the machine is.
    QVERIFY(Eventually(
        [this]() { return m_directory->Read("priority-dashboard/dashboard.log").contains("Init: called"); }));
    QVERIFY(!process.waitForFinished(200));
    QCOMPARE(File(), before);

    close(other);
    QCOMPARE(OutcomeOf(&process).status, 0);
    QCOMPARE(static_cast<int>(Listed().size()), 2);
}

void CommandsTest::CommandGivesUpOnAnother()
{
    WriteList(QStringList("Home/1"));
    const QByteArray before = File();
    const int other =
        open(QFile::encodeName(DataDirectory()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(flock(other, LOCK_EX), 0);
    const Outcome outcome = Run(QStringList("--add=Office"));
    close(other);
    QCOMPARE(outcome.status, 10);
    QCOMPARE(outcome.err,
             QString("priority-dashboard: another command has been busy with the list for too long\n"));
    QCOMPARE(File(), before);
}

void CommandsTest::WindowFollowsACommand()
{
    WriteList(QStringList("Home/1"));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_directory->Path()));
    TraceLog log(m_directory->FilePath("window.log"));
    HostControl::SetPluginLibraryPath(BUILD_DIRECTORY);
    HostControl::SetLanguageDirectory(BUILD_DIRECTORY "/share/priority-dashboard/languages");
    DashboardLanguage::Apply("en");
    PluginHost plugins(BUILD_DIRECTORY, PluginHost::KnownPlugins(WlanStored));
    plugins.Load();
    DashboardLanguage language(nullptr);
    MainWindow window(&plugins, &language, &log);
    window.show();
    const NetworkList *list = window.findChild<NetworkList *>();
    QCOMPARE(list->Listed().size(), 1);

    QCOMPARE(Run(QStringList() << "--add=Office"
                               << "--add-top=Campus")
                 .status,
             0);
    QVERIFY(Eventually([list]() { return list->Listed().size() == 3; }));
    QCOMPARE(list->item(0)->text(), QString("Campus"));
    QCOMPARE(list->item(2)->text(), QString("Office"));
}

QTEST_MAIN(CommandsTest)
#include "tst_commands.moc"
