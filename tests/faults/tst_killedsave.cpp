#include "SystemCalls.h"

#include <ListDocument.h>
#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QFile>
#include <QProcess>
#include <QScopedPointer>
#include <QTableWidget>
#include <QtTest>

#include <csignal>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/**
 * A process that is killed in the middle of saving. What a reader may find then: no file, or a list that the
 * process wrote, whole or cut off at its end; never anything else. How many times it is killed:
 * PRIORITY_KILLS; every other time aimed at a save.
 */
class tst_KilledSave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void leavesAListOrItsBeginningOrNothing_data();
    void leavesAListOrItsBeginningOrNothing();
    void killedAtEveryCallAndByte();
    void nextStartTellsWhatItFound_data();
    void nextStartTellsWhatItFound();

private:
    enum Found { Missing, Whole, Beginning, SomethingElse };

    static int Kills();
    /** The priority file, to be one of lists or its beginning. */
    Found WhatIsThere(const std::vector<QByteArray> &lists);
    /** Adds at the top until it is killed. */
    Q_NORETURN void SaveForever(const std::vector<Model::Entry> &entries, int readyPipe);
    /** Kills after so long; where wholeSize is not 0, as soon as the file is then found smaller, or missing.
     */
    void StartAndKill(const std::vector<Model::Entry> &entries, int microseconds, int wholeSize);

    QScopedPointer<TemporaryDirectory> m_directory;
    LoadedPlugin m_plugin;
};

static Model::Text Name(int number, int length)
{
    Model::Text name = u"network ";
    for (const char digit : std::to_string(number)) {
        name += char16_t(digit);
    }
    name.resize(std::size_t(length), u'.');
    return name;
}

static PriorityList ToProduct(const Model::Entry &entry)
{
    return Entry(QString(reinterpret_cast<const QChar *>(entry.name.data()), int(entry.name.size())));
}

static void Discard(QtMsgType, const QMessageLogContext &, const QString &) {}

static QByteArray Bytes(const Model::Document &document)
{
    return QByteArray(document.bytes.data(), int(document.bytes.size()));
}

void tst_KilledSave::initTestCase()
{
    TemporaryDirectory empty;
    StandInHost::Reset(empty.Path());
    m_plugin.Plugin()->Init();
}

void tst_KilledSave::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
}

void tst_KilledSave::cleanup()
{
    m_directory.reset();
}

void tst_KilledSave::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

int tst_KilledSave::Kills()
{
    const int asked = qgetenv("PRIORITY_KILLS").toInt();
    return asked > 0 ? asked : 60;
}

void tst_KilledSave::SaveForever(const std::vector<Model::Entry> &entries, int readyPipe)
{
    qInstallMessageHandler(Discard);
    // The page would take most of the time, and it is the saving that is to be hit.
    m_plugin.Service()->disconnect();
    IPriorityPlugin *priority = m_plugin.Priority();
    bool told = false;
    for (std::size_t i = 0;; i = (i + 1) % entries.size()) {
        priority->AddTopPriority(ToProduct(entries[i]));
        if (!told) {
            told = write(readyPipe, "r", 1) == 1;
        }
    }
}

void tst_KilledSave::StartAndKill(const std::vector<Model::Entry> &entries, int microseconds, int wholeSize)
{
    const QByteArray path = QFile::encodeName(m_directory->FilePath("Priority.xml"));
    int ready[2];
    QCOMPARE(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        SaveForever(entries, ready[1]);
    }
    char byte = 0;
    QCOMPARE(int(read(ready[0], &byte, 1)), 1);
    close(ready[0]);
    close(ready[1]);
    usleep(useconds_t(microseconds));
    struct stat found;
    const int mostLooks = 200000;
    for (int i = 0; wholeSize != 0 && i < mostLooks; ++i) {
        if (stat(path.constData(), &found) != 0 || found.st_size < wholeSize) {
            break;
        }
    }
    QCOMPARE(kill(child, SIGKILL), 0);
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
}

tst_KilledSave::Found tst_KilledSave::WhatIsThere(const std::vector<QByteArray> &lists)
{
    const QStringList files =
        QDir(m_directory->Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    if (files.isEmpty()) {
        return Missing;
    }
    const QByteArray bytes = m_directory->Read("Priority.xml");
    Found found = SomethingElse;
    for (const QByteArray &list : lists) {
        if (bytes == list) {
            return files.size() == 1 ? Whole : SomethingElse;
        }
        if (list.startsWith(bytes) && files.size() == 1) {
            found = Beginning;
        }
    }
    return found;
}

void tst_KilledSave::leavesAListOrItsBeginningOrNothing_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("nameLength");
    QTest::addColumn<int>("longestLife");
    Row("a list of ordinary size", 5, 12, 6000);
    Row("a list of a megabyte", 10, 100000, 60000);
}

