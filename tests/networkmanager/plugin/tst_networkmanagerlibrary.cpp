#include "FakeNetworkManager.h"
#include "LoadedWLAN.h"
#include "PrivateBus.h"

#include <NetworkManagerResult.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <INotify.h>

#include <QElapsedTimer>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QProcess>
#include <QtTest>

#include <cstring>

/** The library and its root object, from a machine without a bus to one with a NetworkManager. */
class tst_networkmanagerlibrary : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void LoadsThroughThePluginLoader();
    void LoadsThroughItsEntryPoint();
    void AnswersTheVerificationText();
    void ExportsItsEntryPointsOnly();
    void FindsTheHostsLibrariesBesideThePlugins();
    void AnswersTheHostsQuestions();
    void HasNoServiceBeforeInit();

    // From here on in this order: the bus comes, then NetworkManager.
    void InitTellsThatThereIsNoBus();
    void BusComesUp();
    void InitDoesNotWaitForABusThatDoesNotAnswer();
    void InitTellsThatThereIsNoNetworkManager();
    void NetworkManagerThatComesLaterIsKnown();
    void InitSucceedsWithNetworkManager();
    void InitDoesNotWaitForASilentNetworkManager();
    void InitTwiceKeepsTheService();
    void HandsOutTheServiceForTheWlanNumberOnly_data();
    void HandsOutTheServiceForTheWlanNumberOnly();
    void ServiceHasNoOtherInterface();
    void OperationsStandAtTheirPositions();
    void NullPointersAreRefused();
    void ServiceGoesOnDestroy();
    void DeletedRootTakesItsServiceAlong();
    void SurvivesBeingUnloaded();

private:
    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<PrivateBus> m_bus;
    QScopedPointer<FakeNetworkManager> m_networkManager;
};

void tst_networkmanagerlibrary::initTestCase()
{
    // Tells the address of a bus that is not there yet.
    m_bus.reset(new PrivateBus);
}

void tst_networkmanagerlibrary::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
}

void tst_networkmanagerlibrary::cleanup()
{
    LoadedWLAN::Root()->OnDestroy();
}

void tst_networkmanagerlibrary::LoadsThroughThePluginLoader()
{
    QPluginLoader loader(LoadedWLAN::FileName());
    QObject *root = loader.instance();
    QVERIFY2(root, qPrintable(loader.errorString()));
    QCOMPARE(QByteArray(root->metaObject()->className()), QByteArray("CNetworkManagerPlugin"));
    QVERIFY(qobject_cast<IUIPlugin *>(root));
}

void tst_networkmanagerlibrary::LoadsThroughItsEntryPoint()
{
    QObject *root = LoadedWLAN::RootObject();
    QVERIFY(root);
    QCOMPARE(LoadedWLAN::RootObject(), root);
    IUIPlugin *plugin = qobject_cast<IUIPlugin *>(root);
    QVERIFY(plugin);
    QCOMPARE(qobject_cast<IBasePlugin *>(root), static_cast<IBasePlugin *>(plugin));
    QVERIFY(!qobject_cast<INotify *>(root));
}

void tst_networkmanagerlibrary::AnswersTheVerificationText()
{
    typedef const char *(*Query)();
    const Query query = reinterpret_cast<Query>(
        QLibrary(LoadedWLAN::FileName()).resolve("qt_plugin_query_verification_data"));
    QVERIFY(query);
    QCOMPARE(QByteArray(query()),
             QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                        "buildkey=macosx macx g++-4 full-config"));
}

void tst_networkmanagerlibrary::ExportsItsEntryPointsOnly()
{
    QProcess lister;
    lister.start("nm", QStringList() << "-D"
                                     << "--defined-only" << LoadedWLAN::FileName());
    QVERIFY(lister.waitForFinished());
    QCOMPARE(lister.exitCode(), 0);
    QStringList symbols;
    const QList<QByteArray> lines = lister.readAllStandardOutput().split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (!lines.at(i).isEmpty()) {
            symbols.append(QString::fromLatin1(lines.at(i)).section(' ', -1));
        }
    }
    QVERIFY(symbols.removeAll("qt_plugin_instance"));
    QVERIFY(symbols.removeAll("qt_plugin_query_verification_data"));
    // Qt's own addition, and what linkers define in every library.
    const QStringList harmless = QStringList() << "qt_plugin_query_metadata"
                                               << "qt_plugin_query_metadata_v2"
                                               << "_init"
                                               << "_fini"
                                               << "__bss_start"
                                               << "_edata"
                                               << "_end";
    for (int i = 0; i < harmless.size(); ++i) {
        symbols.removeAll(harmless.at(i));
    }
    QVERIFY2(symbols.isEmpty(), qPrintable(symbols.join(" ")));
}

