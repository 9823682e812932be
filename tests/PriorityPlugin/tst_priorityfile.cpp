#include <LoadedPlugin.h>
#include <PriorityXMLParser.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QDir>
#include <QFile>
#include <QScopedPointer>
#include <QXmlStreamReader>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

class tst_PriorityFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void writtenBytes();
    void writtenBytesOfAnEmptyList();
    void entriesAreTakenFromAnywhere();
    void onlyElementsNamedItemCount();
    void missingAttributesAreEmpty();
    void readingAppends();
    void missingFile();
    void noDestination();
    void emptyFile();
    void entriesBeforeAnErrorStay();
    void whatFollowsIsLostAlikeAtAnyLength_data();
    void whatFollowsIsLostAlikeAtAnyLength();
    void directoryInPlaceOfTheFile();
    void unopenableDirectory();
    void savingReplacesTheFileItself();
    void savingInADirectoryThatCannotBeChanged();
    void anyTextReadsBack_data();
    void anyTextReadsBack();
    void everyCharacterReadsBackOrIsReplaced();
    void savingLeavesTheCallersListAlone();
    void unstorableNameIsFoundAgain();
    void tracedLinesOfReading();
    void tracedLinesOfSaving();
    void tracedLinesOfFailures();
    void timeOfTheBuildIsFixed();
    void directoryOfTheSdk();
    void failedSdkCallMeansTheCurrentDirectory_data();
    void failedSdkCallMeansTheCurrentDirectory();

private:
    QList<PriorityList> Read(int expectedResult = 0);

    QScopedPointer<TemporaryDirectory> m_directory;
    PriorityXMLParser *m_store;
};

static const char storeSource[] = "../../src/PriorityPlugin/PriorityXMLParser.cpp";

void tst_PriorityFile::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_store = PriorityXMLParser::GetInstance();
}

void tst_PriorityFile::cleanup()
{
    m_directory.reset();
}

QList<PriorityList> tst_PriorityFile::Read(int expectedResult)
{
    QList<PriorityList> list;
    const int result = m_store->GetPriorityList(&list);
    if (result != expectedResult) {
        QTest::qFail(qPrintable(QString("reading yields %1").arg(result)), __FILE__, __LINE__);
    }
    return list;
}

void tst_PriorityFile::writtenBytes()
{
    QList<PriorityList> list;
    list << Entry("HomeNet") << Entry("Office");
    QCOMPARE(m_store->SavePriorityList(list), 0);
    QCOMPARE(m_directory->Read("Priority.xml"), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                           "<zeltdoc type=\"profile\">\n"
                                                           "    <profile>\n"
                                                           "        <item name=\"HomeNet\" type=\"1\"/>\n"
                                                           "        <item name=\"Office\" type=\"1\"/>\n"
                                                           "    </profile>\n"
                                                           "</zeltdoc>\n"));
}

void tst_PriorityFile::writtenBytesOfAnEmptyList()
{
    QList<PriorityList> list;
    QCOMPARE(m_store->SavePriorityList(list), 0);
    QCOMPARE(m_directory->Read("Priority.xml"), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                           "<zeltdoc type=\"profile\">\n"
                                                           "    <profile/>\n"
                                                           "</zeltdoc>\n"));
    QVERIFY(Read().isEmpty());
}

void tst_PriorityFile::entriesAreTakenFromAnywhere()
{
    m_directory->Write("Priority.xml", "<other><item name='A' type='1'/><x><y><item type='0' name='B' z='9'>"
                                       "<item name='C' type='1'/>text</item></y></x></other>");
    QCOMPARE(AsTexts(Read()), QStringList() << "A/1"
                                            << "B/0"
                                            << "C/1");
}

void tst_PriorityFile::onlyElementsNamedItemCount()
{
    m_directory->Write("Priority.xml",
                       "<zeltdoc><Item name='A' type='1'/><items name='B' type='1'/>"
                       "<!-- <item name='C' type='1'/> --><item name='D' type='1'/></zeltdoc>");
    QCOMPARE(AsTexts(Read()), QStringList() << "D/1");
}

