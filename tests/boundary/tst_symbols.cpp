#include "HostServices.h"
#include "LoadedLibrary.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

#include <Row.h>
#include <dlfcn.h>

/** The names that cross between the libraries' files and whoever loads or links them. */
class SymbolsTest : public QObject
{
    Q_OBJECT

private slots:
    void PluginsExportTheirEntryPointsOnly_data();
    void PluginsExportTheirEntryPointsOnly();
    void HostLibrariesExportTheirServicesOnly_data();
    void HostLibrariesExportTheirServicesOnly();
    void PluginAsksForTheHostServicesOnly();
    void PluginTakesTheHostServicesOfTheProgram();
    void VerificationTextIsAsItWas_data();
    void VerificationTextIsAsItWas();
    void MetadataNamesTheInterface_data();
    void MetadataNamesTheInterface();
};

namespace
{

QByteArray Run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("%s of binutils is needed", qPrintable(program));
    }
    return process.readAllStandardOutput();
}

/** What linkers and sanitizers put into a library of their own accord. */
bool IsOfTheTools(const QString &name)
{
    return name.startsWith("__") || name.startsWith("_edata") || name == "_end" || name == "_init" ||
           name == "_fini";
}

/** An inline function or a type of Qt that the compiler put into the library: which ones these are
 * changes with the optimisation. */
bool IsOfTheToolkit(const QString &letter, const QString &name)
{
    const QStringList beginnings = QStringList() << "_ZNK"
                                                 << "_ZN"
                                                 << "_ZTI"
                                                 << "_ZTS"
                                                 << "_ZTV";
    for (int i = 0; i < beginnings.size(); ++i) {
        if (name.startsWith(beginnings.at(i))) {
            int begin = static_cast<int>(beginnings.at(i).size());
            while (begin < name.size() && name.at(begin).isDigit()) {
                ++begin;
            }
            return (letter == "W" || letter == "V") && name.mid(begin, 1) == "Q";
        }
    }
    return false;
}

/** The dynamic symbols of one kind of a library, sorted, with their versions. */
QStringList Symbols(const QString &file, const QString &kind)
{
    QStringList names;
    const QStringList lines = QString(Run("nm", QStringList() << "-D" << kind << file)).split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        // "<address, or blanks> <letter> <name>"; a small letter marks what may stay without a definition.
        const QStringList words = lines.at(i).simplified().split(' ');
        const QString name = words.last();
        const QString letter = words.value(static_cast<int>(words.size()) - 2);
        if (!letter.isEmpty() && letter != "w" && !IsOfTheTools(name) && !IsOfTheToolkit(letter, name)) {
            names.append(name);
        }
    }
    names.sort();
    return names;
}

QString HostLibrary(const QString &name)
{
    return QString(BUILD_DIRECTORY "/lib/lib%1.so").arg(name);
}

/** The services that plug-ins know, of the core UI library and of the SDK library. */
QStringList CoreServices()
{
    return QStringList()
           << "_ZN11CommonUtils10ElidedTextEP6QLabel7QStringN2Qt13TextElideModeE"
           << "_ZN11CommonUtils11ShowMessageEN11QMessageBox4IconEP7QWidget7QStringS4_S4_S4_S4_b6QFlagsIN2Qt10"
              "WindowTypeEEPP7QDialogS4_b"
           << "_ZN11CommonUtils20GetPluginLibraryPathEv"
           << "_ZN12ExtendDialog13AddMainWidgetEP7QWidget"
           << "_ZN12ExtendDialog14setWindowTitleERK7QString"
           << "_ZN12ExtendDialogC2EP7QWidget6QFlagsIN2Qt10WindowTypeEE12enWidgetType"
           << "_ZN12ExtendDialogD2Ev"
           << "_ZN14ExtendLineEditC1EP7QWidget"
           << "_ZN6Change11GetLangNameEv"
           << "_ZN6Change2trERK7QStringS2_"
           << "_ZN7Startup18GetPluginContainerEv"
           << "_ZTI12ExtendDialog";
}

QString SdkService()
{
    return "_Z25ZELT_GetUserDataDirectoryPPt";
}

QStringList Sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

void SymbolsTest::PluginsExportTheirEntryPointsOnly_data()
{
    QTest::addColumn<QString>("file");
    const QStringList folders = QDir(BUILD_DIRECTORY "/plugins").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(folders.contains("PriorityPlugin") && folders.contains("WLANStored"));
    for (int i = 0; i < folders.size(); ++i) {
        Row(qPrintable(folders.at(i)), LoadedLibrary::FileName(folders.at(i)));
    }
}

void SymbolsTest::PluginsExportTheirEntryPointsOnly()
{
    QFETCH(QString, file);
    QStringList names = Symbols(file, "--defined-only");
    // Qt's own, which the fourth generation hasn't, and whose name grew in the sixth.
    const QStringList metadata = names.filter("qt_plugin_query_metadata");
    QVERIFY(metadata.size() <= 1);
    names.removeAll(metadata.value(0));
    QCOMPARE(names, QStringList() << "qt_plugin_instance"
                                  << "qt_plugin_query_verification_data");
}

