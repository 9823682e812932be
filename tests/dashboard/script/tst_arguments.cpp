#include <Arguments.h>

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
    QTest::newRow("apart") << (QStringList() << "--language"
                                             << "ar")
                           << "ar"
                           << "";
    QTest::newRow("with equals sign") << (QStringList() << "--library-path=/tmp/a b") << ""
                                      << "/tmp/a b";
    QTest::newRow("both") << (QStringList() << "--library-path"
                                            << "x=y"
                                            << "--language=he")
                          << "he"
                          << "x=y";
    QTest::newRow("value with equals sign") << (QStringList() << "--library-path=a=b") << ""
                                            << "a=b";
    QTest::newRow("value with a dash") << (QStringList() << "--library-path"
                                                         << "-d")
                                       << ""
                                       << "-d";
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
    QTest::newRow("unknown") << (QStringList() << "--fast") << "--fast";
    QTest::newRow("unknown part") << QStringList("--show=list") << "--show is connect or settings";
    QTest::newRow("part of no window")
        << QStringList({"--show=connect", "--list"}) << "--show opens a window";
    QTest::newRow("no place") << QStringList({"--move", "Home"}) << "--move needs a place";
    QTest::newRow("place 0") << QStringList({"--move", "Home", "0"}) << "not \"0\"";
    QTest::newRow("place below the first") << QStringList({"--move", "Home", "-1"}) << "not \"-1\"";
    QTest::newRow("place with more") << QStringList({"--move", "Home", "2x"}) << "not \"2x\"";
    QTest::newRow("empty place") << QStringList({"--move", "Home", ""}) << "--move needs a place";
    QTest::newRow("place of another script")
        << QStringList({"--move", "Home", QString::fromUtf8("٢")}) << "--move needs a place";
    QTest::newRow("no file") << QStringList("--export") << "--export";
    QTest::newRow("undo of what") << QStringList("--undo=Home") << "--undo takes no value";
    QTest::newRow("agent and more") << QStringList({"--agent", "--list"}) << "--agent";
    QTest::newRow("unknown with value") << (QStringList() << "--fast=1") << "--fast";
    QTest::newRow("unknown short") << (QStringList() << "-x") << "-x";
    QTest::newRow("shortened") << (QStringList() << "--lang"
                                                 << "ar")
                               << "--lang";
    QTest::newRow("no value at the end") << (QStringList() << "--language") << "--language";
    QTest::newRow("option in place of the value") << (QStringList() << "--wlan"
                                                                    << "--help")
                                                  << "--wlan";
    QTest::newRow("empty value") << (QStringList() << "--library-path=") << "--library-path";
    QTest::newRow("empty argument as value") << (QStringList() << "--library-path"
                                                               << "")
                                             << "--library-path";
    QTest::newRow("no source of networks") << QStringList("--wlan") << "--wlan";
    QTest::newRow("no option") << (QStringList() << "Priority.xml") << "Priority.xml";
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
    QTest::newRow("nothing") << QStringList() << int(WlanNetworkManager);
    QTest::newRow("auto") << QStringList("--wlan=auto") << int(WlanNetworkManager);
    QTest::newRow("stored") << (QStringList() << "--wlan"
                                              << "stored")
                            << int(WlanStored);
    QTest::newRow("networkmanager") << QStringList("--wlan=networkmanager") << int(WlanNetworkManager);
    QTest::newRow("demo") << QStringList("--demo") << int(WlanStored);
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
    QTest::newRow("unknown word") << QStringList("--wlan=wicd")
                                  << "--wlan is networkmanager or stored, not \"wicd\"; see --help";
    QTest::newRow("other case") << QStringList("--wlan=NetworkManager")
                                << "--wlan is networkmanager or stored, not \"NetworkManager\"; see --help";
    QTest::newRow("with the demo") << (QStringList() << "--demo"
                                                     << "--wlan=networkmanager")
                                   << "--demo has networks of its own: leave --wlan out; see --help";
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
    QTest::newRow("language") << "--language";
    QTest::newRow("library path") << "--library-path";
    QTest::newRow("list") << "--list";
    QTest::newRow("check") << "--check";
    QTest::newRow("add") << "--add";
    QTest::newRow("add on top") << "--add-top";
    QTest::newRow("wlan") << "--wlan";
    QTest::newRow("show") << "--show";
    QTest::newRow("version") << "--version";
    QTest::newRow("help") << "--help";
}

void ArgumentsTest::HelpNamesEveryOption()
{
    QFETCH(QString, option);
    QVERIFY(Arguments::HelpText().contains(' ' + option + ' '));
}

QTEST_APPLESS_MAIN(ArgumentsTest)
#include "tst_arguments.moc"
