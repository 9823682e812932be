#include <Arguments.h>
#include <Row.h>

#include <QtTest>

class ArgumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void NothingGivenRuns();
    void ValuesAreTaken_data();
    void ValuesAreTaken();
    void LastValueCounts();
    void CommandsAreTakenInOrder();
    void NothingIsDoneWhenSomethingIsRefused();
    void ArgumentsAreUtf8OrTheLocales();
    void RefusalNamesWhatIsWrong_data();
    void RefusalNamesWhatIsWrong();
    void WlanIsChosen_data();
    void WlanIsChosen();
    void WlanIsRefused_data();
    void WlanIsRefused();
    void HelpCountsBeforeWhatFollows();
    void HelpNamesEveryOption_data();
    void HelpNamesEveryOption();
};

void ArgumentsTest::NothingGivenRuns()
{
    const Arguments arguments = Arguments::Parse(QStringList());
    QCOMPARE(arguments.action, Arguments::Run);
    QVERIFY(arguments.language.isNull() && arguments.pluginLibraryPath.isNull());
    QVERIFY(arguments.commands.isEmpty());
}

void ArgumentsTest::ValuesAreTaken_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("libraryPath");
    Row("apart",
        (QStringList() << "--language"
                       << "ar"),
        "ar", "");
    Row("with equals sign", (QStringList() << "--library-path=/tmp/a b"), "", "/tmp/a b");
    Row("both",
        (QStringList() << "--library-path"
                       << "x=y"
                       << "--language=he"),
        "he", "x=y");
    Row("value with equals sign", (QStringList() << "--library-path=a=b"), "", "a=b");
    Row("value with a dash",
        (QStringList() << "--library-path"
                       << "-d"),
        "", "-d");
}

void ArgumentsTest::ValuesAreTaken()
{
    QFETCH(QStringList, given);
    const Arguments arguments = Arguments::Parse(given);
    QCOMPARE(arguments.action, Arguments::Run);
    QTEST(arguments.language, "language");
    QTEST(arguments.pluginLibraryPath, "libraryPath");
}

void ArgumentsTest::LastValueCounts()
{
    const Arguments arguments = Arguments::Parse(QStringList() << "--language=ar"
                                                               << "--language=he");
    QCOMPARE(arguments.language, QString("he"));
}

void ArgumentsTest::CommandsAreTakenInOrder()
{
    const Arguments arguments = Arguments::Parse(QStringList() << "--list"
                                                               << "--add"
                                                               << "Home"
                                                               << "--library-path=x"
                                                               << "--add-top=Phone:mobile"
                                                               << "--check");
    QCOMPARE(arguments.action, Arguments::Run);
    QCOMPARE(arguments.pluginLibraryPath, QString("x"));
    QCOMPARE(static_cast<int>(arguments.commands.size()), 4);
    QCOMPARE(arguments.commands.at(0).kind, Command::List);
    QCOMPARE(arguments.commands.at(1).kind, Command::Add);
    QCOMPARE(arguments.commands.at(1).entry.name, QString("Home"));
    QCOMPARE(arguments.commands.at(1).entry.type, QString("1"));
    QCOMPARE(arguments.commands.at(2).kind, Command::AddTop);
    QCOMPARE(arguments.commands.at(2).entry.name, QString("Phone"));
    QCOMPARE(arguments.commands.at(2).entry.type, QString("2"));
    QCOMPARE(arguments.commands.at(3).kind, Command::Check);
}

void ArgumentsTest::NothingIsDoneWhenSomethingIsRefused()
{
    const Arguments arguments = Arguments::Parse(QStringList() << "--add=Home"
                                                               << "--fast");
    QCOMPARE(arguments.action, Arguments::Refuse);
    QVERIFY(arguments.commands.isEmpty());
}

void ArgumentsTest::ArgumentsAreUtf8OrTheLocales()
{
    const char *const given[] = {"dashboard", "--add", "Caf\xc3\xa9"};
    const Arguments arguments = Arguments::Read(3, given);
    QCOMPARE(static_cast<int>(arguments.commands.size()), 1);
    QCOMPARE(arguments.commands.first().entry.name, QString::fromUtf8("Caf\xc3\xa9"));

    const char *const noText[] = {"dashboard", "--add", "Caf\xe9\xff"};
    const Arguments refused = Arguments::Read(3, noText);
    QCOMPARE(refused.action, Arguments::Refuse);
    QVERIFY2(refused.problem.startsWith("argument 2 is no text"), qPrintable(refused.problem));
}