void tst_KilledSave::leavesAListOrItsBeginningOrNothing()
{
    QFETCH(int, count);
    QFETCH(int, nameLength);
    QFETCH(int, longestLife);
    std::vector<Model::Entry> entries;
    for (int i = 0; i < count; ++i) {
        entries.push_back(Model::Entry{Name(i, nameLength), u"1"});
    }
    // The lists that stand in the file one after the other, each entry in turn brought to the top.
    std::vector<QByteArray> lists;
    for (int first = 0; first < count; ++first) {
        Model::Entries list;
        for (int i = 0; i < count; ++i) {
            list.push_back(entries[std::size_t((first - i + count) % count)]);
        }
        lists.push_back(Bytes(Model::ProductDocument(list)));
    }
    Model::Entries initial(entries.rbegin(), entries.rend());
    int found[] = {0, 0, 0};
    for (int i = 0; i < Kills() / 2; ++i) {
        m_directory->Write("Priority.xml", Bytes(Model::ProductDocument(initial)));
        StartAndKill(entries, int(qint64(i) * 397 * longestLife / 6000 % longestLife),
                     i % 2 == 0 ? 0 : int(lists.front().size()));
        const Found what = WhatIsThere(lists);
        QVERIFY2(what != SomethingElse, m_directory->Read("Priority.xml").left(2000).constData());
        ++found[what];
    }
    fprintf(stderr, "killed %d times: %d whole, %d cut off, %d missing\n", Kills() / 2, found[Whole],
            found[Beginning], found[Missing]);
    QVERIFY2(found[Beginning] + found[Missing] > 0, "no kill has hit a save");
}

void tst_KilledSave::killedAtEveryCallAndByte()
{
    const Model::Entries before = {{u"A", u"1"}, {u"Caf\u00e9", u"1"}};
    const Model::Entries after = {{u"New", u"1"}, {u"A", u"1"}, {u"Caf\u00e9", u"1"}};
    const std::vector<QByteArray> lists = {Bytes(Model::ProductDocument(before)),
                                           Bytes(Model::ProductDocument(after))};
    int found[] = {0, 0, 0};
    int kills = 0;
    for (int number = 1;; ++number) {
        bool died = false;
        for (int bytes = 0; bytes <= lists[1].size(); ++bytes) {
            m_directory->Write("Priority.xml", lists[0]);
            const pid_t child = fork();
            if (child == 0) {
                qInstallMessageHandler(Discard);
                SystemCalls::Watch(m_directory->Path());
                SystemCalls::MakeDie(number, bytes);
                m_plugin.Priority()->AddTopPriority(Entry("New"));
                _exit(0);
            }
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            died = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
            if (!died) {
                break;
            }
            const Found what = WhatIsThere(lists);
            QVERIFY2(what != SomethingElse, m_directory->Read("Priority.xml").constData());
            ++found[what];
            ++kills;
            // Only where it wrote does it matter how much.
            const int size = m_directory->Read("Priority.xml").size();
            if (what == Whole || what == Missing || size != bytes) {
                break;
            }
        }
        if (!died) {
            break;
        }
    }
    fprintf(stderr, "killed at %d moments: %d whole, %d cut off, %d missing\n", kills, found[Whole],
            found[Beginning], found[Missing]);
    QVERIFY(found[Whole] > 0);
    QVERIFY(found[Missing] > 0);
    QVERIFY(found[Beginning] >= lists[1].size() - 1);
}

void tst_KilledSave::nextStartTellsWhatItFound_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("line");
    const Model::Document document =
        Model::ProductDocument(Model::Entries{{u"A", u"1"}, {u"B", u"1"}, {u"C", u"1"}});
    Row("missing", -1, 0, "does not exist");
    Row("empty", 0, 0, "ReadPriorityItem: Read Error: n");
    Row("cut off", int(document.ends[1]), 2, "ReadPriorityItem: Read Error: n");
    Row("whole", int(document.bytes.size()), 3, "");
}

void tst_KilledSave::nextStartTellsWhatItFound()
{
    QFETCH(int, size);
    QFETCH(int, rows);
    QFETCH(QString, line);
    const Model::Document document =
        Model::ProductDocument(Model::Entries{{u"A", u"1"}, {u"B", u"1"}, {u"C", u"1"}});
    if (size >= 0) {
        m_directory->Write("Priority.xml", Bytes(document).left(size));
    }
    QProcess next;
    next.setProcessChannelMode(QProcess::MergedChannels);
    next.start(QCoreApplication::applicationFilePath(), QStringList() << "--start" << m_directory->Path());
    QVERIFY(next.waitForFinished(60000));
    const QString said = QString::fromUtf8(next.readAll());
    QCOMPARE(next.exitStatus(), QProcess::NormalExit);
    QCOMPARE(next.exitCode(), rows);
    if (!line.isEmpty()) {
        QVERIFY2(said.contains(line), qPrintable(said));
    } else {
        QVERIFY2(!said.contains("Read Error") && !said.contains("does not exist"), qPrintable(said));
    }
    // What it found is kept, and the file is whole again after its first change.
    QList<PriorityList> list;
    QCOMPARE(m_plugin.Priority()->GetPriorityList(&list), 0);
    QCOMPARE(AsTexts(list), (QStringList() << "New/1"
                                           << "A/1"
                                           << "B/1"
                                           << "C/1")
                                .mid(0, rows + 1));
}

/** A start of the plug-in in a process of its own; the number of rows on its page is the answer. */
static int NextStart(const QString &directory)
{
    StandInHost::Reset(directory);
    LoadedPlugin plugin;
    plugin.Plugin()->Init();
    QWidget window;
    QRect rect;
    plugin.Setting()->ShowSettingDialog(&window, rect);
    const int rows = window.findChild<QTableWidget *>("priorityTable")->rowCount();
    plugin.Priority()->AddTopPriority(Entry("New"));
    plugin.Setting()->OnClickSettingOkButton();
    plugin.Plugin()->OnDestroy();
    return rows;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--start") == 0) {
        return NextStart(QFile::decodeName(argv[2]));
    }
    tst_KilledSave test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killedsave.moc"