void SymbolsTest::HostLibrariesExportTheirServicesOnly_data()
{
    QTest::addColumn<QStringList>("names");
    const QString secondPart = QString("_ZThn%1_").arg(2 * sizeof(void *));
    Row("coreui", Sorted(CoreServices() << "_ZN12ExtendDialogC1EP7QWidget6QFlagsIN2Qt10WindowTypeEE12"
                                           "enWidgetType"
                                        << "_ZN12ExtendDialogD0Ev"
                                        << "_ZN12ExtendDialogD1Ev" << secondPart + "N12ExtendDialogD0Ev"
                                        << secondPart + "N12ExtendDialogD1Ev"
                                        << "_ZN14ExtendLineEditC2EP7QWidget"
                                        << "_ZTS12ExtendDialog"
                                        << "_ZTV12ExtendDialog"
                                        << "_ZTI14ExtendLineEdit"
                                        << "_ZTS14ExtendLineEdit"
                                        << "_ZTV14ExtendLineEdit"
                                        << "_ZN11HostControl11SetLanguageERK7QString"
                                        << "_ZN11HostControl13IsRightToLeftERK7QString"
                                        << "_ZN11HostControl13LanguageNamesEv"
                                        << "_ZN11HostControl16LanguageProblemsEv"
                                        << "_ZN11HostControl18SetPluginContainerEP16IPluginContainer"
                                        << "_ZN11HostControl20SetLanguageDirectoryERK7QString"
                                        << "_ZN11HostControl20SetPluginLibraryPathERK7QString"
                                        << "_ZN11HostControl6TextInERK7QStringS2_S2_"
                                        << "_ZN11HostControl9ApplyLookEv"));
    Row("zeltsdk", QStringList(SdkService()));
}

void SymbolsTest::HostLibrariesExportTheirServicesOnly()
{
    QFETCH(QStringList, names);
    QCOMPARE(Symbols(HostLibrary(QTest::currentDataTag()), "--defined-only").join("\n"), names.join("\n"));
}

/**
 * What the plug-in leaves to others, less what Qt and the system's libraries give: they stand for
 * themselves in the tests that link the same ones.
 */
void SymbolsTest::PluginAsksForTheHostServicesOnly()
{
    LoadedLibrary library("PriorityPlugin");
    const QStringList missing = Symbols(LoadedLibrary::FileName("PriorityPlugin"), "--undefined-only");
    QStringList ofTheHost;
    for (int i = 0; i < missing.size(); ++i) {
        const QByteArray name = missing.at(i).section('@', 0, 0).toLatin1();
        Dl_info info;
        void *definition = dlsym(RTLD_DEFAULT, name.constData());
        const bool known = definition && dladdr(definition, &info);
        const QString file = known ? QFileInfo(info.dli_fname).fileName() : QString();
        const bool isVersioned = missing.at(i).contains('@');
        if (!isVersioned && (file.startsWith("tst_symbols") || file.startsWith("libcoreui") ||
                             file.startsWith("libzeltsdk") || !known)) {
            ofTheHost.append(name);
        }
    }
    // Sanitizers check the types of whatever a class derives from or makes.
    ofTheHost.removeAll("_ZTI14ExtendLineEdit");
    QCOMPARE(ofTheHost.join("\n"), Sorted(CoreServices() << SdkService()).join("\n"));
}

void SymbolsTest::PluginTakesTheHostServicesOfTheProgram()
{
    HostServices::Reset("/nowhere");
    LoadedLibrary library("PriorityPlugin");
    const QStringList names = CoreServices() << SdkService();
    for (int i = 0; i < names.size(); ++i) {
        Dl_info info;
        void *definition = dlsym(RTLD_DEFAULT, names.at(i).toLatin1());
        QVERIFY2(definition && dladdr(definition, &info), qPrintable(names.at(i)));
        QCOMPARE(QFileInfo(info.dli_fname).fileName(), QString("tst_symbols"));
    }
}

void SymbolsTest::VerificationTextIsAsItWas_data()
{
    QTest::addColumn<QString>("name");
    Row("PriorityPlugin", "PriorityPlugin");
    Row("WLANStored", "WLANStored");
}

void SymbolsTest::VerificationTextIsAsItWas()
{
    QFETCH(QString, name);
    QCOMPARE(LoadedLibrary(name).VerificationText(),
             QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                        "buildkey=macosx macx g++-4 full-config"));
}

void SymbolsTest::MetadataNamesTheInterface_data()
{
    VerificationTextIsAsItWas_data();
}

void SymbolsTest::MetadataNamesTheInterface()
{
    QFETCH(QString, name);
    const QString file = LoadedLibrary::FileName(name);
    const bool hasMetadata = !Symbols(file, "--defined-only").filter("qt_plugin_query_metadata").isEmpty();
    const QByteArray sections = Run("readelf", QStringList() << "-S"
                                                             << "-W" << file);
    const QByteArray section = sections.contains(".note.qt.metadata") ? ".note.qt.metadata" : ".qtmetadata";
    QCOMPARE(sections.contains(section), hasMetadata);
    if (hasMetadata) {
        const QByteArray texts = Run("readelf", QStringList() << "-p" << section << file);
        QVERIFY2(texts.contains("com.torvik.netquillforge.plugin.IUIPlugin"), texts.constData());
        QCOMPARE(static_cast<int>(texts.count("com.torvik")), 1);
    }
}

QTEST_GUILESS_MAIN(SymbolsTest)
#include "tst_symbols.moc"