void tst_networkmanagerlibrary::FindsTheHostsLibrariesBesideThePlugins()
{
    QProcess reader;
    reader.start("readelf", QStringList() << "-d" << LoadedWLAN::FileName());
    QVERIFY(reader.waitForFinished());
    const QByteArray header = reader.readAllStandardOutput();
    QVERIFY(header.contains("[$ORIGIN/../../lib:") || header.contains("[$ORIGIN/../../lib]"));
    QVERIFY(header.contains("[libzeltsdk.so.1]"));
    QVERIFY(header.contains("[libcoreui.so.1]"));
}

void tst_networkmanagerlibrary::AnswersTheHostsQuestions()
{
    IUIPlugin *plugin = LoadedWLAN::Root();
    QCOMPARE(plugin->GetCLSID(), QString("7545FB07-0E7A-4F27-A449-872DB09C106D"));
    QCOMPARE(plugin->GetPluginName(), QString("WLANNetworkManager"));
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

void tst_networkmanagerlibrary::HasNoServiceBeforeInit()
{
    QObject before;
    QObject *object = &before;
    QVERIFY(!LoadedWLAN::Root()->QueryInterface(4102, &object));
    QCOMPARE(object, &before);
}

void tst_networkmanagerlibrary::InitTellsThatThereIsNoBus()
{
    TraceCapture trace;
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(LoadedWLAN::Root()->GetLastError(), int(NetworkManagerResultNoBus));
    QVERIFY(trace.Lines().contains("WLANNetworkManager: there is no system bus"));
    QCOMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
}

void tst_networkmanagerlibrary::BusComesUp()
{
    QVERIFY2(m_bus->Start(), qPrintable(m_bus->WhyNot()));
}

void tst_networkmanagerlibrary::InitDoesNotWaitForABusThatDoesNotAnswer()
{
    m_bus->Freeze();
    QVERIFY(LoadedWLAN::Root()->Init());
    // Whoever had waited would know that there is no answer.
    QCOMPARE(LoadedWLAN::Root()->GetLastError(), 0);
    QCOMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceNotKnown));
    m_bus->Thaw();
}

void tst_networkmanagerlibrary::InitTellsThatThereIsNoNetworkManager()
{
    TraceCapture trace;
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(LoadedWLAN::Root()->GetLastError(), int(NetworkManagerResultNotRunning));
    QVERIFY(trace.Lines().contains("WLANNetworkManager: NetworkManager is not running"));
    QCOMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
}

void tst_networkmanagerlibrary::NetworkManagerThatComesLaterIsKnown()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    m_networkManager.reset(new FakeNetworkManager);
    QVERIFY(m_networkManager->Appear());
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
}

void tst_networkmanagerlibrary::InitSucceedsWithNetworkManager()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    QCOMPARE(LoadedWLAN::Root()->GetLastError(), 0);
    QVERIFY(LoadedWLAN::Wlan());
}

void tst_networkmanagerlibrary::InitDoesNotWaitForASilentNetworkManager()
{
    m_networkManager->DoNotAnswerAnything();
    QVERIFY(LoadedWLAN::Root()->Init());
    // It would be another result if its silence had been waited for.
    QCOMPARE(LoadedWLAN::Root()->GetLastError(), 0);
    QCOMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceNotKnown));
    m_networkManager->Behave();
}

void tst_networkmanagerlibrary::InitTwiceKeepsTheService()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    const QPointer<QObject> service = LoadedWLAN::Service();
    QVERIFY(LoadedWLAN::Root()->Init());
    QVERIFY(!service.isNull());
    QCOMPARE(LoadedWLAN::Service(), service.data());
}

void tst_networkmanagerlibrary::HandsOutTheServiceForTheWlanNumberOnly_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("known");

    Row("WLAN", 4102, true);
    Row("settings page", 4098, false);
    Row("priority list", 4103, false);
    Row("zero", 0, false);
    Row("negative", -1, false);
}

void tst_networkmanagerlibrary::HandsOutTheServiceForTheWlanNumberOnly()
{
    QFETCH(int, number);
    QFETCH(bool, known);
    QVERIFY(LoadedWLAN::Root()->Init());
    QObject before;
    QObject *object = &before;
    QCOMPARE(LoadedWLAN::Root()->QueryInterface(number, &object), known);
    QCOMPARE(object != &before, known);
    QCOMPARE(qobject_cast<IWLANUIPlugin *>(object) != nullptr, known);
    QVERIFY(!LoadedWLAN::Root()->QueryInterface(number, nullptr));
}

void tst_networkmanagerlibrary::ServiceHasNoOtherInterface()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    QVERIFY(!qobject_cast<IUIPlugin *>(LoadedWLAN::Service()));
    QVERIFY(!LoadedWLAN::Service()->qt_metacast("com.torvik.netquillforge.plugin.IPriorityPlugin"));
}

