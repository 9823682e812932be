#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QtTest>

namespace
{

struct Outcome {
    int status;
    QString out;
    QString err;
};

Outcome Run(const QString &program, const QStringList &arguments, const QString &home = QString())
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    // What is installed has to find its own.
    variables.remove("LD_LIBRARY_PATH");
    if (!home.isEmpty()) {
        variables.insert("HOME", home);
        variables.insert("XDG_DATA_HOME", home + "/data");
    }
    QProcess process;
    process.setProcessEnvironment(variables);
    process.start(program, arguments);
    Outcome outcome;
    const bool ended = process.waitForFinished(240000);
    outcome.status = ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    outcome.out = QString::fromLocal8Bit(process.readAllStandardOutput());
    outcome.err = QString::fromLocal8Bit(process.readAllStandardError());
    return outcome;
}

QString Libraries()
{
    return INSTALLED_LIBRARIES;
}

QByteArray ReadFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList ResourceIds(const QByteArray &text)
{
    QSet<QString> ids;
    for (int begin = text.indexOf("IDS_"); begin >= 0; begin = text.indexOf("IDS_", begin + 1)) {
        int end = begin;
        while (end < text.size() && (isupper(text.at(end)) || isdigit(text.at(end)) || text.at(end) == '_')) {
            ++end;
        }
        ids.insert(QString::fromLatin1(text.mid(begin, end - begin)));
    }
    QStringList sorted = ids.values();
    sorted.sort();
    return sorted;
}

/** A picture with something in it: no single colour takes all but a few of its pixels. */
bool ShowsSomething(const QImage &image)
{
    QHash<QRgb, int> counts;
    int most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            most = qMax(most, ++counts[image.pixel(x, y)]);
        }
    }
    return counts.size() > 20 && most < image.width() * image.height() * 9 / 10;
}

} // namespace

/** What cmake --install puts into a directory, used as other teams use it, after that directory was moved. */
class InstalledTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void componentsHaveTheirFiles_data();
    void componentsHaveTheirFiles();
    void nothingLeadsBackToTheBuild();
    void resourceFolderIsComplete();
    void dashboardFindsItsPlugin();
    void dashboardFindsItsLanguages();

    void packageOffersHeadersAndLibraries();
    void packageRefusesAnotherToolkit();
    void packageRefusesAnotherVersion();

    void minimalHostIsMinimal();
    void minimalHostShowsThePage();
    void siblingExtendsTheList();
    void siblingAddsNothingTwice();
    void siblingLeavesADamagedListAlone();
    void minimalHostRefusesWhatIsNoPlugin();
    void hostLibrariesTakeThePlaceOfTheReference();

    void guideNamesEveryText();

private:
    QString Path(const QString &name) const { return m_directory.FilePath("moved/" + name); }
    QStringList Files(const QString &directory) const;

    /** Configures and builds a project against the installation; empty, or what went wrong. */
    QString Build(const QString &source, const QString &name,
                  const QStringList &options = QStringList()) const;
    Outcome Configure(const QString &source, const QString &name, const QStringList &options) const;

    /** Builds both examples, once. */
    QString BuildExamples();
    Outcome RunMinimalHost(const QString &home, const QStringList &siblings) const;
    QString Sibling() const { return m_directory.FilePath("sibling/libGuestNetwork.so"); }
    QString Home(const QString &name) const;

    TemporaryDirectory m_directory;
    bool m_examplesBuilt = false;
};

void InstalledTest::initTestCase()
{
    const Outcome outcome = Run(CMAKE_PROGRAM, QStringList() << "--install" << BUILD_DIRECTORY << "--prefix"
                                                             << m_directory.FilePath("installed"));
    QVERIFY2(outcome.status == 0, qPrintable(outcome.out + outcome.err));
    QVERIFY(QDir(m_directory.Path()).rename("installed", "moved"));
}

QStringList InstalledTest::Files(const QString &directory) const
{
    QStringList files;
    QDirIterator iterator(directory, QDir::Files | QDir::System | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        files.append(QDir(directory).relativeFilePath(iterator.next()));
    }
    files.sort();
    return files;
}

