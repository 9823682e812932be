#include <PriorityXMLParser.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QDir>
#include <QScopedPointer>
#include <QtTest>

/** The switch for mobile broadband in the plug-in's configuration file. */
class tst_Configuration : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void value_data();
    void value();
    void missingFileIsTraced();
    void fileThatCannotBeOpenedIsTraced();
    void readingIsTraced();
    void readErrorIsTracedAndKeepsTheValue();
    void fileIsReadOnEveryCall();
    void shippedFileEnablesMobileBroadband();

private:
    int Value() { return PriorityXMLParser::GetInstance()->GetEnable3GValue(); }
    void Write(const QByteArray &xml) { m_directory->Write("plugins/PriorityPlugin/config.xml", xml); }

    QScopedPointer<TemporaryDirectory> m_directory;
};

static QString StoreLine(const QString &event)
{
    return "TIME : ../../src/PriorityPlugin/PriorityXMLParser.cpp: GetEnable3GValue: " + event;
}

static QString BareLine(const QString &event)
{
    return "../../src/PriorityPlugin/PriorityXMLParser.cpp: GetEnable3GValue: " + event;
}

void tst_Configuration::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    StandInHost::libraryPath = m_directory->Path();
    QDir().mkpath(m_directory->FilePath("plugins/PriorityPlugin"));
}

void tst_Configuration::value_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<int>("expected");
    const QByteArray on = "<item name='enable3G' value='1'/>";
    const QByteArray off = "<item name='enable3G' value='0'/>";
    Row("1", "<c>" + on + "</c>", 1);
    Row("0", "<c>" + off + "</c>", 0);
    Row("2", QByteArray("<c><item name='enable3G' value='2'/></c>"), 2);
    Row("negative", QByteArray("<c><item name='enable3G' value='-7'/></c>"), -7);
    Row("leading zero is decimal", QByteArray("<c><item name='enable3G' value='010'/></c>"), 10);
    Row("word", QByteArray("<c><item name='enable3G' value='yes'/></c>"), 0);
    Row("hexadecimal", QByteArray("<c><item name='enable3G' value='0x1'/></c>"), 0);
    Row("empty value", QByteArray("<c><item name='enable3G' value=''/></c>"), 0);
    Row("no value", QByteArray("<c><item name='enable3G'/></c>"), 0);
    Row("no value after 1", "<c>" + on + "<item name='enable3G'/></c>", 0);
    Row("1 then 0", "<c>" + on + off + "</c>", 0);
    Row("0 then 1", "<c>" + off + on + "</c>", 1);
    Row("other name", QByteArray("<c><item name='enable4G' value='1'/></c>"), -1);
    Row("other name after", "<c>" + on + "<item name='enable4G' value='0'/></c>", 1);
    Row("case of the name", QByteArray("<c><item name='Enable3G' value='1'/></c>"), -1);
    Row("case of the element", QByteArray("<c><Item name='enable3G' value='1'/></c>"), -1);
    Row("no name", QByteArray("<c><item value='1'/></c>"), -1);
    Row("as the root", on, 1);
    Row("deep inside", "<a><b><item name='x'>" + on + "</item></b></a>", 1);
    Row("no item", QByteArray("<c/>"), -1);
    Row("empty file", QByteArray(""), -1);
    Row("no XML", QByteArray("enable3G=1"), -1);
    Row("broken before", "<c><" + on + "</c>", -1);
    Row("broken after", "<c>" + on + "</d>", 1);
}

void tst_Configuration::value()
{
    QFETCH(QByteArray, xml);
    QFETCH(int, expected);
    Write(xml);
    QCOMPARE(Value(), expected);
}

void tst_Configuration::missingFileIsTraced()
{
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    TraceCapture trace;
    QCOMPARE(store->GetEnable3GValue(), -1);
    QCOMPARE(trace.Normalised(), QStringList()
                                     << StoreLine("Entered")
                                     << "File " + m_directory->FilePath("plugins/PriorityPlugin/config.xml") +
                                            " does not exist"
                                     << StoreLine("Exit"));
}

void tst_Configuration::fileThatCannotBeOpenedIsTraced()
{
    // A directory in its place is there and can't be opened, whoever runs the test.
    QDir().mkpath(m_directory->FilePath("plugins/PriorityPlugin/config.xml"));
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    TraceCapture trace;
    QCOMPARE(store->GetEnable3GValue(), -1);
    QCOMPARE(trace.Normalised(), QStringList()
                                     << StoreLine("Entered") << "Error open file: " << StoreLine("Exit"));
}

void tst_Configuration::readingIsTraced()
{
    Write("<c><item name='enable3G' value='1'/></c>");
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    TraceCapture trace;
    QCOMPARE(store->GetEnable3GValue(), 1);
    QCOMPARE(trace.Normalised(), QStringList() << StoreLine("Entered") << StoreLine("Exit"));
}

void tst_Configuration::readErrorIsTracedAndKeepsTheValue()
{
    Write("<c><item name='enable3G' value='1'/><broken");
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    TraceCapture trace;
    QCOMPARE(store->GetEnable3GValue(), 1);
    QCOMPARE(trace.Normalised(),
             QStringList() << StoreLine("Entered") << BareLine("Read Error: n") << StoreLine("Exit"));
}

void tst_Configuration::fileIsReadOnEveryCall()
{
    Write("<c><item name='enable3G' value='1'/></c>");
    QCOMPARE(Value(), 1);
    Write("<c><item name='enable3G' value='0'/></c>");
    QCOMPARE(Value(), 0);
}

void tst_Configuration::shippedFileEnablesMobileBroadband()
{
    StandInHost::libraryPath = QLatin1String(BUILD_DIRECTORY);
    QCOMPARE(Value(), 1);
}

QTEST_MAIN(tst_Configuration)
#include "tst_configuration.moc"
