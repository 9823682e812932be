#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <INotify.h>
#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>
#include <IUIPlugin.h>
#include <IWLANUIPlugin.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLibrary>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/**
 * The two plug-ins from load to unload: loaded, used in every way, OnDestroy, root object deleted, library
 * unloaded. Made to be run by a memory checker, so all of it happens once and nothing of the host's is left.
 */
class tst_Lifecycle : public QObject
{
    Q_OBJECT

private slots:
    void loadUseDestroyDeleteUnload();

private:
    void UsePage(QWidget *window, ISettingUIPlugin *setting, INotify *notification);
    void UseAddDialog(QWidget *window);
    void UseNewDialog(QWidget *window);
    static void Click(QWidget *window, const char *button);
};

namespace
{

typedef QObject *(*InstanceFunction)();

QObject *LoadRoot(QLibrary *library)
{
    if (!library->load()) {
        qFatal("%s", library->errorString().toLocal8Bit().constData());
    }
    return reinterpret_cast<InstanceFunction>(library->resolve("qt_plugin_instance"))();
}

QObject *Service(QObject *root, int interfaceNumber)
{
    QObject *service = nullptr;
    qobject_cast<IUIPlugin *>(root)->QueryInterface(interfaceNumber, &service);
    return service;
}

bool IsMapped(const QByteArray &library)
{
    QFile maps("/proc/self/maps");
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

} // namespace

void tst_Lifecycle::Click(QWidget *window, const char *button)
{
    QTest::mouseClick(window->findChild<QPushButton *>(button), Qt::LeftButton);
}

void tst_Lifecycle::UseAddDialog(QWidget *window)
{
    Click(window, "addButton");
    QTableWidget *table = window->findChild<QTableWidget *>("rememberTable");
    QVERIFY(table->rowCount() > 2);
    QTest::keyClick(table->cellWidget(0, 0)->findChild<QCheckBox *>(), Qt::Key_Space);
    QTest::keyClick(table->cellWidget(1, 0)->findChild<QCheckBox *>(), Qt::Key_Space);
    Click(window, "addOkButton");
    // Left open: the page's end is to be its end.
    Click(window, "addButton");
}

void tst_Lifecycle::UseNewDialog(QWidget *window)
{
    Click(window, "newButton");
    QComboBox *names = window->findChild<QComboBox *>("networkNameBox");
    names->setCurrentIndex(0);
    names->setEditText("New");
    QComboBox *methods = window->findChild<QComboBox *>("authenticationBox");
    methods->setCurrentIndex(methods->findText("WPA2PSK"));
    QTest::keyClicks(window->findChild<QLineEdit *>("keyEdit"), "short");
    Click(window, "newOkButton");
    QCOMPARE(StandInHost::messages.size(), 1);
    window->findChild<QLineEdit *>("keyEdit")->clear();
    QTest::keyClicks(window->findChild<QLineEdit *>("keyEdit"), "longenough");
    QTest::keyClicks(window->findChild<QLineEdit *>("confirmKeyEdit"), "longenough");
    Click(window, "newOkButton");
    Click(window, "newButton");
}

void tst_Lifecycle::UsePage(QWidget *window, ISettingUIPlugin *setting, INotify *notification)
{
    QRect rect(5, 5, 400, 300);
    QVERIFY(setting->ShowSettingDialog(window, rect));
    QTableWidget *table = window->findChild<QTableWidget *>("priorityTable");
    UseAddDialog(window);
    UseNewDialog(window);
    QTest::mouseClick(table->cellWidget(2, 0), Qt::LeftButton);
    Click(window, "upButton");
    QTest::keyClick(table, Qt::Key_Up);
    QTest::keyClick(table, Qt::Key_Down);
    Click(window, "deleteButton");
    StandInHost::language = "ar";
    notification->Notify(320, 0, 0);
    QCoreApplication::processEvents();
    QVERIFY(setting->OnClickSettingOkButton());
    QVERIFY(setting->ShowSettingDialog(window, rect));
    QVERIFY(setting->OnClickSettingCancelButton());
    QVERIFY(setting->ShowSettingDialog(window, rect));
}

void tst_Lifecycle::loadUseDestroyDeleteUnload()
{
    const TraceCapture silence;
    const TemporaryDirectory directory;
    StandInHost::Reset(directory.Path());
    FakeContainer container;
    StandInHost::container = &container;
    QLibrary wlanLibrary(BUILD_DIRECTORY "/plugins/WLANStored/libWLANStored.so");
    QLibrary library(BUILD_DIRECTORY "/plugins/PriorityPlugin/libPriorityPlugin.so");
    {
        QWidget window;
        window.show();
        QObject *wlanRoot = LoadRoot(&wlanLibrary);
        QVERIFY(qobject_cast<IUIPlugin *>(wlanRoot)->Init());
        QObject *wlan = Service(wlanRoot, 4102);
        QVERIFY(qobject_cast<IWLANUIPlugin *>(wlan));
        container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), wlan);

        QObject *root = LoadRoot(&library);
        QVERIFY(qobject_cast<IUIPlugin *>(root)->Init());
        QObject *service = Service(root, 4098);
        IPriorityPlugin *priority = qobject_cast<IPriorityPlugin *>(service);
        QList<PriorityList> list;
        PriorityList entry;
        entry.name = "First";
        entry.type = "1";
        list << entry;
        priority->AddPriorityList(list);
        priority->AddTopPriority(entry);
        QCOMPARE(priority->GetPriorityList(&list), 0);
        UsePage(&window, qobject_cast<ISettingUIPlugin *>(service), qobject_cast<INotify *>(root));

        qobject_cast<IUIPlugin *>(root)->OnDestroy();
        delete root;
        qobject_cast<IUIPlugin *>(wlanRoot)->OnDestroy();
        delete wlanRoot;
    }
    StandInHost::container = nullptr;
    QVERIFY2(library.unload(), qPrintable(library.errorString()));
    QVERIFY2(wlanLibrary.unload(), qPrintable(wlanLibrary.errorString()));
    QCoreApplication::processEvents();
    QVERIFY(!IsMapped("libPriorityPlugin.so"));
    QVERIFY(!IsMapped("libWLANStored.so"));
}

QTEST_MAIN(tst_Lifecycle)
#include "tst_lifecycle.moc"
