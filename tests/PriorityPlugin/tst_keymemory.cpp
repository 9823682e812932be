#include "DialogScene.h"

#include <Row.h>
#include <TraceCapture.h>

#include <QLineEdit>
#include <QProcess>
#include <QtTest>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

/** A WLAN plug-in that keeps no key. */
class ForgetfulWLAN : public FakeWLAN
{
public:
    ForgetfulWLAN() : createdProfiles(0) {}

    int CreateWLANProfile(WLANProfile profile) override
    {
        createdProfiles += profile.keyMaterial.isEmpty() ? 0 : 1;
        return 0;
    }

    int createdProfiles;
};

/** Where the key stays in memory after its dialog is closed, and what a process that crashes says of it. */
class tst_KeyMemory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void typedKeyIsWipedOnClosing_data();
    void typedKeyIsWipedOnClosing();
    void keyOfAProfileIsWipedAndTheProfileKept();
    void keyGoesWhenTheMethodNeedsNone();
    void closedDialogHoldsNoKey_data() { typedKeyIsWipedOnClosing_data(); }
    void closedDialogHoldsNoKey();
    void refusedKeyStaysInTheOpenDialog();
    void keyThatWasHandedOverStaysInTheFieldsOnly();
    void keyIsInNoCrashMessage();

private:
    QLineEdit *Field(const char *name) { return m_scene.Find<QLineEdit>(name); }
    void Type(const QString &name);

    DialogScene m_scene;
    ForgetfulWLAN m_wlan;
};

namespace
{

// Not readable as it stands, so that only what the dialog made of it is found.
const ushort disguised[] = {'K' ^ 0x15, '9' ^ 0x15, 'q' ^ 0x15, 'Z' ^ 0x15, 'x' ^ 0x15,
                            '4' ^ 0x15, 'v' ^ 0x15, 'B' ^ 0x15, 'w' ^ 0x15, 'J' ^ 0x15,
                            '2' ^ 0x15, 'r' ^ 0x15, 'T' ^ 0x15, 'p' ^ 0x15};
const int keyLength = sizeof(disguised) / sizeof(disguised[0]);

#if defined(__GNUC__)
#define READS_ALL_MEMORY __attribute__((no_sanitize_address))
#else
#define READS_ALL_MEMORY
#endif

READS_ALL_MEMORY int CountIn(std::uintptr_t begin, std::uintptr_t end)
{
    int count = 0;
    for (std::uintptr_t at = begin; at + sizeof(disguised) <= end; at += 2) {
        const volatile ushort *units = reinterpret_cast<const volatile ushort *>(at);
        int same = 0;
        while (same < keyLength && units[same] == (disguised[same] ^ 0x15)) {
            ++same;
        }
        count += same == keyLength ? 1 : 0;
    }
    return count;
}

/** How often the key stands in the memory of this process. */
int CopiesOfTheKey()
{
    int count = 0;
    std::FILE *maps = std::fopen("/proc/self/maps", "r");
    char line[4096];
    while (std::fgets(line, sizeof(line), maps)) {
        unsigned long begin = 0;
        unsigned long end = 0;
        char rights[5] = "";
        // Without sanitizers everything that can be written; their shadows are too large to read and hold no
        // text.
        const bool understood = std::sscanf(line, "%lx-%lx %4s", &begin, &end, rights) == 3;
        if (understood && std::strncmp(rights, "rw", 2) == 0 && end - begin < (1UL << 30)) {
            count += CountIn(begin, end);
        }
    }
    std::fclose(maps);
    return count;
}

void TypeKey(QWidget *field)
{
    for (int i = 0; i < keyLength; ++i) {
        QTest::keyClick(field, char(disguised[i] ^ 0x15));
    }
}

QString Key()
{
    QString key;
    for (int i = 0; i < keyLength; ++i) {
        key += QChar(ushort(disguised[i] ^ 0x15));
    }
    return key;
}

} // namespace

void tst_KeyMemory::init()
{
    m_scene.Begin();
    m_scene.SetMethods(Words("WPA2PSK open WPA(EAP)"));
    m_wlan.config = m_scene.wlan.config;
    m_wlan.createdProfiles = 0;
    m_wlan.networks.clear();
    m_scene.container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102),
                                     &m_wlan);
}

void tst_KeyMemory::cleanup()
{
    m_scene.End();
}

void tst_KeyMemory::Type(const QString &name)
{
    m_scene.Open("newButton");
    QTest::keyClicks(m_scene.Box("networkNameBox"), name);
    TypeKey(Field("keyEdit"));
    TypeKey(Field("confirmKeyEdit"));
}

void tst_KeyMemory::typedKeyIsWipedOnClosing_data()
{
    QTest::addColumn<QString>("way");
    Row("OK", "OK");
    Row("Cancel", "Cancel");
    Row("title bar", "title bar");
    Row("Escape", "Escape");
}