void ArgumentsTest::RefusalNamesWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("named");
    Row("unknown", (QStringList() << "--fast"), "--fast");
    Row("unknown part", QStringList("--show=list"), "--show is connect or settings");
    Row("part of no window", QStringList({"--show=connect", "--list"}), "--show opens a window");
    Row("no place", QStringList({"--move", "Home"}), "--move needs a place");
    Row("place 0", QStringList({"--move", "Home", "0"}), "not \"0\"");
    Row("place below the first", QStringList({"--move", "Home", "-1"}), "not \"-1\"");
    Row("place with more", QStringList({"--move", "Home", "2x"}), "not \"2x\"");
    Row("empty place", QStringList({"--move", "Home", ""}), "--move needs a place");
    Row("place of another script", QStringList({"--move", "Home", QString::fromUtf8("٢")}),
        "--move needs a place");
    Row("no file", QStringList("--export"), "--export");
    Row("undo of what", QStringList("--undo=Home"), "--undo takes no value");
    Row("agent and more", QStringList({"--agent", "--list"}), "--agent");
    Row("unknown with value", (QStringList() << "--fast=1"), "--fast");
    Row("unknown short", (QStringList() << "-x"), "-x");
    Row("shortened",
        (QStringList() << "--lang"
                       << "ar"),
        "--lang");
    Row("no value at the end", (QStringList() << "--language"), "--language");
    Row("option in place of the value",
        (QStringList() << "--wlan"
                       << "--help"),
        "--wlan");
    Row("empty value", (QStringList() << "--library-path="), "--library-path");
    Row("empty argument as value",
        (QStringList() << "--library-path"
                       << ""),
        "--library-path");
    Row("no source of networks", QStringList("--wlan"), "--wlan");
    Row("no option", (QStringList() << "Priority.xml"), "Priority.xml");
}

void ArgumentsTest::RefusalNamesWhatIsWrong()
{
    QFETCH(QStringList, given);
    QFETCH(QString, named);
    const Arguments arguments = Arguments::Parse(given);
    QCOMPARE(arguments.action, Arguments::Refuse);
    QVERIFY2(arguments.problem.contains(named), qPrintable(arguments.problem));
    QVERIFY(!arguments.problem.contains('\n'));
}

void ArgumentsTest::WlanIsChosen_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<int>("choice");
    Row("nothing", QStringList(), int(WlanNetworkManager));
    Row("auto", QStringList("--wlan=auto"), int(WlanNetworkManager));
    Row("stored",
        (QStringList() << "--wlan"
                       << "stored"),
        int(WlanStored));
    Row("networkmanager", QStringList("--wlan=networkmanager"), int(WlanNetworkManager));
    Row("demo", QStringList("--demo"), int(WlanStored));
}

void ArgumentsTest::WlanIsChosen()
{
    QFETCH(QStringList, given);
    const Arguments arguments = Arguments::Parse(given);
    QCOMPARE(arguments.action, Arguments::Run);
    QTEST(int(arguments.ChosenWlan()), "choice");
}

void ArgumentsTest::WlanIsRefused_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("told");
    Row("unknown word", QStringList("--wlan=wicd"),
        "--wlan is networkmanager or stored, not \"wicd\"; see --help");
    Row("other case", QStringList("--wlan=NetworkManager"),
        "--wlan is networkmanager or stored, not \"NetworkManager\"; see --help");
    Row("with the demo",
        (QStringList() << "--demo"
                       << "--wlan=networkmanager"),
        "--demo has networks of its own: leave --wlan out; see --help");
}

void ArgumentsTest::WlanIsRefused()
{
    QFETCH(QStringList, given);
    const Arguments arguments = Arguments::Parse(given);
    QCOMPARE(arguments.action, Arguments::Refuse);
    QTEST(arguments.problem, "told");
}

void ArgumentsTest::HelpCountsBeforeWhatFollows()
{
    QCOMPARE(Arguments::Parse(QStringList() << "--help"
                                            << "--nonsense")
                 .action,
             Arguments::Help);
    QCOMPARE(Arguments::Parse(QStringList("--version")).action, Arguments::Version);
}

void ArgumentsTest::HelpNamesEveryOption_data()
{
    QTest::addColumn<QString>("option");
    Row("language", "--language");
    Row("library path", "--library-path");
    Row("list", "--list");
    Row("check", "--check");
    Row("add", "--add");
    Row("add on top", "--add-top");
    Row("wlan", "--wlan");
    Row("show", "--show");
    Row("version", "--version");
    Row("help", "--help");
}

void ArgumentsTest::HelpNamesEveryOption()
{
    QFETCH(QString, option);
    QVERIFY(Arguments::HelpText().contains(' ' + option + ' '));
}

QTEST_APPLESS_MAIN(ArgumentsTest)
#include "tst_arguments.moc"
