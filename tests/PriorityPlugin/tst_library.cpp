#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>
#include <IUIPlugin.h>

#include <TemporaryDirectory.h>

#include <QPluginLoader>
#include <QTableWidget>
#include <QtTest>

/** The library file as other people meet it, with the reference host libraries behind it. */
class tst_Library : public QObject
{
    Q_OBJECT

private slots:
    void resourcesLieBesideIt();
    void loadsThroughThePluginLoader();

private:
    static QString Directory() { return BUILD_DIRECTORY "/plugins/PriorityPlugin/"; }
};

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