Outcome InstalledTest::Configure(const QString &source, const QString &name, const QStringList &options) const
{
    QStringList arguments = QString(CONFIGURE_OPTIONS).split('|');
    arguments << "-S" << source << "-B" << m_directory.FilePath(name)
              << "-DCMAKE_PREFIX_PATH=" + m_directory.FilePath("moved") << options;
    return Run(CMAKE_PROGRAM, arguments);
}

QString InstalledTest::Build(const QString &source, const QString &name, const QStringList &options) const
{
    const Outcome configured = Configure(source, name, options);
    if (configured.status != 0) {
        return configured.out + configured.err;
    }
    const Outcome built = Run(CMAKE_PROGRAM, QStringList() << "--build" << m_directory.FilePath(name));
    return built.status == 0 ? QString() : built.out + built.err;
}

QString InstalledTest::BuildExamples()
{
    if (m_examplesBuilt) {
        return QString();
    }
    const QString examples = Path("share/doc/priority-plugin-dev/examples/");
    QString problem = Build(examples + "minimal-host", "host");
    if (problem.isEmpty()) {
        problem = Build(examples + "sibling-plugin", "sibling");
    }
    m_examplesBuilt = problem.isEmpty();
    return problem;
}

Outcome InstalledTest::RunMinimalHost(const QString &home, const QStringList &siblings) const
{
    return Run(m_directory.FilePath("host/minimal-host"),
               QStringList() << "--picture" << home + "/page.png" << siblings, home);
}

QString InstalledTest::Home(const QString &name) const
{
    const QString home = m_directory.FilePath(name);
    QDir().mkpath(home + "/.minimal-host");
    return home;
}

void InstalledTest::componentsHaveTheirFiles_data()
{
    QTest::addColumn<QString>("component");
    QTest::addColumn<QStringList>("expected");

    const QString plugins = Libraries() + "/priority-dashboard/plugins/";
    Row("runtime", "runtime",
        (QStringList() << Libraries() + "/libcoreui.so.1" << Libraries() + "/libzeltsdk.so.1"
                       << plugins + "PriorityPlugin/libPriorityPlugin.so"
                       << plugins + "PriorityPlugin/wifi.png" << plugins + "PriorityPlugin/3G .png"
                       << plugins + "PriorityPlugin/config.xml"));
    QStringList development = QStringList()
                              << Libraries() + "/libcoreui.so" << Libraries() + "/libzeltsdk.so"
                              << Libraries() + "/cmake/PriorityPlugin/PriorityPluginConfig.cmake"
                              << Libraries() + "/cmake/PriorityPlugin/PriorityPluginConfigVersion.cmake"
                              << "include/priority-plugin/HostControl.h"
                              << "include/priority-plugin/ZeltSdkStatus.h"
                              << "share/doc/priority-plugin-dev/docs/integrating.md"
                              << "share/doc/priority-plugin-dev/docs/plugin-authors.md"
                              << "share/doc/priority-plugin-dev/examples/minimal-host/main.cpp"
                              << "share/doc/priority-plugin-dev/examples/sibling-plugin/GuestNetwork.cpp";
    QStringList headers = QDir(SOURCE_DIRECTORY "/include").entryList(QStringList("*.h"));
    // How this tree copes with several generations of Qt is no contract.
    QVERIFY(headers.removeOne("ToolkitCompat.h"));
    for (int i = 0; i < headers.size(); ++i) {
        const QString &header = headers.at(i);
        development << "include/priority-plugin/" + header;
    }
    Row("development", "development", development);
    const bool hasNetworkManager = HAS_NETWORKMANAGER;
    const QStringList siblings = hasNetworkManager
                                     ? QStringList(plugins + "WLANNetworkManager/libWLANNetworkManager.so")
                                     : QStringList();
    const QString id = "com.torvik.netquillforge.PriorityDashboard";
    Row("dashboard", "dashboard",
        (QStringList() << "bin/priority-dashboard" << siblings << plugins + "WLANStored/libWLANStored.so"
                       << "share/priority-dashboard/languages/ar.qm"
                       << "share/priority-dashboard/languages/en.qm"
                       << "share/priority-dashboard/languages/he.qm"
                       << "share/applications/" + id + ".desktop"
                       << "share/metainfo/" + id + ".metainfo.xml"
                       << "share/icons/hicolor/48x48/apps/" + id + ".png"
                       << "share/icons/hicolor/128x128/apps/" + id + ".png"
                       << "share/icons/hicolor/scalable/apps/" + id + ".svg"
                       << "share/man/man1/priority-dashboard.1"
                       << "share/bash-completion/completions/priority-dashboard"));
}