void tst_PriorityFile::missingAttributesAreEmpty()
{
    m_directory->Write("Priority.xml", "<r><item name='A'/><item type='1'/><item/></r>");
    QCOMPARE(AsTexts(Read()), QStringList() << "A/"
                                            << "/1"
                                            << "/");
}

void tst_PriorityFile::readingAppends()
{
    m_directory->Write("Priority.xml", "<r><item name='A' type='1'/></r>");
    QList<PriorityList> list;
    QCOMPARE(m_store->GetPriorityList(&list), 0);
    QCOMPARE(m_store->GetPriorityList(&list), 0);
    QCOMPARE(AsTexts(list), QStringList() << "A/1"
                                          << "A/1");
}

void tst_PriorityFile::missingFile()
{
    QVERIFY(Read(23).isEmpty());
    QVERIFY(!QFile::exists(m_directory->FilePath("Priority.xml")));
}

void tst_PriorityFile::noDestination()
{
    m_directory->Write("Priority.xml", "<r/>");
    TraceCapture trace;
    QCOMPARE(m_store->GetPriorityList(nullptr), 23);
    QVERIFY(trace.Lines().contains("File " + m_directory->FilePath("Priority.xml") + " does not exist"));
}

void tst_PriorityFile::emptyFile()
{
    m_directory->Write("Priority.xml", "");
    QVERIFY(Read(6).isEmpty());
}

void tst_PriorityFile::entriesBeforeAnErrorStay()
{
    m_directory->Write("Priority.xml",
                       "<r><item name='A' type='1'/><item name='B' type='1'/><item name=</r>");
    QCOMPARE(AsTexts(Read(6)), QStringList() << "A/1"
                                             << "B/1");
}

static QStringList ReadByTheToolkit(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&file);
    QStringList texts;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("item")) {
            texts << reader.attributes().value("name").toString() + "/" +
                         reader.attributes().value("type").toString();
        }
    }
    return texts << (reader.hasError() ? "error" : "end");
}

void tst_PriorityFile::whatFollowsIsLostAlikeAtAnyLength_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("end");
    const QByteArray end = "<item name='last' type='0'/></r>";
    Row("nothing wrong", QByteArray("<r>"), end);
    Row("byte order mark", QByteArray("\xef\xbb\xbf<r>"), end);
    Row("lines ended twice", QByteArray("<?xml version='1.0' encoding='UTF-8'?>\r\n<r>\r\n"),
        QByteArray("<item name='a\rb\r\nc'/>\r\n</r>"));
    Row("other encoding", QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><r>"),
        QByteArray("<item name='\xe9'/></r>"));
    Row("cut off", QByteArray("<r>"), QByteArray("<item name='l"));
    Row("no text at the end", QByteArray("<r>"), QByteArray("<item name='\xff'/></r>"));
}

void tst_PriorityFile::whatFollowsIsLostAlikeAtAnyLength()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, end);
    const QByteArray item = "<item name='A' type='1'/>";
    for (int fill = 8000; fill < 8400; fill += 1 + fill % 2) {
        QByteArray xml = start;
        while (xml.size() + item.size() + end.size() <= fill) {
            xml += item;
        }
        xml += QByteArray(qMax(0, fill - xml.size() - end.size()), ' ') + end;
        m_directory->Write("Priority.xml", xml);
        QList<PriorityList> list;
        const int code = m_store->GetPriorityList(&list);
        const QStringList found = AsTexts(list) << (code == 0 ? "end" : "error");
        const QStringList expected = ReadByTheToolkit(m_directory->FilePath("Priority.xml"));
        QVERIFY2(found == expected,
                 qPrintable(
                     QString("%1 bytes: %2 instead of %3").arg(fill).arg(found.size()).arg(expected.size())));
    }
}

