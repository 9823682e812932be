#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>
#include <IUIPlugin.h>

#include <TemporaryDirectory.h>

#include <QLibrary>
#include <QPluginLoader>
#include <QProcess>
#include <QTableWidget>
#include <QtTest>

/** The library file as other people meet it, with the reference host libraries behind it. */
class tst_Library : public QObject
{
    Q_OBJECT

private slots:
    void exportsTheEntryPointsOnly();
    void resourcesLieBesideIt();
    void verificationText();
    void loadsThroughThePluginLoader();

private:
    static QString Directory() { return BUILD_DIRECTORY "/plugins/PriorityPlugin/"; }
};

void tst_Library::exportsTheEntryPointsOnly()
{
    QProcess nm;
    nm.start("nm", QStringList() << "-D"
                                 << "--defined-only" << Directory() + "libPriorityPlugin.so");
    QVERIFY2(nm.waitForFinished() && nm.exitCode() == 0, "nm of binutils is needed");
    QStringList names;
    const QStringList lines = QString::fromLatin1(nm.readAllStandardOutput()).split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QString name = lines.at(i).section(' ', 2, 2);
        if (!name.isEmpty()) {
            names << name;
        }
    }
    names.sort();
    QVERIFY(names.removeOne("qt_plugin_instance"));
    QVERIFY(names.removeOne("qt_plugin_query_verification_data"));
    // The toolkit's own metadata, from its fifth generation on.
    names.removeOne("qt_plugin_query_metadata");
    QCOMPARE(names, QStringList());
}

void tst_Library::resourcesLieBesideIt()
{
    const QStringList files = QStringList() << "wifi.png"
                                            << "3G .png"
                                            << "config.xml";
    for (int i = 0; i < files.size(); ++i) {
        QFile built(Directory() + files.at(i));
        QFile source(SOURCE_DIRECTORY "/plugins/PriorityPlugin/" + files.at(i));
        QVERIFY2(built.open(QIODevice::ReadOnly), qPrintable(built.fileName()));
        QVERIFY(source.open(QIODevice::ReadOnly));
        QCOMPARE(built.readAll(), source.readAll());
    }
}

void tst_Library::verificationText()
{
    QLibrary library(Directory() + "libPriorityPlugin.so");
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    typedef const char *(*VerificationFunction)();
    const VerificationFunction verification =
        reinterpret_cast<VerificationFunction>(library.resolve("qt_plugin_query_verification_data"));
    QVERIFY(verification);
    QCOMPARE(QByteArray(verification()),
             QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                        "buildkey=macosx macx g++-4 full-config"));
}

void tst_Library::loadsThroughThePluginLoader()
{
    TemporaryDirectory data;
    qputenv("XDG_DATA_HOME", QFile::encodeName(data.Path()));
    QPluginLoader loader(Directory() + "libPriorityPlugin.so");
    QObject *root = loader.instance();
    QVERIFY2(root, qPrintable(loader.errorString()));
    IUIPlugin *plugin = qobject_cast<IUIPlugin *>(root);
    QVERIFY(plugin && plugin->Init());
    QObject *service = nullptr;
    QVERIFY(plugin->QueryInterface(4098, &service));
    IPriorityPlugin *priority = qobject_cast<IPriorityPlugin *>(service);
    PriorityList entry;
    entry.name = "Home";
    entry.type = "1";
    priority->AddTopPriority(entry);
    QWidget window;
    QRect rect;
    QVERIFY(qobject_cast<ISettingUIPlugin *>(service)->ShowSettingDialog(&window, rect));
    QCOMPARE(window.findChild<QTableWidget *>("priorityTable")->rowCount(), 1);
    plugin->OnDestroy();
}

QTEST_MAIN(tst_Library)
#include "tst_library.moc"