void InstalledTest::componentsHaveTheirFiles()
{
    QFETCH(QString, component);
    QFETCH(QStringList, expected);
    const QString directory = m_directory.FilePath(component);
    const Outcome outcome = Run(CMAKE_PROGRAM, QStringList() << "--install" << BUILD_DIRECTORY << "--prefix"
                                                             << directory << "--component" << component);
    QVERIFY2(outcome.status == 0, qPrintable(outcome.out + outcome.err));
    const QStringList files = Files(directory);
    QVERIFY(!files.contains("include/priority-plugin/ToolkitCompat.h"));
    for (int i = 0; i < expected.size(); ++i) {
        QVERIFY2(files.contains(expected.at(i)), qPrintable(expected.at(i)));
    }
    // A file of one component is in no other.
    const QStringList components = QStringList() << "runtime"
                                                 << "development"
                                                 << "dashboard";
    for (int i = 0; i < components.size(); ++i) {
        const QStringList others = Files(m_directory.FilePath(components.at(i)));
        for (int j = 0; j < files.size() && components.at(i) != component; ++j) {
            QVERIFY2(!others.contains(files.at(j)), qPrintable(files.at(j)));
        }
    }
    const QStringList all = Files(m_directory.FilePath("moved"));
    for (int i = 0; i < files.size(); ++i) {
        QVERIFY2(all.contains(files.at(i)), qPrintable(files.at(i)));
    }
}

void InstalledTest::nothingLeadsBackToTheBuild()
{
    const QStringList files = Files(m_directory.FilePath("moved"));
    for (int i = 0; i < files.size(); ++i) {
        const QString path = Path(files.at(i));
        if (path.endsWith(".cmake")) {
            const QByteArray content = ReadFile(path);
            QVERIFY2(!content.contains(BUILD_DIRECTORY), qPrintable(path));
            QVERIFY2(!content.contains(SOURCE_DIRECTORY), qPrintable(path));
        } else if (path.contains(".so") || path.endsWith("/dashboard")) {
            const Outcome outcome = Run("readelf", QStringList() << "-d" << path);
            QVERIFY2(outcome.status == 0, "readelf of binutils is needed");
            QVERIFY2(!outcome.out.contains(BUILD_DIRECTORY), qPrintable(path + outcome.out));
            QVERIFY2(!outcome.out.contains(":]"), qPrintable(path + outcome.out));
        }
    }
}

void InstalledTest::resourceFolderIsComplete()
{
    const QStringList names = QStringList() << "wifi.png"
                                            << "3G .png"
                                            << "config.xml";
    for (int i = 0; i < names.size(); ++i) {
        const QByteArray source = ReadFile(SOURCE_DIRECTORY "/plugins/PriorityPlugin/" + names.at(i));
        QVERIFY(!source.isEmpty());
        QCOMPARE(ReadFile(Path(Libraries() + "/priority-dashboard/plugins/PriorityPlugin/" + names.at(i))),
                 source);
    }
}

void InstalledTest::dashboardFindsItsPlugin()
{
    const QString home = Home("dashboard-home");
    const Outcome outcome =
        Run(Path("bin/priority-dashboard"), QStringList("--add=Office") << "--list", home);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString("1\t1\tOffice\n"));
    QCOMPARE(outcome.status, 0);
}