void tst_PriorityFile::directoryInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(m_directory->FilePath("Priority.xml/inside")));
    QVERIFY(Read(25).isEmpty());
    QList<PriorityList> list;
    list << Entry("A");
    QCOMPARE(m_store->SavePriorityList(list), 25);
    QVERIFY(QFileInfo(m_directory->FilePath("Priority.xml/inside")).isDir());
}

void tst_PriorityFile::unopenableDirectory()
{
    StandInHost::userDataDirectory = m_directory->FilePath("not there/");
    QVERIFY(Read(23).isEmpty());
    QList<PriorityList> list;
    QCOMPARE(m_store->SavePriorityList(list), 25);
}

void tst_PriorityFile::savingReplacesTheFileItself()
{
    m_directory->Write("Priority.xml", "the old file");
    QVERIFY(::link(QFile::encodeName(m_directory->FilePath("Priority.xml")).constData(),
                   QFile::encodeName(m_directory->FilePath("second name")).constData()) == 0);
    QList<PriorityList> list;
    QCOMPARE(m_store->SavePriorityList(list), 0);
    QCOMPARE(m_directory->Read("second name"), QByteArray("the old file"));
    QVERIFY(m_directory->Read("Priority.xml").startsWith("<?xml"));
}

void tst_PriorityFile::savingInADirectoryThatCannotBeChanged()
{
    if (::geteuid() == 0) {
        // Root may change any directory; an ordinary user's rights are what is tried here.
        QVERIFY(::chown(QFile::encodeName(m_directory->Path()).constData(), 65534, 65534) == 0);
    }
    m_directory->Write("Priority.xml", QByteArray(5000, 'x'));
    const QByteArray path = QFile::encodeName(m_directory->FilePath("Priority.xml"));
    QVERIFY(::chmod(path.constData(), 0666) == 0);
    QVERIFY(::chmod(QFile::encodeName(m_directory->Path()).constData(), 0555) == 0);
    const uid_t before = ::geteuid();
    if (before == 0) {
        QVERIFY(::seteuid(65534) == 0);
    }
    QList<PriorityList> list;
    list << Entry("A");
    const int result = m_store->SavePriorityList(list);
    if (before == 0) {
        QVERIFY(::seteuid(before) == 0);
    }
    QCOMPARE(result, 0);
    QCOMPARE(AsTexts(Read()), QStringList() << "A/1");
}

void tst_PriorityFile::anyTextReadsBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stored");

    Row("markup", "a & b < c > d \" e ' f", "a & b < c > d \" e ' f");
    Row("white space", " a\tb\nc\rd\r\ne ", " a\tb\nc\rd\r\ne ");
    Row("CDATA end", "]]>", "]]>");
    Row("empty", "", "");
    const QString rightToLeft = QString::fromUtf8("\u200fالمكتب\u202e\u2066שלום\u2069");
    Row("right-to-left marks", rightToLeft, rightToLeft);
    const QString pair = QString::fromUtf8("\xf0\x9f\x93\xb6 up");
    Row("surrogate pair", pair, pair);
    const QString mark = QString(QChar(0xfeff)) + "x";
    Row("byte order mark", mark, mark);
    const QString separators = QString(QChar(0x85)) + QChar(0x2028) + QChar(0x2029) + QChar(0x7f);
    Row("other line ends", separators, separators);
    const QString longName(10000, QChar('n'));
    Row("10,000 characters", longName, longName);
    const QString longWide(10000, QChar(0x20ac));
    Row("10,000 wide characters", longWide, longWide);

    const QString replacement(QChar(0xfffd));
    Row("control character", QString("a") + QChar(1) + "b", "a" + replacement + "b");
    Row("null character", QString("a") + QChar(0) + "b", "a" + replacement + "b");
    Row("escape", QString(QChar(0x1b)), replacement);
    Row("lone high surrogate", QString("a") + QChar(0xd83d) + "b", "a" + replacement + "b");
    Row("high surrogate at the end", QString("a") + QChar(0xd83d), "a" + replacement);
    Row("lone low surrogate", QString("a") + QChar(0xdcf6) + "b", "a" + replacement + "b");
    Row("surrogates in the wrong order", QString(QChar(0xdcf6)) + QChar(0xd83d), replacement + replacement);
    Row("non-characters", QString(QChar(0xfffe)) + QChar(0xffff), replacement + replacement);
}

