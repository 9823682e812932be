#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QFile>
#include <QScopedPointer>
#include <QtTest>

#include <csignal>
#include <cstdlib>
#include <ctime>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/** Files made to exhaust or to mislead whoever reads them, read by the loaded plug-in. */
class tst_HostileFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void entityBombsStayEntities_data();
    void entityBombsStayEntities();
    void wrongEncodings_data();
    void wrongEncodings();
    void sizeIsPaidForOnce_data();
    void sizeIsPaidForOnce();
    void hundredMegabytesInOneAttribute();
    void whatIsNoFileIsNotOpened_data();
    void whatIsNoFileIsNotOpened();
    void whatIsNoFileIsReplaced_data() { whatIsNoFileIsNotOpened_data(); }
    void whatIsNoFileIsReplaced();
    void linkIsReplacedAndItsTargetKept();

private:
    int Read(QList<PriorityList> *list) { return m_plugin.Priority()->GetPriorityList(list); }
    qint64 TimeOfReading(const QByteArray &xml);
    void MakeNoFile(const QString &kind);

    QScopedPointer<TemporaryDirectory> m_directory;
    LoadedPlugin m_plugin;
};

void tst_HostileFiles::initTestCase()
{
    TemporaryDirectory empty;
    StandInHost::Reset(empty.Path());
    m_plugin.Plugin()->Init();
}

void tst_HostileFiles::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
}

void tst_HostileFiles::cleanup()
{
    m_directory.reset();
}

void tst_HostileFiles::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

void tst_HostileFiles::entityBombsStayEntities_data()
{
    QTest::addColumn<QByteArray>("xml");
    QByteArray nested = "<!DOCTYPE r [<!ENTITY e0 '0123456789'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ";";
        nested += "<!ENTITY e" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    nested += "]>";
    Row("in text", QByteArray(nested + "<r><item name='A'/>&e11;<item name='B'/></r>"));
    Row("in an attribute", QByteArray(nested + "<r><item name='A'/><item name='&e11;'/></r>"));
    Row("quadratic",
        QByteArray("<!DOCTYPE r [<!ENTITY a '" + QByteArray(50000, 'a') +
                   "'>]><r><item name='A'/><item name='" + QByteArray("&a;").repeated(50000) + "'/></r>"));
    Row("of itself",
        QByteArray(
            "<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r><item name='A'/><item name='&a;'/></r>"));
    Row("parameter entities",
        QByteArray("<!DOCTYPE r [<!ENTITY % a '%b;%b;'><!ENTITY % b '%a;%a;'> %a;]><r><item name='A'/></r>"));
}

void tst_HostileFiles::entityBombsStayEntities()
{
    QFETCH(QByteArray, xml);
    m_directory->Write("Priority.xml", xml);
    QList<PriorityList> list;
    QCOMPARE(Read(&list), 6);
    QVERIFY(list.size() <= 1);
    for (int i = 0; i < list.size(); ++i) {
        QCOMPARE(list.at(i).name, QString("A"));
    }
}

void tst_HostileFiles::wrongEncodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("names");
    const QByteArray items = "<r><item name='A'/><item name='\xe9'/></r>";
    Row("declared Latin-1", QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?>" + items), 0,
        QString::fromUtf8("A é"));
    Row("no UTF-8 in UTF-8", QByteArray("<?xml version='1.0' encoding='UTF-8'?>" + items), 6, "");
    Row("unknown", QByteArray("<?xml version='1.0' encoding='no-such'?>" + items), 6, "");
    const QString wide = "<r><item name='A'/></r>";
    const QByteArray units(reinterpret_cast<const char *>(wide.utf16()), wide.size() * 2);
    Row("UTF-16", QByteArray("\xff\xfe" + units), 0, "A");
    Row("half a UTF-16 unit", QByteArray("\xff\xfe" + units).left(units.size() - 20), 6, "");
    Row("zero bytes", QByteArray(100, '\0'), 6, "");
    Row("byte order mark alone", QByteArray("\xef\xbb\xbf"), 6, "");
    Row("overlong", QByteArray("<r><item name='\xc0\xaf'/></r>"), 6, "");
    Row("surrogates in UTF-8", QByteArray("<r><item name='\xed\xa0\xbd'/></r>"), 6, "");
}

void tst_HostileFiles::wrongEncodings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    QFETCH(QString, names);
    m_directory->Write("Priority.xml", bytes);
    QList<PriorityList> list;
    QCOMPARE(Read(&list), code);
    QStringList found;
    for (int i = 0; i < list.size(); ++i) {
        found << list.at(i).name;
    }
    QCOMPARE(found.join(" "), names);
}

qint64 tst_HostileFiles::TimeOfReading(const QByteArray &xml)
{
    m_directory->Write("Priority.xml", xml);
    qint64 shortest = -1;
    for (int i = 0; i < 3; ++i) {
        QList<PriorityList> list;
        // The processor's time, in which it doesn't matter what else the machine does.
        const std::clock_t begin = std::clock();
        Read(&list);
        const qint64 elapsed = std::clock() - begin;
        if (shortest < 0 || elapsed < shortest) {
            shortest = elapsed;
        }
    }
    return shortest;
}

