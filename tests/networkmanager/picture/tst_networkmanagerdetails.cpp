#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <Row.h>

#include <QSignalSpy>
#include <QtTest>

namespace
{

const char changeShared[] = "org.freedesktop.NetworkManager.settings.modify.system";
const char deviceInterface[] = "org.freedesktop.NetworkManager.Device";
const char permissionDenied[] = "org.freedesktop.NetworkManager.Settings.PermissionDenied";

// As NetworkManager's interface has them.
const unsigned int activated = 2;
const unsigned int guessYes = 3;
const unsigned int guessNo = 4;

ProfileDetails Details(const QString &path)
{
    ProfileDetails details;
    LoadedWLAN::Connections()->GetProfileDetails(path, &details);
    return details;
}

int Forget(const QString &path)
{
    for (const ConnectionProfile &profile : LoadedWLAN::Profiles()) {
        if (profile.id == path) {
            return LoadedWLAN::Connections()->Forget(path, profile.lastingId);
        }
    }
    return 0;
}

} // namespace

/** What is told of one profile, and how it is forgotten, over a fake NetworkManager. */
class tst_networkmanagerdetails : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void DetailsAreThoseOfTheProfile();
    void MeteredIsToldAsItIsKnown_data();
    void MeteredIsToldAsItIsKnown();
    void UsersAreTold_data();
    void UsersAreTold();
    void ChangeIsAllowedOrNot_data();
    void ChangeIsAllowedOrNot();
    void NothingIsToldOfAProfileThatIsNotThere();

    void ForgottenProfileIsGone();
    void RefusedForgettingLeavesTheProfile_data();
    void RefusedForgettingLeavesTheProfile();
    void ProfileThatSomebodyElseHasDeletedIsForgotten();
    void AnotherProfileInItsPlaceIsNotForgotten();
    void ForgettingIsRefused();
    void ForgettingIsNotCancelled();
    void ForgettingEndsWithNetworkManager();

private:
    /** Returns its path once the plug-in knows it. */
    QString AddOffice(const QVariantMap &connection = QVariantMap());
};

QString tst_networkmanagerdetails::AddOffice(const QVariantMap &connection)
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("Office");
    for (QVariantMap::const_iterator i = connection.constBegin(); i != connection.constEnd(); ++i) {
        settings["connection"].insert(i.key(), i.value());
    }
    const QString path = Fake().AddProfile(settings);
    (void)QTest::qWaitFor([&] { return Details(path).id == path; });
    return path;
}

void tst_networkmanagerdetails::DetailsAreThoseOfTheProfile()
{
    const QString office = AddOffice({{"autoconnect-priority", 7}, {"interface-name", "wlan1"}});
    const ProfileDetails details = Details(office);
    QCOMPARE(details.id, office);
    QCOMPARE(details.boundDevice, QString("wlan1"));
    QVERIFY(details.isPriorityKnown);
    QCOMPARE(details.priority, 7);
}

void tst_networkmanagerdetails::MeteredIsToldAsItIsKnown_data()
{
    QTest::addColumn<int>("setting");
    QTest::addColumn<unsigned int>("device");
    QTest::addColumn<int>("told");
    Row("nobody knows", 0, 0U, int(ProfileDetails::MeteredNotKnown));
    Row("yes", 1, guessNo, int(ProfileDetails::MeteredYes));
    Row("no", 2, guessYes, int(ProfileDetails::MeteredNo));
    Row("guessed yes", 0, guessYes, int(ProfileDetails::MeteredGuessedYes));
    Row("guessed no", 0, guessNo, int(ProfileDetails::MeteredGuessedNo));
}

void tst_networkmanagerdetails::MeteredIsToldAsItIsKnown()
{
    QFETCH(int, setting);
    QFETCH(unsigned int, device);
    const QString wifi = Fake().AddDevice();
    const QString office = AddOffice({{"metered", setting}});
    Fake().SetProperty(wifi, deviceInterface, "Metered", device);
    // What another connection costs says nothing of this one.
    Fake().Connect(Fake().AddProfile("Home"), activated, wifi);
    QVERIFY(Details(office).metered <= ProfileDetails::MeteredNo);
    Fake().Connect(office, activated, wifi);
    QTEST(Details(office).metered, "told");
}

void tst_networkmanagerdetails::UsersAreTold_data()
{
    QTest::addColumn<QStringList>("permissions");
    QTest::addColumn<QStringList>("users");
    QTest::addColumn<bool>("areKnown");
    Row("all", QStringList(), QStringList(), true);
    Row("two", QStringList({"user:anna:", "user:ben:"}), QStringList({"anna", "ben"}), true);
    Row("not only users", QStringList({"user:anna:", "role:guest:"}), QStringList("anna"), false);
}

void tst_networkmanagerdetails::UsersAreTold()
{
    QFETCH(QStringList, permissions);
    const ProfileDetails details = Details(AddOffice({{"permissions", permissions}}));
    QTEST(details.users, "users");
    QTEST(details.areUsersKnown, "areKnown");
}