void tst_PriorityFile::anyTextReadsBack()
{
    QFETCH(QString, name);
    QFETCH(QString, stored);
    QList<PriorityList> list;
    list << Entry("before") << Entry(name, name) << Entry("after", "0");
    QCOMPARE(m_store->SavePriorityList(list), 0);
    const QList<PriorityList> read = Read();
    QCOMPARE(read.size(), 3);
    QCOMPARE(read.at(0).name, QString("before"));
    QCOMPARE(read.at(1).name, stored);
    QCOMPARE(read.at(1).type, stored);
    QCOMPARE(read.at(2).name, QString("after"));
    QCOMPARE(read.at(2).type, QString("0"));
}

void tst_PriorityFile::everyCharacterReadsBackOrIsReplaced()
{
    QList<PriorityList> list;
    for (uint unit = 0; unit <= 0xffff; ++unit) {
        list << Entry(QString("<") + QChar(ushort(unit)) + ">");
    }
    QCOMPARE(m_store->SavePriorityList(list), 0);
    const QList<PriorityList> read = Read();
    QCOMPARE(read.size(), list.size());
    for (int unit = 0; unit <= 0xffff; ++unit) {
        const bool surrogate = unit >= 0xd800 && unit <= 0xdfff;
        const bool control = unit < 0x20 && unit != 9 && unit != 10 && unit != 13;
        const ushort expected = surrogate || control || unit >= 0xfffe ? 0xfffd : ushort(unit);
        if (read.at(unit).name != QString("<") + QChar(expected) + ">") {
            QFAIL(qPrintable(QString("U+%1 comes back as %2").arg(unit, 4, 16).arg(read.at(unit).name)));
        }
    }
}

void tst_PriorityFile::savingLeavesTheCallersListAlone()
{
    QList<PriorityList> list;
    list << Entry(QString(QChar(1)));
    QCOMPARE(m_store->SavePriorityList(list), 0);
    QCOMPARE(list.first().name, QString(QChar(1)));
}

void tst_PriorityFile::unstorableNameIsFoundAgain()
{
    PriorityList odd = Entry(QString("odd") + QChar(1));
    PriorityList plain = Entry("plain");
    QList<PriorityList> list;
    QCOMPARE(m_store->AddTop(odd, nullptr), 0);
    QCOMPARE(m_store->AddTail(plain, nullptr), 1);
    QCOMPARE(m_store->AddTop(odd, &list), 0);
    QCOMPARE(list.size(), 2);
    QCOMPARE(m_store->MoveDown(odd, &list), 1);
    QCOMPARE(m_store->MoveUp(odd, &list), 0);
    QList<PriorityList> again;
    again << odd;
    QCOMPARE(m_store->AddList(again, 0, &list), 1);
    QCOMPARE(AsTexts(list), AsTexts(Read()));
    QCOMPARE(list.at(1).name, QString("odd") + QChar(0xfffd));
    QCOMPARE(odd.name, QString("odd") + QChar(1));
}

void tst_PriorityFile::tracedLinesOfReading()
{
    m_directory->Write("Priority.xml", "<r/>");
    TraceCapture trace;
    Read();
    QCOMPARE(
        trace.Normalised(),
        QStringList() << QString("TIME: %1: GetPriorityList: Entered ").arg(storeSource)
                      << QString("BUILD: %1: getUserDataDirectory before calling ZELT_GetUserDataDirectory()")
                             .arg(storeSource)
                      << QString("BUILD: %1: getUserDataDirectory after calling ZELT_GetUserDataDirectory(), "
                                 "retVal=0")
                             .arg(storeSource)
                      << QString("TIME: %1: GetPriorityList: Exit").arg(storeSource));
}

