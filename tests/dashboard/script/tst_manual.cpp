#include "DashboardProcess.h"

#include <Arguments.h>
#include <TextPattern.h>

#include <QtTest>

/** The manual page, as the formatter of manual pages sees it. */
class ManualTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void FormatterHasNothingToWarnOf();
    void OptionsAreThoseOfTheHelp();
    void StatusesAreThoseOfTheHelp();

private:
    Outcome m_manual;
};

namespace
{

QStringList Options(const QString &text)
{
    QStringList options = TextPattern::FindAll(text, "\n +(?:-h, +)?(--[-a-z]+)");
    options.sort();
    return options;
}

/** "<number> <what it means>" of each line. */
QStringList Statuses(const QString &text)
{
    QStringList statuses = TextPattern::FindAll(text, "\n +([0-9]+ +[^\n]*[^\n.])\\.?(?=\n)");
    for (int i = 0; i < statuses.size(); ++i) {
        statuses[i] = statuses.at(i).simplified();
    }
    return statuses;
}

} // namespace

void ManualTest::initTestCase()
{
    // Lines wide enough for everything, and no overstriking for bold and underlined words.
    m_manual = RunProgram("groff",
                          QStringList() << "-ww"
                                        << "-man"
                                        << "-Tutf8"
                                        << "-rLL=1000n"
                                        << "-P-cbou" << SOURCE_DIRECTORY "/packaging/priority-dashboard.1",
                          QStringList());
    QCOMPARE(m_manual.status, 0);
    QVERIFY(m_manual.out.contains("\nNAME\n"));
}

void ManualTest::FormatterHasNothingToWarnOf()
{
    QCOMPARE(m_manual.err, QString());
}

void ManualTest::OptionsAreThoseOfTheHelp()
{
    const QStringList options = Options(Arguments::HelpText());
    QVERIFY(options.contains("--add-top"));
    QCOMPARE(Options(m_manual.out.section("\nEXIT STATUS\n", 0, 0)).join("\n"), options.join("\n"));
}

void ManualTest::StatusesAreThoseOfTheHelp()
{
    const QStringList statuses = Statuses(Arguments::HelpText().section("Exit status:", 1).toLower());
    QVERIFY(statuses.contains("2 the command line can't be followed"));
    const QString section = m_manual.out.section("\nEXIT STATUS", 1).section("\nENVIRONMENT\n", 0, 0);
    QCOMPARE(Statuses(section.toLower()).join("\n"), statuses.join("\n"));
}

QTEST_APPLESS_MAIN(ManualTest)
#include "tst_manual.moc"