void tst_HostileFiles::sizeIsPaidForOnce_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("repeated");
    QTest::addColumn<QByteArray>("tail");
    Row("many entries", QByteArray("<r>"), QByteArray("<item name='A' type='1'/>"), QByteArray("</r>"));
    Row("deep nesting", QByteArray(), QByteArray("<item name='A' type='1'>"), QByteArray());
    Row("long name", QByteArray("<r><item type='1' name='"), QByteArray("a name that never ends "),
        QByteArray("'/></r>"));
    Row("many references", QByteArray("<r><item type='1' name='"), QByteArray("&amp;&#x41;"),
        QByteArray("'/></r>"));
    Row("long comment", QByteArray("<r><!--"), QByteArray("a comment that never ends "),
        QByteArray("--></r>"));
    Row("long text", QByteArray("<r>"), QByteArray("a text that never ends "), QByteArray("</r>"));
}

void tst_HostileFiles::sizeIsPaidForOnce()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, repeated);
    QFETCH(QByteArray, tail);
    const int count = 100000;
    const qint64 once = TimeOfReading(head + repeated.repeated(count) + tail);
    const qint64 eightTimes = TimeOfReading(head + repeated.repeated(8 * count) + tail);
    const double ratio = double(eightTimes) / double(once);
    QVERIFY2(ratio < 32, qPrintable(QString("eight times the size takes %1 times as long").arg(ratio)));
}

void tst_HostileFiles::hundredMegabytesInOneAttribute()
{
    const qint64 megabyte = 1024 * 1024;
    {
        QFile file(m_directory->FilePath("Priority.xml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<r><item type='1' name='");
        const QByteArray block(int(megabyte), 'n');
        for (int i = 0; i < 100; ++i) {
            file.write(block);
        }
        file.write("'/></r>");
    }
    const pid_t child = fork();
    if (child == 0) {
        alarm(120);
        QList<PriorityList> list;
        const int code = Read(&list);
        _exit(code == 0 && list.size() == 1 && list.first().name.size() == 100 * megabyte ? 0 : 1);
    }
    int status = 0;
    struct rusage usage;
    QCOMPARE(wait4(child, &status, 0, &usage), child);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
    qDebug("100 MB in one attribute: %ld MB of memory", usage.ru_maxrss / 1024);
    // Two bytes a character, once in the reader, once in the entry, and once more while a buffer grows.
    QVERIFY(usage.ru_maxrss < 1500 * 1024);
}

void tst_HostileFiles::whatIsNoFileIsNotOpened_data()
{
    QTest::addColumn<QString>("kind");
    Row("pipe", "pipe");
    Row("link to a pipe", "link to a pipe");
    Row("link to a device that never ends", "/dev/zero");
    Row("link to a device that has no end of file", "/dev/full");
}

void tst_HostileFiles::MakeNoFile(const QString &kind)
{
    const QByteArray path = QFile::encodeName(m_directory->FilePath("Priority.xml"));
    const QByteArray pipe = QFile::encodeName(m_directory->FilePath("pipe"));
    if (kind == "pipe") {
        QCOMPARE(mkfifo(path.constData(), 0600), 0);
    } else if (kind == "link to a pipe") {
        QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
        QCOMPARE(symlink(pipe.constData(), path.constData()), 0);
    } else {
        QCOMPARE(symlink(QFile::encodeName(kind).constData(), path.constData()), 0);
    }
}

void tst_HostileFiles::whatIsNoFileIsNotOpened()
{
    QFETCH(QString, kind);
    MakeNoFile(kind);
    const pid_t child = fork();
    if (child == 0) {
        alarm(20);
        QList<PriorityList> list;
        _exit(Read(&list));
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY2(WIFEXITED(status), "reading never ended");
    QCOMPARE(WEXITSTATUS(status), 25);
}

void tst_HostileFiles::whatIsNoFileIsReplaced()
{
    QFETCH(QString, kind);
    MakeNoFile(kind);
    const pid_t child = fork();
    if (child == 0) {
        alarm(20);
        m_plugin.Priority()->AddTopPriority(Entry("New"));
        _exit(0);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY2(WIFEXITED(status), "saving never ended");
    QList<PriorityList> list;
    QCOMPARE(Read(&list), 0);
    QCOMPARE(AsTexts(list), QStringList("New/1"));
}

void tst_HostileFiles::linkIsReplacedAndItsTargetKept()
{
    m_directory->Write("elsewhere.xml", "<r><item name='A' type='1'/></r>");
    const QString path = m_directory->FilePath("Priority.xml");
    QVERIFY(QFile::link(m_directory->FilePath("elsewhere.xml"), path));
    m_plugin.Priority()->AddTopPriority(Entry("New"));
    QVERIFY(!QFileInfo(path).isSymLink());
    QCOMPARE(m_directory->Read("elsewhere.xml"), QByteArray("<r><item name='A' type='1'/></r>"));
    QList<PriorityList> list;
    QCOMPARE(Read(&list), 0);
    QCOMPARE(AsTexts(list), QStringList() << "New/1"
                                          << "A/1");
}

QTEST_MAIN(tst_HostileFiles)
#include "tst_hostilefiles.moc"