void tst_PriorityFile::tracedLinesOfSaving()
{
    QList<PriorityList> list;
    TraceCapture trace;
    m_store->SavePriorityList(list);
    const QStringList lines = trace.Normalised();
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.first(), QString("TIME: %1: SavePriorityList: Entered ").arg(storeSource));
    QCOMPARE(lines.last(), QString("TIME: %1: SavePriorityList: Exit").arg(storeSource));
}

void tst_PriorityFile::tracedLinesOfFailures()
{
    QList<PriorityList> list;
    TraceCapture trace;
    m_store->GetPriorityList(&list);
    QCOMPARE(trace.Lines().at(3), "File " + m_directory->FilePath("Priority.xml") + " does not exist");

    trace.Clear();
    m_directory->Write("Priority.xml", "<r>");
    m_store->GetPriorityList(&list);
    QCOMPARE(trace.Lines().at(3), QString("%1: ReadPriorityItem: Read Error: n").arg(storeSource));

    trace.Clear();
    QVERIFY(QFile::remove(m_directory->FilePath("Priority.xml")));
    QVERIFY(QDir().mkpath(m_directory->FilePath("Priority.xml")));
    m_store->GetPriorityList(&list);
    QCOMPARE(trace.Lines().at(3), QString("Error open file: "));

    trace.Clear();
    m_store->SavePriorityList(list);
    QCOMPARE(trace.Lines().at(3), QString("Error open file: "));
    QCOMPARE(trace.Normalised().last(), QString("TIME: %1: SavePriorityList: Exit").arg(storeSource));

    trace.Clear();
    PriorityXMLParser::GetInstance();
    QCOMPARE(trace.Normalised(), QStringList()
                                     << QString("BUILD: %1: GetInstance: Entered").arg(storeSource));
}

void tst_PriorityFile::timeOfTheBuildIsFixed()
{
    TraceCapture trace;
    PriorityXMLParser::GetInstance();
    m_store->getUserDataDirectory();
    const QStringList lines = trace.Lines();
    QCOMPARE(lines.size(), 3);
    const QString time = lines.first().left(QString("hh:mm:ss").size());
    QVERIFY2(QTime::fromString(time, "hh:mm:ss").isValid(), qPrintable(time));
    for (const QString &line : lines) {
        QVERIFY2(line.startsWith(time + ": .."), qPrintable(line));
    }
    QTest::qSleep(1100);
    trace.Clear();
    PriorityXMLParser::GetInstance();
    m_store->getUserDataDirectory();
    QCOMPARE(trace.Lines(), lines);
}

void tst_PriorityFile::directoryOfTheSdk()
{
    StandInHost::userDataDirectory = QString::fromUtf8("/Ordner mit Ümlaut/数据/");
    QCOMPARE(m_store->getUserDataDirectory(), StandInHost::userDataDirectory);
}

void tst_PriorityFile::failedSdkCallMeansTheCurrentDirectory_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("allocated");
    Row("status not 0", -7, false);
    Row("status not 0, path all the same", 5, true);
    Row("no path in spite of status 0", 0, false);
}

void tst_PriorityFile::failedSdkCallMeansTheCurrentDirectory()
{
    QFETCH(int, status);
    QFETCH(bool, allocated);
    StandInHost::userDataStatus = status;
    StandInHost::userDataAllocated = allocated;
    TraceCapture trace;
    QCOMPARE(m_store->getUserDataDirectory(), QString());
    QVERIFY(trace.Lines().at(1).endsWith(QString("retVal=%1").arg(status)));

    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory->Path()));
    m_directory->Write("Priority.xml", "<r><item name='here' type='1'/></r>");
    const QList<PriorityList> list = Read();
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(AsTexts(list), QStringList() << "here/1");
}

QTEST_MAIN(tst_PriorityFile)
#include "tst_priorityfile.moc"