void InstalledTest::dashboardFindsItsLanguages()
{
    const QString home = Home("language-home");
    const Outcome outcome = Run(Path("bin/priority-dashboard"), QStringList("--language=tlh"), home);
    QVERIFY2(outcome.err.contains("there are: ar, de, en, "), qPrintable(outcome.err));
}

void InstalledTest::packageOffersHeadersAndLibraries()
{
    const QString problem = Build(SOURCE_DIRECTORY "/tests/install/consumer", "consumer");
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QString home = Home("consumer-home");
    const Outcome outcome = Run(m_directory.FilePath("consumer/consumer"), QStringList(), home);
    QCOMPARE(outcome.out, QString("0 /somewhere IDS_OK\n"));
    QVERIFY(QDir(home + "/data/priority-dashboard").exists());
}

void InstalledTest::packageRefusesAnotherToolkit()
{
    const int other = TOOLKIT_GENERATION == 6 ? 5 : 6;
    const Outcome outcome = Configure(SOURCE_DIRECTORY "/tests/install/othertoolkit", "othertoolkit",
                                      QStringList() << QString("-DOTHER_TOOLKIT=%1").arg(other));
    QVERIFY(outcome.status != 0);
    const QString told = outcome.err.simplified();
    const QString expected = QString("was built for Qt %1, and this project uses Qt %2.");
    QVERIFY2(told.contains(expected.arg(TOOLKIT_GENERATION).arg(other)), qPrintable(told));
}

void InstalledTest::packageRefusesAnotherVersion()
{
    const Outcome outcome = Configure(SOURCE_DIRECTORY "/tests/install/consumer", "otherversion",
                                      QStringList() << "-DWANTED_VERSION=99.0");
    QVERIFY(outcome.status != 0);
    QVERIFY2(outcome.err.simplified().contains("requested version \"99.0\""), qPrintable(outcome.err));
}

void InstalledTest::minimalHostIsMinimal()
{
    const QDir directory(Path("share/doc/priority-plugin-dev/examples/minimal-host"));
    const QStringList sources = directory.entryList(QStringList() << "*.cpp"
                                                                  << "*.h");
    int lines = 0;
    for (int i = 0; i < sources.size(); ++i) {
        lines += ReadFile(directory.filePath(sources.at(i))).count('\n');
    }
    QVERIFY2(lines > 0 && lines < 150, qPrintable(QString::number(lines)));
}

void InstalledTest::minimalHostShowsThePage()
{
    const QString problem = BuildExamples();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QString home = Home("host-home");
    m_directory.Write("host-home/.minimal-host/Priority.xml",
                      "<zeltdoc><profile><item name=\"Home\" type=\"1\"/></profile></zeltdoc>");
    const Outcome outcome = RunMinimalHost(home, QStringList());
    QVERIFY2(outcome.status == 0, qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString("Home (type 1)\n"));
    const QImage page(home + "/page.png");
    QCOMPARE(page.size(), QSize(420, 374));
    QVERIFY(ShowsSomething(page));
    // Shown with the entry in it.
    const QString emptyHome = Home("empty-home");
    QCOMPARE(RunMinimalHost(emptyHome, QStringList()).status, 0);
    QVERIFY(QImage(emptyHome + "/page.png") != page);
}

void InstalledTest::siblingExtendsTheList()
{
    const QString problem = BuildExamples();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QString home = Home("sibling-home");
    m_directory.Write("sibling-home/.minimal-host/Priority.xml",
                      "<zeltdoc><profile><item name=\"Home\" type=\"1\"/></profile></zeltdoc>");
    const Outcome outcome = RunMinimalHost(home, QStringList(Sibling()));
    QVERIFY2(outcome.status == 0, qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString("Office (type 1)\nHome (type 1)\nGuest (type 1)\n"));
    QCOMPARE(m_directory.Read("sibling-home/.minimal-host/Priority.xml"),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<zeltdoc type=\"profile\">\n"
                        "    <profile>\n"
                        "        <item name=\"Office\" type=\"1\"/>\n"
                        "        <item name=\"Home\" type=\"1\"/>\n"
                        "        <item name=\"Guest\" type=\"1\"/>\n"
                        "    </profile>\n"
                        "</zeltdoc>\n"));
    // Told of each change, while it was made.
    const int added = outcome.err.indexOf("GuestNetwork: the list has 2 entries now");
    const int raised = outcome.err.indexOf("GuestNetwork: the list has 3 entries now");
    QVERIFY2(added >= 0 && raised > added, qPrintable(outcome.err));
}