void tst_KeyMemory::typedKeyIsWipedOnClosing()
{
    QFETCH(QString, way);
    const TraceCapture silence;
    QCOMPARE(CopiesOfTheKey(), 0);
    Type("Mine");
    QVERIFY(CopiesOfTheKey() >= 2);
    m_scene.CloseDialog("newDialog", way);
    QVERIFY(!m_scene.IsOpen("newDialog"));
    QCOMPARE(m_wlan.createdProfiles, way == "OK" ? 1 : 0);
    QCOMPARE(CopiesOfTheKey(), 0);
}

void tst_KeyMemory::keyOfAProfileIsWipedAndTheProfileKept()
{
    const TraceCapture silence;
    WlanAvilableNetworkInfo network;
    network.networkName = "N1";
    m_wlan.networks << network;
    m_wlan.profiles.insert("N1", Profile("WPA2PSK", "CCMP", "0", Key()));
    m_scene.Open("newButton");
    const int before = CopiesOfTheKey();
    m_scene.Box("networkNameBox")->setCurrentIndex(0);
    QVERIFY(CopiesOfTheKey() > before);
    m_scene.CloseDialog("newDialog", "Cancel");
    QVERIFY(CopiesOfTheKey() <= before);
    QVERIFY(m_wlan.profiles.value("N1").keyMaterial == Key());
    WLANProfile profile = m_wlan.profiles.take("N1");
    // The plug-in's own copy, so that the next test begins without.
    profile.keyMaterial.fill(QChar(0));
}

void tst_KeyMemory::keyGoesWhenTheMethodNeedsNone()
{
    const TraceCapture silence;
    const int before = CopiesOfTheKey();
    Type("Mine");
    QVERIFY(CopiesOfTheKey() > before);
    m_scene.Box("authenticationBox")->setCurrentIndex(m_scene.Box("authenticationBox")->findText("WPA(EAP)"));
    QVERIFY(CopiesOfTheKey() <= before);
}

void tst_KeyMemory::closedDialogHoldsNoKey()
{
    QFETCH(QString, way);
    const TraceCapture silence;
    Type("Mine");
    m_scene.CloseDialog("newDialog", way);
    QVERIFY(Field("keyEdit"));
    QCOMPARE(Field("keyEdit")->text(), QString());
    QCOMPARE(Field("confirmKeyEdit")->text(), QString());
    Field("keyEdit")->undo();
    QCOMPARE(Field("keyEdit")->text(), QString());
}

void tst_KeyMemory::refusedKeyStaysInTheOpenDialog()
{
    const TraceCapture silence;
    m_scene.Store(Words("Mine"));
    Type("Mine");
    m_scene.Click("newOkButton");
    QVERIFY(m_scene.IsOpen("newDialog"));
    QVERIFY(Field("keyEdit")->text() == Key());
    QVERIFY(Field("confirmKeyEdit")->text() == Key());
}

/** Counts while a message is open. */
class CopyCounter : public MessageVisitor
{
public:
    CopyCounter() : copies(-1) { StandInHost::messageVisitor = this; }
    ~CopyCounter() override { StandInHost::messageVisitor = nullptr; }

    void MessageIsOpen() override { copies = CopiesOfTheKey(); }

    int copies;
};

void tst_KeyMemory::keyThatWasHandedOverStaysInTheFieldsOnly()
{
    const TraceCapture silence;
    m_scene.Store(Words("Mine"));
    Type("Mine");
    const int before = CopiesOfTheKey();
    CopyCounter counter;
    m_scene.Click("newOkButton");
    QCOMPARE(m_wlan.createdProfiles, 1);
    QVERIFY2(counter.copies >= 0 && counter.copies <= before,
             qPrintable(QString("%1 copies, %2 before").arg(counter.copies).arg(before)));
}

void tst_KeyMemory::keyIsInNoCrashMessage()
{
    QProcess crashing;
    crashing.setProcessChannelMode(QProcess::MergedChannels);
    crashing.start(QCoreApplication::applicationFilePath(), QStringList("--crash"));
    QVERIFY(crashing.waitForFinished(60000));
    const QByteArray said = crashing.readAll();
    QVERIFY(crashing.exitStatus() == QProcess::CrashExit || crashing.exitCode() != 0);
    QVERIFY2(said.contains("FitterAvilableNetwork"), "the trace is among what it says");
    QVERIFY(!said.contains(Key().toLatin1()));
}

/** Dies while the key stands in the open dialog, as a fault anywhere in the host would have it. */
static int Crash()
{
    DialogScene scene;
    scene.Begin();
    scene.SetMethods(Words("WPA2PSK"));
    scene.Open("newButton");
    TypeKey(scene.Find<QWidget>("keyEdit"));
    qFatal("the host has lost its way");
    return 0;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 2 && std::strcmp(argv[1], "--crash") == 0) {
        return Crash();
    }
    tst_KeyMemory test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keymemory.moc"