namespace
{

/** The entry of the service's table at a position counted from one, without the interface's declaration. */
template <typename Operation> Operation At(int position)
{
    void *service = LoadedWLAN::Service()->qt_metacast("com.torvik.netquillforge.plugin.IWLANUIPlugin");
    void *const *table = *static_cast<void *const *const *>(service);
    Operation operation = nullptr;
    std::memcpy(&operation, table + position - 1, sizeof(operation));
    return operation;
}

struct Network {
    QString name;
    int values[5];
};

struct Profile {
    QString texts[18];
};

void *Interface()
{
    return LoadedWLAN::Service()->qt_metacast("com.torvik.netquillforge.plugin.IWLANUIPlugin");
}

} // namespace

void tst_networkmanagerlibrary::OperationsStandAtTheirPositions()
{
    m_networkManager->AddDevice();
    m_networkManager->AddAccessPoint("Near", 71);
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));

    Profile created;
    created.texts[0] = "Created";
    created.texts[5] = "Created";
    created.texts[8] = "open";
    created.texts[9] = "none";
    created.texts[13] = "0";
    QCOMPARE(At<int (*)(void *, Profile)>(7)(Interface(), created), 0);

    QTRY_COMPARE(LoadedWLAN::Profiles().size(), 1);
    QList<RememberedList> remembered;
    QCOMPARE(At<int (*)(void *, QList<RememberedList> *)>(8)(Interface(), &remembered), 0);
    QCOMPARE(remembered.size(), 1);
    QCOMPARE(remembered.first().name, QString("Created"));

    Profile given;
    QCOMPARE(At<int (*)(void *, QString, Profile *)>(10)(Interface(), "Created", &given), 0);
    QCOMPARE(given.texts[0], QString("Created"));
    QCOMPARE(given.texts[5], QString("Created"));
    QCOMPARE(given.texts[8], QString("open"));

    WLANConfigData config;
    QCOMPARE(At<int (*)(void *, WLANConfigData *)>(11)(Interface(), &config), 0);
    QVERIFY(config.authenticationList.contains("WPA2PSK"));

    QList<Network> networks;
    QCOMPARE(At<int (*)(void *, QList<Network> *)>(22)(Interface(), &networks), 0);
    QCOMPARE(networks.size(), 1);
    QCOMPARE(networks.first().name, QString("Near"));
    QCOMPARE(networks.first().values[0], 71);
    QCOMPARE(networks.first().values[1], 6);

    Profile near;
    QVERIFY(At<int (*)(void *, const Network &, Profile *)>(23)(Interface(), networks.first(), &near) != 0);
    QCOMPARE(near.texts[0], QString("Near"));
    QCOMPARE(near.texts[9], QString("none"));
}

void tst_networkmanagerlibrary::NullPointersAreRefused()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    IWLANUIPlugin *wlan = LoadedWLAN::Wlan();
    QCOMPARE(wlan->GetRememberedList(nullptr), int(NetworkManagerResultNullPointer));
    QCOMPARE(wlan->GetProfileByName("Home", nullptr), int(NetworkManagerResultNullPointer));
    QCOMPARE(wlan->GetConfigData(nullptr), int(NetworkManagerResultNullPointer));
    QCOMPARE(wlan->GetAvailableNetworks(nullptr), int(NetworkManagerResultNullPointer));
    QCOMPARE(wlan->GetNetworkProfile(WlanAvilableNetworkInfo(), nullptr), 0);
}

void tst_networkmanagerlibrary::ServiceGoesOnDestroy()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    const QPointer<QObject> service = LoadedWLAN::Service();
    LoadedWLAN::Root()->OnDestroy();
    QVERIFY(service.isNull());
    QVERIFY(!LoadedWLAN::Service());
    LoadedWLAN::Root()->OnDestroy();
    LoadedWLAN::Root()->UnSDKRegisterEvent();
    LoadedWLAN::Root()->Release();
    QVERIFY(LoadedWLAN::Root()->Init());
    QVERIFY(LoadedWLAN::Wlan());
}

void tst_networkmanagerlibrary::DeletedRootTakesItsServiceAlong()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    const QPointer<QObject> service = LoadedWLAN::Service();
    delete LoadedWLAN::RootObject();
    QVERIFY(service.isNull());
    QVERIFY(LoadedWLAN::Root()->Init());
}

void tst_networkmanagerlibrary::SurvivesBeingUnloaded()
{
    QVERIFY(LoadedWLAN::Root()->Init());
    // Calls are under way when the plug-in goes, and what comes back finds nobody.
    delete LoadedWLAN::RootObject();
    for (int i = 0; i < 20; ++i) {
        QLibrary(LoadedWLAN::FileName()).unload();
    }
    QTest::qWait(300);
    // Qt still calls into the library for the types that it was told of.
    m_networkManager->AddProfile("Another");
    QVERIFY(LoadedWLAN::Root()->Init());
}

QTEST_GUILESS_MAIN(tst_networkmanagerlibrary)
#include "tst_networkmanagerlibrary.moc"
