#include <LoadedPlugin.h>
#include <PriorityXMLParser.h>
#include <RootRights.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QFile>
#include <QScopedPointer>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/** Limits the size of every file this process writes while it is in scope. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    Q_DISABLE_COPY(FileSizeLimit)

    rlimit m_before;
};

class tst_FailedSave : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isReported_data();
    void isReported();
    void putsTheOldContentBack();
    void putsBackWhatFitsOfTheOldContent();
    void leavesNoFileWhereThereWasNone();
    void isTraced();
    void whatIsNoFileAndCantBeReplacedIsNotWrittenTo_data();
    void whatIsNoFileAndCantBeReplacedIsNotWrittenTo();

private:
    static QList<PriorityList> LongList(int count);

    QScopedPointer<TemporaryDirectory> m_directory;
    PriorityXMLParser *m_store;
};

void tst_FailedSave::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
    m_store = PriorityXMLParser::GetInstance();
}

void tst_FailedSave::cleanup()
{
    m_directory.reset();
}

QList<PriorityList> tst_FailedSave::LongList(int count)
{
    QList<PriorityList> list;
    for (int i = 0; i < count; ++i) {
        list << Entry(QString("network %1").arg(i));
    }
    return list;
}

void tst_FailedSave::isReported_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("missing");
    Row("the last byte", 1, 1);
    Row("nearly all", 1, 100);
    Row("the end of a long file", 5000, 1);
    Row("much of a long file", 5000, 100000);
}

void tst_FailedSave::isReported()
{
    QFETCH(int, count);
    QFETCH(int, missing);
    QList<PriorityList> list = LongList(count);
    QCOMPARE(m_store->SavePriorityList(list), 0);
    const int size = m_directory->Read("Priority.xml").size();
    FileSizeLimit sizeLimit(rlim_t(size - missing));
    QCOMPARE(m_store->SavePriorityList(list), 25);
}

void tst_FailedSave::putsTheOldContentBack()
{
    QList<PriorityList> list = LongList(3);
    QCOMPARE(m_store->SavePriorityList(list), 0);
    const QByteArray before = m_directory->Read("Priority.xml");
    QList<PriorityList> longer = LongList(100);
    {
        FileSizeLimit sizeLimit(rlim_t(before.size()));
        QCOMPARE(m_store->SavePriorityList(longer), 25);
    }
    QCOMPARE(m_directory->Read("Priority.xml"), before);
}

void tst_FailedSave::putsBackWhatFitsOfTheOldContent()
{
    QList<PriorityList> list = LongList(100);
    QCOMPARE(m_store->SavePriorityList(list), 0);
    QList<PriorityList> longer = LongList(101);
    {
        FileSizeLimit sizeLimit(2000);
        QCOMPARE(m_store->SavePriorityList(longer), 25);
    }
    QList<PriorityList> kept;
    QCOMPARE(m_store->GetPriorityList(&kept), 6);
    QVERIFY(kept.size() > 20);
    QCOMPARE(kept.first().name, QString("network 0"));
}

void tst_FailedSave::leavesNoFileWhereThereWasNone()
{
    QList<PriorityList> list = LongList(100);
    {
        FileSizeLimit sizeLimit(50);
        QCOMPARE(m_store->SavePriorityList(list), 25);
    }
    QVERIFY(!QFile::exists(m_directory->FilePath("Priority.xml")));
}

void tst_FailedSave::isTraced()
{
    QList<PriorityList> list = LongList(1);
    TraceCapture trace;
    {
        FileSizeLimit sizeLimit(0);
        m_store->SavePriorityList(list);
    }
    QVERIFY(trace.Lines().contains("Error open file: "));
    QVERIFY(trace.Lines().last().endsWith("SavePriorityList: Exit"));
}

void tst_FailedSave::whatIsNoFileAndCantBeReplacedIsNotWrittenTo_data()
{
    QTest::addColumn<QString>("linkTo");
    Row("pipe", "");
    Row("link to a pipe", "pipe");
    Row("link to a device that keeps nothing", "/dev/null");
}

void tst_FailedSave::whatIsNoFileAndCantBeReplacedIsNotWrittenTo()
{
    QFETCH(QString, linkTo);
    const QByteArray path = QFile::encodeName(m_directory->FilePath("Priority.xml"));
    const QByteArray pipe = QFile::encodeName(m_directory->FilePath("pipe"));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    if (linkTo.isEmpty()) {
        QCOMPARE(rename(pipe.constData(), path.constData()), 0);
    } else {
        QCOMPARE(symlink(QFile::encodeName(linkTo).constData(), path.constData()), 0);
    }
    const QByteArray directory = QFile::encodeName(m_directory->Path());
    QCOMPARE(chmod(directory.constData(), 0500), 0);
    const WithoutRootRights ordinary;
    QList<PriorityList> list = LongList(1);
    QCOMPARE(m_store->SavePriorityList(list), 25);
}

QTEST_MAIN(tst_FailedSave)
#include "tst_failedsave.moc"
