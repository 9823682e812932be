#include "StoredFixture.h"

#include <INotify.h>
#include <IUIPlugin.h>
#include <IWLANUIPlugin.h>
#include <Row.h>

#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QProcess>
#include <QtTest>

class tst_storedlibrary : public QObject
{
    Q_OBJECT

private slots:
    void LoadsThroughThePluginLoader();
    void LoadsThroughItsEntryPoint();
    void FindsTheHostsLibrariesBesideThePlugins();
    void AnswersTheHostsQuestions();
    void HandsOutTheServiceForTheWlanNumberOnly_data();
    void HandsOutTheServiceForTheWlanNumberOnly();
    void HandsOutTheSameServiceEveryTime();
    void RefusesANullPointerForTheService();
    void ServiceHasNoOtherInterface();
    void DestroysTheServiceOnDestroy();
    void SurvivesDestructionBeforeInitAndTwice();
    void HandsOutAFreshServiceAfterDestruction();
    void DeletedRootTakesItsServiceAlong();
};

namespace
{

QObject *NewRoot()
{
    typedef QObject *(*Instance)();
    const Instance instance =
        reinterpret_cast<Instance>(QLibrary(StoredFixture::LibraryFile()).resolve("qt_plugin_instance"));
    return instance ? instance() : nullptr;
}

} // namespace

void tst_storedlibrary::LoadsThroughThePluginLoader()
{
    QPluginLoader loader(StoredFixture::LibraryFile());
    QObject *root = loader.instance();
    QVERIFY2(root, qPrintable(loader.errorString()));
    QCOMPARE(QByteArray(root->metaObject()->className()), QByteArray("CStoredPlugin"));
    QVERIFY(qobject_cast<IUIPlugin *>(root));
}

void tst_storedlibrary::LoadsThroughItsEntryPoint()
{
    QObject *root = NewRoot();
    QVERIFY(root);
    QCOMPARE(NewRoot(), root);
    IUIPlugin *plugin = qobject_cast<IUIPlugin *>(root);
    QVERIFY(plugin);
    QCOMPARE(qobject_cast<IBasePlugin *>(root), static_cast<IBasePlugin *>(plugin));
    QVERIFY(!qobject_cast<INotify *>(root));
}

void tst_storedlibrary::FindsTheHostsLibrariesBesideThePlugins()
{
    QProcess reader;
    reader.start("readelf", QStringList() << "-d" << StoredFixture::LibraryFile());
    QVERIFY(reader.waitForFinished());
    const QByteArray header = reader.readAllStandardOutput();
    QVERIFY(header.contains("[$ORIGIN/../../lib"));
    QVERIFY(header.contains("[libzeltsdk.so.1]"));
    QVERIFY(header.contains("[libcoreui.so.1]"));
}

void tst_storedlibrary::AnswersTheHostsQuestions()
{
    IUIPlugin *plugin = StoredFixture::Root();
    QVERIFY(plugin->Init());
    QCOMPARE(plugin->GetCLSID(), QString("7545FB07-0E7A-4F27-A449-872DB09C106D"));
    QCOMPARE(plugin->GetPluginName(), QString("WLANStored"));
    QCOMPARE(plugin->GetPluginType(), 0);
    QCOMPARE(plugin->GetVersion(), 0);
    QCOMPARE(plugin->GetLastError(), 0);
    QVERIFY(!plugin->IsAllowRelease());

    QRect rect(1, 2, 3, 4);
    QVERIFY(!plugin->ShowWindow(nullptr, rect));
    QCOMPARE(plugin->DoModal(), 0);
    plugin->FitSize(rect);
    QCOMPARE(rect, QRect(1, 2, 3, 4));
    QVERIFY(!plugin->IsReady());
    QVERIFY(plugin->ChangeLang("ar"));
    QVERIFY(!plugin->ChangeLang(QString()));
}

void tst_storedlibrary::HandsOutTheServiceForTheWlanNumberOnly_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("known");

    Row("WLAN", 4102, true);
    Row("settings page", 4098, false);
    Row("priority list", 4103, false);
    Row("zero", 0, false);
    Row("negative", -1, false);
}

void tst_storedlibrary::HandsOutTheServiceForTheWlanNumberOnly()
{
    QFETCH(int, number);
    QFETCH(bool, known);
    StoredFixture fixture;
    QObject before;
    QObject *object = &before;
    QCOMPARE(StoredFixture::Root()->QueryInterface(number, &object), known);
    QCOMPARE(object != &before, known);
    QCOMPARE(qobject_cast<IWLANUIPlugin *>(object) != nullptr, known);
}

void tst_storedlibrary::HandsOutTheSameServiceEveryTime()
{
    StoredFixture fixture;
    QObject *first = StoredFixture::Service();
    QCOMPARE(StoredFixture::Service(), first);
}

void tst_storedlibrary::RefusesANullPointerForTheService()
{
    QVERIFY(!StoredFixture::Root()->QueryInterface(4102, nullptr));
}

void tst_storedlibrary::ServiceHasNoOtherInterface()
{
    StoredFixture fixture;
    QObject *service = StoredFixture::Service();
    QCOMPARE(QByteArray(service->metaObject()->className()), QByteArray("CStoredWLANService"));
    QVERIFY(!qobject_cast<IUIPlugin *>(service));
    QVERIFY(!service->qt_metacast("com.torvik.netquillforge.plugin.IPriorityPlugin"));
}

void tst_storedlibrary::DestroysTheServiceOnDestroy()
{
    StoredFixture fixture;
    QPointer<QObject> service = StoredFixture::Service();
    StoredFixture::Root()->OnDestroy();
    QVERIFY(service.isNull());
}

void tst_storedlibrary::SurvivesDestructionBeforeInitAndTwice()
{
    StoredFixture fixture;
    delete NewRoot();
    QPointer<QObject> root = NewRoot();
    IUIPlugin *plugin = qobject_cast<IUIPlugin *>(root);
    plugin->UnSDKRegisterEvent();
    plugin->OnDestroy();
    QVERIFY(plugin->Init());
    QVERIFY(StoredFixture::Service());
    plugin->OnDestroy();
    plugin->OnDestroy();
    plugin->Release();
    QVERIFY(!root.isNull());
}

void tst_storedlibrary::HandsOutAFreshServiceAfterDestruction()
{
    StoredFixture fixture;
    StoredFixture::Service();
    StoredFixture::Root()->OnDestroy();
    IWLANUIPlugin *wlan = qobject_cast<IWLANUIPlugin *>(StoredFixture::Service());
    QVERIFY(wlan);
    QList<RememberedList> list;
    QCOMPARE(wlan->GetRememberedList(&list), 0);
    QVERIFY(!list.isEmpty());
}

void tst_storedlibrary::DeletedRootTakesItsServiceAlong()
{
    StoredFixture fixture;
    QPointer<QObject> service = StoredFixture::Service();
    delete NewRoot();
    QVERIFY(service.isNull());
    QVERIFY(NewRoot());
}

QTEST_MAIN(tst_storedlibrary)
#include "tst_storedlibrary.moc"