void InstalledTest::siblingAddsNothingTwice()
{
    const QString problem = BuildExamples();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QString home = Home("twice-home");
    QCOMPARE(RunMinimalHost(home, QStringList(Sibling())).out, QString("Office (type 1)\nGuest (type 1)\n"));
    QCOMPARE(RunMinimalHost(home, QStringList(Sibling())).out, QString("Office (type 1)\nGuest (type 1)\n"));
}

void InstalledTest::siblingLeavesADamagedListAlone()
{
    const QString problem = BuildExamples();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QString home = Home("damaged-home");
    m_directory.Write("damaged-home/.minimal-host/Priority.xml",
                      "<zeltdoc><profile><item name=\"Home\" type=\"1\"/><item name=");
    const Outcome outcome = RunMinimalHost(home, QStringList(Sibling()));
    QVERIFY2(outcome.err.contains("GuestNetwork: the list can't be read (6)"), qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString("Home (type 1)\n"));
}

void InstalledTest::minimalHostRefusesWhatIsNoPlugin()
{
    const QString problem = BuildExamples();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const Outcome outcome = RunMinimalHost(Home("refused-home"), QStringList("/absent.so"));
    QVERIFY2(outcome.err.contains("/absent.so: not a plug-in for this host"), qPrintable(outcome.err));
}

void InstalledTest::hostLibrariesTakeThePlaceOfTheReference()
{
    const QString problem = Build(Path("share/doc/priority-plugin-dev/examples/minimal-host"), "libraries",
                                  QStringList("-DHOST_LIBRARIES=ON"));
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QString program = m_directory.FilePath("libraries/minimal-host");
    const QString home = Home("libraries-home");
    const QStringList arguments = QStringList() << "--picture" << home + "/page.png";

    // Without the reference libraries nothing else can serve, and the plug-in is the very same file.
    const QDir reference(Path(Libraries()));
    QVERIFY(QDir().mkpath(m_directory.FilePath("away")));
    const QStringList names = reference.entryList(QStringList() << "libcoreui.so.*"
                                                                << "libzeltsdk.so.*");
    QVERIFY(names.size() >= 2);
    for (int i = 0; i < names.size(); ++i) {
        QVERIFY(QFile::rename(reference.filePath(names.at(i)), m_directory.FilePath("away/" + names.at(i))));
    }
    const Outcome outcome = Run(program, arguments, home);
    for (int i = 0; i < names.size(); ++i) {
        QVERIFY(QFile::rename(m_directory.FilePath("away/" + names.at(i)), reference.filePath(names.at(i))));
    }
    QVERIFY2(outcome.status == 0, qPrintable(outcome.err));
    QVERIFY(QFile::exists(home + "/.minimal-host/Priority.xml"));
    QVERIFY(ShowsSomething(QImage(home + "/page.png")));
}

void InstalledTest::guideNamesEveryText()
{
    const QDir sources(SOURCE_DIRECTORY "/src/PriorityPlugin");
    const QStringList names = sources.entryList(QStringList("*.cpp"));
    QByteArray code;
    for (int i = 0; i < names.size(); ++i) {
        code += ReadFile(sources.filePath(names.at(i)));
    }
    const QStringList used = ResourceIds(code);
    QVERIFY(used.size() > 20);
    QCOMPARE(ResourceIds(ReadFile(Path("share/doc/priority-plugin-dev/docs/integrating.md"))), used);
}

QTEST_GUILESS_MAIN(InstalledTest)
#include "tst_installed.moc"
