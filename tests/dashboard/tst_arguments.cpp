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
    void RefusalNamesWhatIsWrong_data();
    void RefusalNamesWhatIsWrong();
    void HelpCountsBeforeWhatFollows();
    void HelpNamesEveryOption_data();
    void HelpNamesEveryOption();
};

void ArgumentsTest::NothingGivenRuns()
{
    const Arguments arguments = Arguments::Parse(QStringList());
    QCOMPARE(arguments.action, Arguments::Run);
    QVERIFY(arguments.language.isNull() && arguments.pluginLibraryPath.isNull() &&
            arguments.tourDirectory.isNull());
}

void ArgumentsTest::ValuesAreTaken_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("libraryPath");
    QTest::addColumn<QString>("tour");
    QTest::newRow("apart") << (QStringList() << "--language"
                                             << "ar")
                           << "ar"
                           << ""
                           << "";
    QTest::newRow("with equals sign") << (QStringList() << "--tour=/tmp/a b") << ""
                                      << ""
                                      << "/tmp/a b";
    QTest::newRow("all") << (QStringList() << "--library-path"
                                           << "x=y"
                                           << "--tour"
                                           << "-d"
                                           << "--language=he")
                         << "he"
                         << "x=y"
                         << "-d";
    QTest::newRow("value with equals sign") << (QStringList() << "--library-path=a=b") << ""
                                            << "a=b"
                                            << "";
}

void ArgumentsTest::ValuesAreTaken()
{
    QFETCH(QStringList, given);
    const Arguments arguments = Arguments::Parse(given);
    QCOMPARE(arguments.action, Arguments::Run);
    QTEST(arguments.language, "language");
    QTEST(arguments.pluginLibraryPath, "libraryPath");
    QTEST(arguments.tourDirectory, "tour");
}

void ArgumentsTest::LastValueCounts()
{
    const Arguments arguments = Arguments::Parse(QStringList() << "--language=ar"
                                                               << "--language=he");
    QCOMPARE(arguments.language, QString("he"));
}

void ArgumentsTest::RefusalNamesWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown") << (QStringList() << "--fast") << "--fast";
    QTest::newRow("unknown with value") << (QStringList() << "--fast=1") << "--fast";
    QTest::newRow("unknown short") << (QStringList() << "-x") << "-x";
    QTest::newRow("shortened") << (QStringList() << "--lang"
                                                 << "ar")
                               << "--lang";
    QTest::newRow("no value at the end") << (QStringList() << "--language") << "--language";
    QTest::newRow("option in place of the value") << (QStringList() << "--tour"
                                                                    << "--help")
                                                  << "--tour";
    QTest::newRow("empty value") << (QStringList() << "--library-path=") << "--library-path";
    QTest::newRow("empty argument as value") << (QStringList() << "--library-path"
                                                               << "")
                                             << "--library-path";
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
    QTest::newRow("tour") << "--tour";
    QTest::newRow("version") << "--version";
    QTest::newRow("help") << "--help";
}

void ArgumentsTest::HelpNamesEveryOption()
{
    QFETCH(QString, option);
    QVERIFY(Arguments::HelpText().contains("  " + option));
}

QTEST_APPLESS_MAIN(ArgumentsTest)
#include "tst_arguments.moc"