void tst_networkmanagerdetails::ChangeIsAllowedOrNot_data()
{
    QTest::addColumn<QString>("right");
    QTest::addColumn<int>("change");
    Row("yes", "yes", int(ProfileDetails::ChangeAllowed));
    Row("auth", "auth", int(ProfileDetails::ChangeAfterPassword));
    Row("no", "no", int(ProfileDetails::ChangeNotAllowed));
}

void tst_networkmanagerdetails::ChangeIsAllowedOrNot()
{
    QFETCH(QString, right);
    Fake().SetRight(changeShared, right);
    StartPluginAgain();
    QTEST(Details(AddOffice()).change, "change");
}

void tst_networkmanagerdetails::NothingIsToldOfAProfileThatIsNotThere()
{
    const QString office = AddOffice();
    QCOMPARE(Details("nobody").id, QString());
    LoadedWLAN::Connections()->GetProfileDetails(office, nullptr);
    Fake().Vanish();
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
    QCOMPARE(Details(office).id, QString());
}

void tst_networkmanagerdetails::ForgottenProfileIsGone()
{
    const QString office = AddOffice();
    const QString home = Fake().AddProfile("Home");
    QSignalSpy told(LoadedWLAN::ConnectionService(), SIGNAL(OnConnectionsChanged()));
    const int number = Forget(office);
    QCOMPARE(LoadedWLAN::Attempt(number).stage, int(StageForgetting));
    QCOMPARE(LoadedWLAN::Attempt(number).name, QString("Office"));
    QTRY_COMPARE(LoadedWLAN::Attempt(number).stage, int(StageForgotten));
    QTRY_VERIFY(told.count() > 0);
    QCOMPARE(Fake().ProfilePaths(), QStringList(home));
    QCOMPARE(LoadedWLAN::Profiles().size(), 1);
    QCOMPARE(Fake().CallCount("Update2"), 0);
}

void tst_networkmanagerdetails::RefusedForgettingLeavesTheProfile_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("failure");
    Row("no password given", permissionDenied, int(FailureNotAllowed));
    Row("failed", "org.freedesktop.NetworkManager.Settings.Failed", int(FailureOther));
    Row("not answered", "org.freedesktop.DBus.Error.NoReply", int(FailureSource));
}

void tst_networkmanagerdetails::RefusedForgettingLeavesTheProfile()
{
    QFETCH(QString, error);
    const QString office = AddOffice();
    Fake().AnswerWithError("Delete", error);
    const int number = Forget(office);
    QTRY_COMPARE(LoadedWLAN::Attempt(number).stage, int(StageFailed));
    QTEST(LoadedWLAN::Attempt(number).failure, "failure");
    QCOMPARE(LoadedWLAN::Attempt(number).failedStage, int(StageForgetting));
    // Somebody may still be asked for a password: that tells nothing of NetworkManager.
    QCOMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceKnown));
    QCOMPARE(LoadedWLAN::ConnectionProfileNamed("Office").id, office);
}

void tst_networkmanagerdetails::ProfileThatSomebodyElseHasDeletedIsForgotten()
{
    const QString office = AddOffice();
    Fake().RemoveWhenAsked(office);
    const int number = Forget(office);
    QTRY_COMPARE(LoadedWLAN::Attempt(number).stage, int(StageForgotten));
}

void tst_networkmanagerdetails::AnotherProfileInItsPlaceIsNotForgotten()
{
    const QString office = AddOffice();
    QCOMPARE(LoadedWLAN::Connections()->Forget(office, "another one"),
             int(IConnectionPlugin::RefusedUnknown));
    Fake().Settle();
    QCOMPARE(Fake().CallCount("Delete"), 0);
}

void tst_networkmanagerdetails::ForgettingIsRefused()
{
    const QString others = AddOffice({{"permissions", QStringList("user:somebody-else:")}});
    QCOMPARE(Forget(others), int(IConnectionPlugin::RefusedNotAllowed));
    QCOMPARE(LoadedWLAN::Connections()->Forget("nobody", QString()), int(IConnectionPlugin::RefusedUnknown));
    Fake().Vanish();
    QTRY_COMPARE(LoadedWLAN::State().source, int(ConnectionState::SourceGone));
    QCOMPARE(LoadedWLAN::Connections()->Forget(others, QString()), int(IConnectionPlugin::RefusedSource));
}

void tst_networkmanagerdetails::ForgettingIsNotCancelled()
{
    const QString office = AddOffice();
    Fake().Hold("Delete");
    const int number = Forget(office);
    LoadedWLAN::Connections()->CancelAttempt(number);
    Fake().Settle();
    QCOMPARE(LoadedWLAN::Attempt(number).stage, int(StageForgetting));
    Fake().Release();
    QTRY_COMPARE(LoadedWLAN::Attempt(number).stage, int(StageForgotten));
}

void tst_networkmanagerdetails::ForgettingEndsWithNetworkManager()
{
    const QString office = AddOffice();
    Fake().DoNotAnswer("Delete");
    const int number = Forget(office);
    Fake().Vanish();
    QTRY_COMPARE(LoadedWLAN::Attempt(number).stage, int(StageFailed));
    QCOMPARE(LoadedWLAN::Attempt(number).failure, int(FailureSource));
}

QTEST_MAIN(tst_networkmanagerdetails)
#include "tst_networkmanagerdetails.moc"
