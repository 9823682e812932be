#include "HandedOutPlugin.h"
#include "LoadedWLAN.h"
#include "NetworkManagerTest.h"

#include <Row.h>
#include <StandInHost.h>
#include <TraceCapture.h>

#include <QFile>
#include <QLockFile>
#include <QPointer>
#include <QWidget>
#include <QtTest>

#include <utility>

namespace
{

const unsigned int activating = 1;
const unsigned int activated = 2;
/** Of the only profile in the list. */
const int alone = 500;
const char profileInterface[] = "org.freedesktop.NetworkManager.Settings.Connection";
const char priorityClass[] = "D78C8E0F-7A3F-4f51-87E3-753F0F7F0E05";

/** The file as the priority plug-in writes it; entries are "name" or "name/type" with blanks between them. */
QByteArray ListOf(const QString &entries)
{
    QByteArray items;
    const QStringList all = entries.isEmpty() ? QStringList() : entries.split(' ');
    for (int i = 0; i < all.size(); ++i) {
        const QString type = all.at(i).section('/', 1);
        items += QString("    <item name=\"%1\" type=\"%2\"/>\n")
                     .arg(all.at(i).section('/', 0, 0), type.isEmpty() ? QString("1") : type)
                     .toUtf8();
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<zeltdoc type=\"profile\">\n" + items +
           "</zeltdoc>\n";
}

} // namespace

/** The list that takes effect on NetworkManager, through the real priority plug-in. */
class tst_networkmanagerpriorities : public NetworkManagerTest
{
    Q_OBJECT

private slots:
    void OrderIsWritten();
    void ListThatIsThereAtTheStartIsWritten();
    void MoveIsWritten();
    void OnlyWhatDiffersIsWritten();
    void OtherSettingsStayAsTheyAre();
    void OldFormsOfSettingsAreNotSentBack();
    void ChangeInTheMiddleIsNotOverwritten();
    void ChangeBySomebodyElseInTheMiddleIsReadFirst();
    void ChangeBySomebodyElseSurvives_data();
    void ChangeBySomebodyElseSurvives();
    void ProfileWithoutVersionsIsLeftUntilItRests_data();
    void ProfileWithoutVersionsIsLeftUntilItRests();
    void WriteIsBoundToTheVersionThatIsKnown();
    void PriorityThatSomebodyElseSetsMeanwhileIsRemembered();
    void MoveTakesFewCalls_data();
    void MoveTakesFewCalls();
    void WhatKeepsTheListFromTakingEffectIsTold_data();
    void WhatKeepsTheListFromTakingEffectIsTold();
    void WhatWasToldIsToldAgainOnlyWhenItComesBack();
    void WhatNobodySawIsToldInAWindow();
    void MobileBroadbandHasItsPlace();
    void ProfilesOfOneNameHaveOnePlace();
    void ProfilesOutsideTheListAreLeftAlone();
    void EntryThatLeavesGetsItsFormerPriority();
    void WhatAnotherProgramOfTheUserHasDoneIsSetBackToo();
    void NothingStaysKnownOfAForgottenProfile();
    void ProgramsOfOneUserWorkInTurns();
    void ForeignPriorityIsNotSetBack();
    void ForeignPriorityAgainstTheListIsSetRightOnce_data();
    void ForeignPriorityAgainstTheListIsSetRightOnce();
    void ForeignPriorityIsSetRightAlsoWhenThatTakesTime();
    void ListRulesAgainAfterItWasSetAside_data();
    void ListRulesAgainAfterItWasSetAside();
    void OtherNetworksFollowTheListThatWasSetAside();
    void ForeignPriorityInAgreementIsNotCounted();
    void PriorityThatWasSetByHandOnceIsGivenBack();
    void PriorityOfAnotherListIsNotGivenBack();
    void ListStaysSetAsideInAnotherProgram();
    void UserIsToldThatTheListIsSetAside();
    void RemovedListSetsAllBackAndANewOneIsFollowed();
    void ListThatIsNotToRuleGivesAllBackUntilItDoesAgain();
    void DamagedListGivesAllBackWhenItIsNotToRule();
    void OrderTellsWhatWasDone();
    void OrderTellsWhatCannotBeDone();
    void OrderEndsWhenNothingIsDueAnyMore();
    void StandingTellsWhatTheListCannotChange();
    void ProfileConnectsByItselfWhenTheUserWantsThat_data();
    void ProfileConnectsByItselfWhenTheUserWantsThat();
    void WishThatCannotBeFulfilledIsTold_data();
    void WishThatCannotBeFulfilledIsTold();
    void WishIsWrittenIntoWhatTheProfileIsByThen();
    void ListThatGoesBackToWhatItWasIsFollowed();
    void NewProfileGetsItsPlace();
    void WorkGoesOnAfterARestartOfTheProgram();
    void WorkGoesOnWhenNetworkManagerComesBack();
    void WorkGoesOnOnANewBus();
    void ReadOnlyProfilesAreLeftAlone();
    void ProfilesThatNeedAPasswordAreLeftAlone();

    void DamagedListChangesNothing_data();
    void DamagedListChangesNothing();
    void MissingPriorityPluginChangesNothing();
    void PriorityPluginThatWasTakenDownChangesNothing();
    void RefusedWriteIsToldAndTheOthersAreMade();
    void MeaninglessAnswerLosesNothing();
    void UnreadableProfileIsToldAndTheOthersAreWritten();

    void FirstConnectionGoesWhereTheUserWantsIt_data();
    void FirstConnectionGoesWhereTheUserWantsIt();
    void NetworkThatIsKeptOutOfTheListIsNotAddedLater();
    void ConnectionIsAddedWhenItIsMadeAndNotBefore();
    void SecondConnectionIsNotAdded();
    void DeletedEntryIsNotAddedAgain();
    void WhatWasConnectedBeforeTheFirstStartIsNotAdded();

private:
    /** Has the real priority plug-in in the container, and waits for the first comparison to be over. */
    void Begin(const QString &entries);
    void SetList(const QString &entries) { Directory().Write("Priority.xml", ListOf(entries)); }
    QStringList Listed();
    QString AddProfile(const QString &name, int priority, bool isChangeable = true);
    /** Those since the last call. */
    static QStringList Notices();
    bool IsBefore(const QString &first, const QString &second)
    {
        return Fake().PriorityOf(first) > Fake().PriorityOf(second);
    }
    /** A comparison is over when nothing more is asked or written. */
    void WaitUntilNothingIsAsked();
    /** As somebody else does it, and has the list compared after it. */
    void SetByHand(const QString &profile, int priority);
    /** Has the list "A B" set aside; yields A, which had 12 before the list and has -5 now. */
    QString SetAside();
    static QString Standing();
    /** Gives time to whatever might still come. */
    static void Settle() { QTest::qWait(600); }

    HandedOutPlugin m_plugin;
};

void tst_networkmanagerpriorities::Begin(const QString &entries)
{
    LoadedWLAN::Root()->OnDestroy();
    m_plugin.HandOut();
    SetList(entries);
    Fake().ForgetCalls();
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_VERIFY(Fake().CallCount("GetManagedObjects") > 0);
    WaitUntilNothingIsAsked();
}

void tst_networkmanagerpriorities::WaitUntilNothingIsAsked()
{
    int calls = 0;
    do {
        calls = Fake().CallCount();
        Settle();
    } while (Fake().CallCount() != calls);
}

QStringList tst_networkmanagerpriorities::Listed()
{
    QList<PriorityList> list;
    m_plugin.Priority()->GetPriorityList(&list);
    return AsTexts(list);
}

QString tst_networkmanagerpriorities::AddProfile(const QString &name, int priority, bool isChangeable)
{
    NMVariantMapMap settings = FakeNetworkManager::Settings(name);
    settings["connection"]["autoconnect-priority"] = priority;
    settings["connection"]["read-only"] = !isChangeable;
    return Fake().AddProfile(settings);
}

QStringList tst_networkmanagerpriorities::Notices()
{
    QStringList texts;
    for (const MessageCall &message : std::as_const(StandInHost::messages)) {
        // The first sign tells the direction.
        texts.append(message.text.mid(1));
    }
    StandInHost::messages.clear();
    return texts;
}

void tst_networkmanagerpriorities::SetByHand(const QString &profile, int priority)
{
    // It need not rest first.
    Fake().SetProperty(profile, profileInterface, "VersionId", qulonglong(7));
    Fake().SetSetting(profile, "connection", "autoconnect-priority", priority);
    Fake().AddProfile("wired", "802-3-ethernet");
    WaitUntilNothingIsAsked();
}

QString tst_networkmanagerpriorities::SetAside()
{
    const QString a = AddProfile("A", 12);
    AddProfile("B", 0);
    Begin("A B");
    SetByHand(a, -5);
    SetByHand(a, -5);
    return a;
}

QString tst_networkmanagerpriorities::Standing()
{
    OrderOutcome standing;
    LoadedWLAN::Order()->GetStanding(&standing);
    QString told = QString("%1 %2").arg(standing.stage).arg(standing.failure);
    for (const OrderKept &kept : std::as_const(standing.kept)) {
        told += QString(" %1 %2").arg(kept.profileId).arg(kept.obstacle);
    }
    return told;
}

void tst_networkmanagerpriorities::OrderIsWritten()
{
    const QString a = Fake().AddProfile("A");
    const QString b = Fake().AddProfile("B");
    Begin("");
    SetList("B A");
    QTRY_COMPARE(Fake().PriorityOf(b), 667);
    QTRY_COMPARE(Fake().PriorityOf(a), 334);
}

void tst_networkmanagerpriorities::ListThatIsThereAtTheStartIsWritten()
{
    const QString a = Fake().AddProfile("A");
    Begin("X A");
    QCOMPARE(Fake().PriorityOf(a), alone);
}

void tst_networkmanagerpriorities::MoveIsWritten()
{
    const QString a = Fake().AddProfile("A");
    const QString b = Fake().AddProfile("B");
    Begin("A B");
    QVERIFY(IsBefore(a, b));
    // The file is deleted and written anew, as it is for every change.
    m_plugin.Priority()->AddTopPriority(Entry("B"));
    QTRY_VERIFY(IsBefore(b, a));
}

void tst_networkmanagerpriorities::OnlyWhatDiffersIsWritten()
{
    const QString a = Fake().AddProfile("A");
    Fake().AddProfile("B");
    const QString c = Fake().AddProfile("C");
    Begin("A B C");
    QCOMPARE(Fake().CallCount("Update2"), 3);
    SetList("C X A B");
    QTRY_VERIFY(IsBefore(c, a));
    Settle();
    QCOMPARE(Fake().CallCount("Update2"), 4);
}

void tst_networkmanagerpriorities::OtherSettingsStayAsTheyAre()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings["connection"]["metered"] = 2;
    settings["802-11-wireless"]["hidden"] = true;
    settings["802-11-wireless-security"]["key-mgmt"] = "wpa-psk";
    settings["ipv4"]["dns-search"] = QStringList() << "example.com"
                                                   << "example.org";
    settings["user"]["unheard-of"] = QString("value");
    const QString a = Fake().AddProfile(settings);
    Begin("A");
    settings["connection"]["autoconnect-priority"] = alone;
    QCOMPARE(Fake().SettingsOf(a), settings);
}

void tst_networkmanagerpriorities::OldFormsOfSettingsAreNotSentBack()
{
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings["ipv4"]["dns"] = QString("alone, so it counts");
    settings["ipv6"]["route-data"] = QString("with options");
    settings["ipv6"]["dns-data"] = QString("with a name");
    settings["ipv6"]["address-data"] = QString("with a label");
    settings["802-11-wireless"]["assigned-mac-address"] = QString("02:00:00:00:00:07");
    NMVariantMapMap told = settings;
    told["ipv6"]["routes"] = QString("without");
    told["ipv6"]["dns"] = QString("without");
    told["ipv6"]["addresses"] = QString("without");
    told["802-11-wireless"]["cloned-mac-address"] = QByteArray("\x02");
    const QString a = Fake().AddProfile(told);
    Begin("A");
    settings["connection"]["autoconnect-priority"] = alone;
    QCOMPARE(Fake().SettingsOf(a), settings);
}

void tst_networkmanagerpriorities::ChangeInTheMiddleIsNotOverwritten()
{
    const QString a = Fake().AddProfile("A");
    const QString b = Fake().AddProfile("B");
    Begin("A B");
    Fake().ForgetCalls();
    Fake().Hold("GetSettings");
    SetList("B A");
    QTRY_COMPARE(Fake().CallCount("GetSettings"), 1);
    Fake().Hold(QString());
    QCOMPARE(LoadedWLAN::Store(LoadedWLAN::NewProfile("A", "WPA2PSK", "CCMP", "12345678")), 0);
    Fake().Release();
    QTRY_VERIFY(IsBefore(b, a));
    QCOMPARE(Fake().SettingsOf(a)["802-11-wireless-security"].value("key-mgmt").toString(),
             QString("wpa-psk"));
}

void tst_networkmanagerpriorities::ChangeBySomebodyElseInTheMiddleIsReadFirst()
{
    const QString a = Fake().AddProfile("A");
    Begin(QString());
    Fake().AnswerWithError("Update2", "org.freedesktop.NetworkManager.Settings.VersionIdMismatch");
    TraceCapture trace;
    SetList("A");
    QTRY_VERIFY(Fake().CallCount("Update2") > 1);
    Fake().Behave();
    QTRY_COMPARE(Fake().PriorityOf(a), alone);
    QCOMPARE(trace.Lines().filter("WLANNetworkManager"), QStringList());
}

void tst_networkmanagerpriorities::ChangeBySomebodyElseSurvives_data()
{
    QTest::addColumn<bool>("hasVersions");
    Row("NetworkManager that counts versions", true);
    Row("an earlier one", false);
}

void tst_networkmanagerpriorities::ChangeBySomebodyElseSurvives()
{
    QFETCH(bool, hasVersions);
    const QString a = Fake().AddProfile("A");
    if (hasVersions) {
        Fake().SetProperty(a, profileInterface, "VersionId", qulonglong(7));
    }
    Begin(QString());
    Fake().ForgetCalls();
    Fake().Hold("GetSettings");
    SetList("A");
    QTRY_COMPARE(Fake().CallCount("GetSettings"), 1);
    Fake().SetSetting(a, "connection", "metered", 2);
    Fake().Hold(QString());
    Fake().Release();
    QTRY_COMPARE(Fake().PriorityOf(a), alone);
    QCOMPARE(Fake().SettingsOf(a)["connection"].value("metered").toInt(), 2);
}

void tst_networkmanagerpriorities::ProfileWithoutVersionsIsLeftUntilItRests_data()
{
    ChangeBySomebodyElseSurvives_data();
}

void tst_networkmanagerpriorities::ProfileWithoutVersionsIsLeftUntilItRests()
{
    QFETCH(bool, hasVersions);
    const QString a = Fake().AddProfile("A");
    if (hasVersions) {
        Fake().SetProperty(a, profileInterface, "VersionId", qulonglong(7));
    }
    Begin(QString());
    SetList("A");
    for (int i = 1; i <= 20; ++i) {
        Fake().SetSetting(a, "connection", "metered", i % 2);
        QTest::qWait(50);
    }
    QCOMPARE(Fake().PriorityOf(a), hasVersions ? alone : 0);
    QTRY_COMPARE(Fake().PriorityOf(a), alone);
}

void tst_networkmanagerpriorities::WriteIsBoundToTheVersionThatIsKnown()
{
    const QString a = Fake().AddProfile("A");
    Fake().SetProperty(a, profileInterface, "VersionId", qulonglong(7));
    Begin("A");
    QCOMPARE(Fake().PriorityOf(a), alone);
    QCOMPARE(Fake().ConditionsOfTheLastChange().value("version-id").toULongLong(), qulonglong(7));
    QCOMPARE(Fake().CallCount("Update2"), 1);
}

void tst_networkmanagerpriorities::PriorityThatSomebodyElseSetsMeanwhileIsRemembered()
{
    const QString a = Fake().AddProfile("A");
    const QString b = Fake().AddProfile("B");
    Begin(QString());
    Fake().Hold("Update2");
    SetList("A B");
    QTRY_COMPARE(Fake().CallCount("Update2"), 1);
    Fake().SetSetting(b, "connection", "autoconnect-priority", 900);
    // Its turn comes when it has rested.
    Settle();
    Fake().Hold(QString());
    Fake().Release();
    QTRY_VERIFY(IsBefore(a, b));
    SetList("A");
    QTRY_COMPARE(Fake().PriorityOf(b), 900);
}

void tst_networkmanagerpriorities::MoveTakesFewCalls_data()
{
    ChangeBySomebodyElseSurvives_data();
}

void tst_networkmanagerpriorities::MoveTakesFewCalls()
{
    QFETCH(bool, hasVersions);
    QStringList names;
    QStringList paths;
    for (int i = 0; i < 30; ++i) {
        names.append(QString::number(i));
        paths.append(Fake().AddProfile(names.last()));
        if (hasVersions) {
            Fake().SetProperty(paths.last(), profileInterface, "VersionId", qulonglong(7));
        }
    }
    Begin(names.join(' '));
    Fake().ForgetCalls();
    names.move(20, 5);
    SetList(names.join(' '));
    QTRY_VERIFY(IsBefore(paths.at(20), paths.at(5)));
    Settle();
    QCOMPARE(Fake().CallCount("Update2"), 1);
    QVERIFY2(Fake().CallCount() <= 5, qPrintable(QString::number(Fake().CallCount())));
}

void tst_networkmanagerpriorities::WhatKeepsTheListFromTakingEffectIsTold_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("notices");
    QTest::addColumn<QString>("line");
    Row("one", "Low High", QStringList("WLAN?IDS_WLAN_ORDER_FIXED"),
        "\"High\" can't be changed, and its priority contradicts the list");
    Row("several", "Low High Higher", QStringList("WLAN?IDS_WLAN_ORDER_SEVERAL"),
        "\"Higher\" can't be changed, and its priority contradicts the list");
    Row("outside", "Higher High Low", QStringList("WLAN?IDS_WLAN_ORDER_OVERTAKEN"),
        "\"Top\" is not in the list and comes before entries of it: there are no "
        "greater priorities for these");
    Row("none", "Top Higher High Low", QStringList(), QString());
}

void tst_networkmanagerpriorities::WhatKeepsTheListFromTakingEffectIsTold()
{
    QFETCH(QString, list);
    QFETCH(QString, line);
    AddProfile("Low", 5, false);
    AddProfile("High", 6, false);
    AddProfile("Higher", 7, false);
    if (!line.contains("changed")) {
        AddProfile("Top", 999);
        AddProfile("X", 0);
        list += " X";
    }
    QWidget window;
    window.show();
    TraceCapture trace;
    Begin(list);
    QTEST(Notices(), "notices");
    QCOMPARE(trace.Lines().filter("WLANNetworkManager: ").filter(line).isEmpty(), line.isEmpty());
}

void tst_networkmanagerpriorities::WhatWasToldIsToldAgainOnlyWhenItComesBack()
{
    AddProfile("Low", 5, false);
    AddProfile("High", 6, false);
    const QString x = AddProfile("X", 0);
    QWidget window;
    window.show();
    Begin("Low High");
    QCOMPARE(Notices().size(), 1);
    SetList("Low High X");
    QTRY_VERIFY(Fake().PriorityOf(x) > 0);
    StartPluginAgain();
    Settle();
    QCOMPARE(Notices(), QStringList());
    SetList("High Low");
    QTRY_COMPARE(Fake().PriorityOf(x), 0);
    SetList("Low High");
    QTRY_COMPARE(StandInHost::messages.size(), 1);
}

void tst_networkmanagerpriorities::WhatNobodySawIsToldInAWindow()
{
    AddProfile("Low", 5, false);
    AddProfile("High", 6, false);
    Begin("Low High");
    QCOMPARE(Notices(), QStringList());
    QWidget window;
    window.show();
    StartPluginAgain();
    QTRY_COMPARE(StandInHost::messages.size(), 1);
}

void tst_networkmanagerpriorities::MobileBroadbandHasItsPlace()
{
    const QString wifi = Fake().AddProfile("A");
    const QString mobile = Fake().AddProfile("A", "gsm");
    Begin("A/0 A/1");
    QVERIFY(IsBefore(mobile, wifi));
}

void tst_networkmanagerpriorities::ProfilesOfOneNameHaveOnePlace()
{
    const QString first = Fake().AddProfile("A");
    const QString second = Fake().AddProfile("A");
    Begin("X A");
    QCOMPARE(Fake().PriorityOf(first), alone);
    QCOMPARE(Fake().PriorityOf(second), alone);
}

void tst_networkmanagerpriorities::ProfilesOutsideTheListAreLeftAlone()
{
    const QString wifi = Fake().AddProfile("B");
    const QString wired = Fake().AddProfile("A", "802-3-ethernet");
    Fake().SetSetting(wifi, "connection", "autoconnect-priority", 7);
    Fake().AddProfile("A");
    Begin("A");
    QCOMPARE(Fake().PriorityOf(wifi), 7);
    QCOMPARE(Fake().PriorityOf(wired), 0);
    QCOMPARE(Fake().CallCount("Update2"), 1);
}

void tst_networkmanagerpriorities::EntryThatLeavesGetsItsFormerPriority()
{
    const QString a = Fake().AddProfile("A");
    Fake().SetSetting(a, "connection", "autoconnect-priority", -12);
    Begin("A B");
    QCOMPARE(Fake().PriorityOf(a), alone);
    SetList("B");
    QTRY_COMPARE(Fake().PriorityOf(a), -12);
}

void tst_networkmanagerpriorities::WhatAnotherProgramOfTheUserHasDoneIsSetBackToo()
{
    const QString a = AddProfile("A", 12);
    const QString uuid = Fake().SettingsOf(a)["connection"]["uuid"].toString();
    Begin("B");
    Directory().Write("NetworkManager.ini", QString("[priorities]\n%1=12 999\n").arg(uuid).toUtf8());
    Fake().SetSetting(a, "connection", "autoconnect-priority", 999);
    SetList("A B");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), 999);
    SetList("B");
    QTRY_COMPARE(Fake().PriorityOf(a), 12);
}

void tst_networkmanagerpriorities::NothingStaysKnownOfAForgottenProfile()
{
    const QString b = AddProfile("B", 0);
    AddProfile("A", 0);
    Begin("A B");
    QTRY_VERIFY(Fake().PriorityOf(b) > 0);
    WaitUntilNothingIsAsked();
    const QByteArray records = Directory().Read("NetworkManager.ini");
    const ConnectionProfile a = LoadedWLAN::ConnectionProfileNamed("A");
    const QByteArray uuid = a.lastingId.toLatin1();
    // What it had before, and what the list has left.
    QCOMPARE(records.count(uuid), 2);
    LoadedWLAN::Connections()->Forget(a.id, a.lastingId);
    QTRY_VERIFY(!Directory().Read("NetworkManager.ini").contains(uuid));
    const QByteArray other = LoadedWLAN::ConnectionProfileNamed("B").lastingId.toLatin1();
    QVERIFY(Directory().Read("NetworkManager.ini").contains(other));
}

void tst_networkmanagerpriorities::ProgramsOfOneUserWorkInTurns()
{
    const QString a = AddProfile("A", 0);
    Begin("B");
    QLockFile otherProgram(Directory().FilePath("NetworkManager.ini.use"));
    QVERIFY(otherProgram.tryLock());
    SetList("A");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), 0);
    otherProgram.unlock();
    QTRY_COMPARE(Fake().PriorityOf(a), alone);
}

void tst_networkmanagerpriorities::ForeignPriorityIsNotSetBack()
{
    const QString a = Fake().AddProfile("A");
    Begin("A B");
    Fake().SetSetting(a, "connection", "autoconnect-priority", 50);
    SetList("B");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), 50);
    QCOMPARE(Fake().CallCount("Update2"), 1);
}

void tst_networkmanagerpriorities::ForeignPriorityAgainstTheListIsSetRightOnce_data()
{
    QTest::addColumn<bool>("isTheSame");
    Row("the same network", true);
    Row("the other one of the two", false);
}

void tst_networkmanagerpriorities::ForeignPriorityAgainstTheListIsSetRightOnce()
{
    QFETCH(bool, isTheSame);
    const QString a = AddProfile("A", 0);
    const QString b = AddProfile("B", 0);
    Begin("A B");
    TraceCapture trace;
    SetByHand(a, -5);
    QVERIFY(IsBefore(a, b));
    QVERIFY(trace.Lines().contains("WLANNetworkManager: somebody else has set the priority of \"A\" against "
                                   "the list: it is set right once"));
    QCOMPARE(Standing(), QString("%1 0").arg(int(OrderOutcome::StageOrderDone)));
    const QString second = isTheSame ? a : b;
    const int priority = isTheSame ? -6 : 999;
    SetByHand(second, priority);
    QCOMPARE(Fake().PriorityOf(second), priority);
    QVERIFY(IsBefore(b, a));
    QCOMPARE(
        Standing(),
        QString("%1 0 %2 %3").arg(int(OrderOutcome::StageOrderDone)).arg(second).arg(int(ObstacleOtherList)));
}

void tst_networkmanagerpriorities::ForeignPriorityIsSetRightAlsoWhenThatTakesTime()
{
    const QString a = AddProfile("A", 0);
    const QString b = AddProfile("B", 0);
    Begin("A B");
    Fake().SetSetting(a, "connection", "autoconnect-priority", -5);
    Fake().AddProfile("wired", "802-3-ethernet");
    QTRY_VERIFY(IsBefore(a, b));
}

void tst_networkmanagerpriorities::ListRulesAgainAfterItWasSetAside_data()
{
    QTest::addColumn<QString>("list");
    Row("when it changes", "A B C");
    Row("when the user orders it", QString());
}

void tst_networkmanagerpriorities::ListRulesAgainAfterItWasSetAside()
{
    QFETCH(QString, list);
    const QString a = SetAside();
    QCOMPARE(Fake().PriorityOf(a), -5);
    if (list.isEmpty()) {
        LoadedWLAN::Order()->Apply();
    } else {
        SetList(list);
    }
    QTRY_VERIFY(Fake().PriorityOf(a) > 0);
    QTRY_COMPARE(Standing(), QString("%1 0").arg(int(OrderOutcome::StageOrderDone)));
}

void tst_networkmanagerpriorities::OtherNetworksFollowTheListThatWasSetAside()
{
    const QString a = AddProfile("A", 0);
    const QString b = AddProfile("B", 0);
    const QString c = AddProfile("C", 0);
    Begin("A B C");
    SetByHand(a, -5);
    SetByHand(a, -5);
    SetByHand(c, 999);
    QVERIFY(IsBefore(b, c));
    QCOMPARE(Fake().PriorityOf(a), -5);
}

void tst_networkmanagerpriorities::ForeignPriorityInAgreementIsNotCounted()
{
    const QString a = AddProfile("A", 0);
    const QString b = AddProfile("B", 0);
    Begin("A B");
    SetByHand(a, 900);
    SetByHand(a, -5);
    QVERIFY(IsBefore(a, b));
}

void tst_networkmanagerpriorities::PriorityThatWasSetByHandOnceIsGivenBack()
{
    const QString a = AddProfile("A", 12);
    const QString b = AddProfile("B", 20);
    Begin("A B");
    SetByHand(a, -5);
    QVERIFY(IsBefore(a, b));
    SetList("B");
    QTRY_COMPARE(Fake().PriorityOf(a), -5);
}

void tst_networkmanagerpriorities::PriorityOfAnotherListIsNotGivenBack()
{
    const QString a = SetAside();
    LoadedWLAN::Order()->Apply();
    QTRY_VERIFY(Fake().PriorityOf(a) > 0);
    Settle();
    SetList("B");
    QTRY_COMPARE(Fake().PriorityOf(a), 12);
}

void tst_networkmanagerpriorities::ListStaysSetAsideInAnotherProgram()
{
    const QString a = SetAside();
    StartPluginAgain();
    QTRY_COMPARE(
        Standing(),
        QString("%1 0 %2 %3").arg(int(OrderOutcome::StageOrderDone)).arg(a).arg(int(ObstacleOtherList)));
    QCOMPARE(Fake().PriorityOf(a), -5);
}

void tst_networkmanagerpriorities::UserIsToldThatTheListIsSetAside()
{
    QWidget window;
    window.show();
    SetAside();
    QCOMPARE(Notices(), QStringList("WLAN?IDS_WLAN_ORDER_OTHER"));
}

void tst_networkmanagerpriorities::RemovedListSetsAllBackAndANewOneIsFollowed()
{
    const QString a = Fake().AddProfile("A");
    const QString b = Fake().AddProfile("B");
    Begin("A");
    QCOMPARE(Fake().PriorityOf(a), alone);
    QVERIFY(QFile::remove(Directory().FilePath("Priority.xml")));
    QTRY_COMPARE(Fake().PriorityOf(a), 0);
    SetList("A B");
    QTRY_VERIFY(Fake().PriorityOf(b) > 0);
    // Written into the file that is there, of which its directory tells nothing.
    SetList("A C");
    QTRY_COMPARE(Fake().PriorityOf(b), 0);
    QVERIFY(QFile::remove(Directory().FilePath("Priority.xml")));
    QTRY_COMPARE(Fake().PriorityOf(a), 0);
}

void tst_networkmanagerpriorities::ListThatIsNotToRuleGivesAllBackUntilItDoesAgain()
{
    const QString a = AddProfile("A", -12);
    Begin("A");
    QCOMPARE(Fake().PriorityOf(a), alone);
    Directory().Write("rules.ini", "[General]\nruling=no\n");
    QTRY_COMPARE(Fake().PriorityOf(a), -12);
    SetList("B A");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), -12);
    Directory().Write("rules.ini", "[General]\nruling=yes\n");
    QTRY_COMPARE(Fake().PriorityOf(a), alone);
}

void tst_networkmanagerpriorities::DamagedListGivesAllBackWhenItIsNotToRule()
{
    const QString a = AddProfile("A", -12);
    Begin("A");
    Directory().Write("Priority.xml", "<zeltdoc><item");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), alone);
    Directory().Write("rules.ini", "[General]\nruling=no\n");
    QTRY_COMPARE(Fake().PriorityOf(a), -12);
}

void tst_networkmanagerpriorities::OrderTellsWhatWasDone()
{
    AddProfile("A", 5);
    AddProfile("B", 3, false);
    AddProfile("C", 0);
    Begin("");
    IOrderPlugin *order = LoadedWLAN::Order();
    QVERIFY(order);
    SetList("B A C");
    const int number = order->Apply();
    OrderOutcome outcome;
    order->GetOutcome(number, &outcome);
    QCOMPARE(outcome.stage, int(OrderOutcome::StageOrderUnderWay));
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    QTRY_COMPARE(spy.count(), 1);
    order->GetOutcome(number, &outcome);
    QCOMPARE(outcome.stage, int(OrderOutcome::StageOrderDone));
    QStringList changes;
    for (const OrderChange &change : std::as_const(outcome.changes)) {
        changes << QString("%1 %2 %3").arg(change.name).arg(change.before).arg(change.after);
    }
    QCOMPARE(changes, QStringList({"A 5 2", "C 0 1"}));
    QVERIFY(outcome.kept.isEmpty());
}

void tst_networkmanagerpriorities::OrderTellsWhatCannotBeDone()
{
    AddProfile("A", 5);
    AddProfile("B", 3);
    Fake().SetRight("org.freedesktop.NetworkManager.settings.modify.system", "auth");
    Begin("B A");
    IOrderPlugin *order = LoadedWLAN::Order();
    const int number = order->Apply();
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    QTRY_COMPARE(spy.count(), 1);
    OrderOutcome outcome;
    order->GetOutcome(number, &outcome);
    QVERIFY(!outcome.kept.isEmpty());
    QCOMPARE(outcome.kept.first().obstacle, int(ObstaclePassword));
    order->GetOutcome(number + 1, &outcome);
    QCOMPARE(outcome.stage, int(OrderOutcome::StageOrderNotKnown));
}

void tst_networkmanagerpriorities::OrderEndsWhenNothingIsDueAnyMore()
{
    AddProfile("A", 0);
    Begin(QString());
    Fake().AnswerWithError("Update2", "org.freedesktop.NetworkManager.Settings.VersionIdMismatch");
    SetList("A");
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    const int number = LoadedWLAN::Order()->Apply();
    QTRY_VERIFY(Fake().CallCount("Update2") > 1);
    QCOMPARE(spy.count(), 0);
    Fake().Behave();
    QTRY_COMPARE(spy.count(), 1);
    OrderOutcome outcome;
    LoadedWLAN::Order()->GetOutcome(number, &outcome);
    QCOMPARE(outcome.changes.size(), 1);
    QCOMPARE(outcome.changes.first().after, alone);
}

void tst_networkmanagerpriorities::StandingTellsWhatTheListCannotChange()
{
    const QString a = AddProfile("A", 3, false);
    AddProfile("B", 5, false);
    Begin("B A");
    OrderOutcome standing;
    LoadedWLAN::Order()->GetStanding(&standing);
    QCOMPARE(standing.stage, int(OrderOutcome::StageOrderDone));
    QVERIFY(standing.kept.isEmpty());
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    SetList("A B");
    QTRY_COMPARE(spy.count(), 1);
    LoadedWLAN::Order()->GetStanding(&standing);
    QCOMPARE(standing.kept.size(), 1);
    const OrderKept kept = standing.kept.first();
    QCOMPARE(kept.obstacle, int(ObstacleNotAllowed));
    QCOMPARE(kept.profileId, LoadedWLAN::ConnectionProfileNamed(kept.name).id);
    // What is as it was is not told again.
    Fake().AddProfile("C");
    Settle();
    QCOMPARE(spy.count(), 1);
}

void tst_networkmanagerpriorities::ProfileConnectsByItselfWhenTheUserWantsThat_data()
{
    QTest::addColumn<bool>("isOn");
    Row("on", true);
    Row("off", false);
}

void tst_networkmanagerpriorities::ProfileConnectsByItselfWhenTheUserWantsThat()
{
    QFETCH(bool, isOn);
    NMVariantMapMap settings = FakeNetworkManager::Settings("A");
    settings["connection"]["autoconnect"] = !isOn;
    const QString a = Fake().AddProfile(settings);
    Begin("");
    settings = Fake().SettingsOf(a);
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    const int number = LoadedWLAN::Order()->SetConnectsByItself(a, isOn);
    QCOMPARE(spy.count(), 0);
    QTRY_COMPARE(spy.count(), 1);
    OrderOutcome outcome;
    LoadedWLAN::Order()->GetOutcome(number, &outcome);
    QCOMPARE(outcome.stage, int(OrderOutcome::StageOrderDone));
    QVERIFY(outcome.kept.isEmpty());
    settings["connection"]["autoconnect"] = isOn;
    QCOMPARE(Fake().SettingsOf(a), settings);
    QTRY_COMPARE(LoadedWLAN::ConnectionProfileNamed("A").connectsByItself, isOn);
    // It is as it should be already.
    const int calls = Fake().CallCount("Update2");
    LoadedWLAN::Order()->SetConnectsByItself(a, isOn);
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(Fake().CallCount("Update2"), calls);
}

void tst_networkmanagerpriorities::WishThatCannotBeFulfilledIsTold_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("obstacle");
    Row("refused", "org.freedesktop.NetworkManager.Settings.Failed", int(ObstacleRefused));
    Row("not allowed", "org.freedesktop.NetworkManager.Settings.PermissionDenied", int(ObstacleNotAllowed));
    Row("gone", QString(), int(ObstacleNotKnown));
}

void tst_networkmanagerpriorities::WishThatCannotBeFulfilledIsTold()
{
    QFETCH(QString, error);
    const QString a = Fake().AddProfile("A");
    Begin("");
    if (error.isEmpty()) {
        Fake().Remove(a);
    } else {
        Fake().AnswerWithError("Update2", error);
    }
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    const int number = LoadedWLAN::Order()->SetConnectsByItself(a, false);
    QTRY_COMPARE(spy.count(), 1);
    OrderOutcome outcome;
    LoadedWLAN::Order()->GetOutcome(number, &outcome);
    QCOMPARE(outcome.kept.size(), 1);
    QTEST(outcome.kept.first().obstacle, "obstacle");
    QCOMPARE(outcome.kept.first().profileId, a);
    Fake().Vanish();
    const int later = LoadedWLAN::Order()->SetConnectsByItself(a, false);
    QTRY_VERIFY(spy.count() > 1);
    LoadedWLAN::Order()->GetOutcome(later, &outcome);
    QCOMPARE(outcome.failure, int(OrderOutcome::FailureOrderSource));
}

void tst_networkmanagerpriorities::WishIsWrittenIntoWhatTheProfileIsByThen()
{
    const QString a = Fake().AddProfile("A");
    Begin("");
    Fake().AnswerWithError("Update2", "org.freedesktop.NetworkManager.Settings.VersionIdMismatch");
    QSignalSpy spy(LoadedWLAN::OrderService(), SIGNAL(OnOrderChanged()));
    LoadedWLAN::Order()->SetConnectsByItself(a, false);
    QTRY_VERIFY(Fake().CallCount("Update2") > 0);
    Fake().SetSetting(a, "connection", "zone", "home");
    QCOMPARE(spy.count(), 0);
    Fake().Behave();
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(Fake().SettingsOf(a)["connection"]["zone"], QVariant("home"));
    QCOMPARE(Fake().SettingsOf(a)["connection"]["autoconnect"], QVariant(false));
}

void tst_networkmanagerpriorities::ListThatGoesBackToWhatItWasIsFollowed()
{
    const QString a = Fake().AddProfile("A");
    Begin("");
    SetList("A");
    Fake().AddProfile("B");
    // Whoever watches the directory has no moment to look into it; the new profile has the list read.
    for (int i = 0; i < 100 && Fake().PriorityOf(a) == 0; ++i) {
        Directory().Write(QString("other%1").arg(i), QByteArray());
        QTest::qWait(20);
    }
    QCOMPARE(Fake().PriorityOf(a), alone);
    SetList("");
    QTRY_COMPARE(Fake().PriorityOf(a), 0);
}

void tst_networkmanagerpriorities::NewProfileGetsItsPlace()
{
    Begin("X A");
    const QString a = Fake().AddProfile("A");
    QTRY_COMPARE(Fake().PriorityOf(a), alone);
}

void tst_networkmanagerpriorities::WorkGoesOnAfterARestartOfTheProgram()
{
    const QString a = Fake().AddProfile("A");
    Fake().SetSetting(a, "connection", "autoconnect-priority", -12);
    Begin("A B");
    LoadedWLAN::Root()->OnDestroy();
    SetList("B");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), alone);
    QVERIFY(LoadedWLAN::Root()->Init());
    QTRY_COMPARE(Fake().PriorityOf(a), -12);
}

void tst_networkmanagerpriorities::WorkGoesOnWhenNetworkManagerComesBack()
{
    const QString a = Fake().AddProfile("A");
    Begin("A");
    Fake().Vanish();
    SetList("B");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), alone);
    QVERIFY(Fake().Appear());
    QTRY_COMPARE(Fake().PriorityOf(a), 0);
}

void tst_networkmanagerpriorities::WorkGoesOnOnANewBus()
{
    Begin("A");
    Bus().Kill();
    SetList("B A C");
    Settle();
    StartBusAgain();
    const QString a = Fake().AddProfile("A");
    QVERIFY(Fake().Appear());
    QTRY_COMPARE(Fake().PriorityOf(a), alone);
    // Whoever was told of news on the old bus is told of those on the new one.
    const QString c = Fake().AddProfile("C");
    QTRY_VERIFY(Fake().PriorityOf(c) > 0);
    QVERIFY(IsBefore(a, c));
    Fake().Vanish();
    SetList("A");
    Settle();
    QVERIFY(Fake().Appear());
    QTRY_COMPARE(Fake().PriorityOf(c), 0);
    QCOMPARE(Fake().PriorityOf(a), alone);
}

void tst_networkmanagerpriorities::ReadOnlyProfilesAreLeftAlone()
{
    const QString a = Fake().AddProfile("A");
    Fake().SetProperty(a, profileInterface, "Unsaved", true);
    Begin("A");
    QCOMPARE(Fake().CallCount("Update2"), 0);
}

void tst_networkmanagerpriorities::ProfilesThatNeedAPasswordAreLeftAlone()
{
    Fake().AddProfile("A");
    Fake().SetRight("org.freedesktop.NetworkManager.settings.modify.system", "auth");
    Begin("A");
    QCOMPARE(Fake().CallCount("Update2"), 0);
}

void tst_networkmanagerpriorities::DamagedListChangesNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    Row("cut off", ListOf("B A").left(100));
    Row("not XML", QByteArray("\0\1\2<item", 8));
    Row("nothing in it", QByteArray(""));
}

void tst_networkmanagerpriorities::DamagedListChangesNothing()
{
    QFETCH(QByteArray, content);
    const QString a = Fake().AddProfile("A");
    Begin("A");
    Directory().Write("Priority.xml", content);
    Settle();
    QCOMPARE(Fake().PriorityOf(a), alone);
    QCOMPARE(Fake().CallCount("Update2"), 1);
    QCOMPARE(Directory().Read("Priority.xml"), content);
}

void tst_networkmanagerpriorities::MissingPriorityPluginChangesNothing()
{
    const QString a = Fake().AddProfile("A");
    Begin("A");
    m_plugin.container.objects.clear();
    SetList("B");
    Settle();
    StandInHost::container = nullptr;
    SetList("B C");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), alone);
}

namespace
{

/** As the priority plug-in answers once it has been taken down. */
class TakenDown : public QObject, public IPriorityPlugin
{
    Q_OBJECT
    Q_INTERFACES(IPriorityPlugin)

public:
    int GetPriorityList(QList<PriorityList> *) override { return 0; }
    void AddPriorityList(QList<PriorityList> &) override {}
    void AddTopPriority(PriorityList) override {}
};

} // namespace

void tst_networkmanagerpriorities::PriorityPluginThatWasTakenDownChangesNothing()
{
    const QString a = Fake().AddProfile("A");
    Begin("A");
    TakenDown takenDown;
    m_plugin.container.objects[qMakePair(QString(priorityClass), 4103)] = &takenDown;
    SetList("B A");
    Settle();
    QCOMPARE(Fake().PriorityOf(a), alone);
}

void tst_networkmanagerpriorities::RefusedWriteIsToldAndTheOthersAreMade()
{
    const QString a = Fake().AddProfile("A");
    const QString b = Fake().AddProfile("B");
    Fake().AnswerWithError("Update2", "org.freedesktop.NetworkManager.Settings.PermissionDenied", a);
    TraceCapture trace;
    Begin("A B");
    QCOMPARE(Fake().PriorityOf(a), 0);
    QCOMPARE(Fake().PriorityOf(b), 334);
    QVERIFY(trace.Lines().contains(
        "WLANNetworkManager: the priority of \"A\" is not changed: this user may not do that"));
}

void tst_networkmanagerpriorities::MeaninglessAnswerLosesNothing()
{
    const QString a = Fake().AddProfile("A");
    Begin("A");
    Fake().AnswerWith("GetManagedObjects", QList<QVariant>() << 42);
    TraceCapture trace;
    Fake().Vanish();
    SetList("B");
    QVERIFY(Fake().Appear());
    QTRY_VERIFY(trace.Lines().contains(
        "WLANNetworkManager: the list is not compared: NetworkManager's answer can't be understood"));
    QCOMPARE(Fake().PriorityOf(a), alone);
    QCOMPARE(Directory().Read("Priority.xml"), ListOf("B"));
    Fake().Behave();
    Fake().Vanish();
    QVERIFY(Fake().Appear());
    QTRY_COMPARE(Fake().PriorityOf(a), 0);
}

void tst_networkmanagerpriorities::UnreadableProfileIsToldAndTheOthersAreWritten()
{
    const QString a = Fake().AddProfile("A");
    const QString b = Fake().AddProfile("B");
    Fake().AnswerWith("GetSettings", QList<QVariant>() << 42, a);
    TraceCapture trace;
    Begin("A B");
    QCOMPARE(Fake().PriorityOf(b), alone);
    QCOMPARE(Fake().PriorityOf(a), 0);
    QVERIFY(trace.Lines().contains("WLANNetworkManager: not all profiles are compared with the list: "
                                   "NetworkManager's answer can't be understood"));
}

void tst_networkmanagerpriorities::FirstConnectionGoesWhereTheUserWantsIt_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QStringList>("after");
    Row("not chosen", QByteArray(), QStringList{"X/1", "A/1", "M/2"});
    Row("at the end", QByteArray("end"), QStringList{"X/1", "A/1", "M/2"});
    Row("at the top", QByteArray("top"), QStringList{"M/2", "A/1", "X/1"});
    Row("not at all", QByteArray("none"), QStringList{"X/1"});
}

void tst_networkmanagerpriorities::FirstConnectionGoesWhereTheUserWantsIt()
{
    QFETCH(QByteArray, place);
    QFETCH(QStringList, after);
    const QString a = Fake().AddProfile("A");
    const QString mobile = Fake().AddProfile("M", "gsm");
    Directory().Write("rules.ini", "[General]\nnewNetworks=" + place + '\n');
    Begin("X");
    Fake().Connect(a, activated);
    QTRY_COMPARE(Listed().contains("A/1"), after.contains("A/1"));
    Settle();
    Fake().Connect(mobile, activated);
    QTRY_COMPARE(Listed(), after);
    if (after.size() == 3) {
        QTRY_VERIFY(place == "top" ? IsBefore(mobile, a) : IsBefore(a, mobile));
    }
}

void tst_networkmanagerpriorities::NetworkThatIsKeptOutOfTheListIsNotAddedLater()
{
    const QString a = Fake().AddProfile("A");
    Directory().Write("rules.ini", "[General]\nnewNetworks=none\n");
    Begin("X");
    Fake().Connect(a, activated);
    Settle();
    Directory().Write("rules.ini", "[General]\nnewNetworks=end\n");
    SetList("Y");
    Settle();
    QCOMPARE(Listed(), QStringList("Y/1"));
}

void tst_networkmanagerpriorities::ConnectionIsAddedWhenItIsMadeAndNotBefore()
{
    const QString a = Fake().AddProfile("A");
    Begin("X");
    const QString connection = Fake().Connect(a, activating);
    Settle();
    QCOMPARE(Listed(), QStringList("X/1"));
    Fake().SetConnectionState(connection, activated);
    QTRY_COMPARE(Listed().value(1), QString("A/1"));
}

void tst_networkmanagerpriorities::SecondConnectionIsNotAdded()
{
    const QString a = Fake().AddProfile("A");
    Begin("X A");
    Fake().Connect(a, activated);
    Settle();
    QCOMPARE(Listed(), QStringList() << "X/1"
                                     << "A/1");
}

void tst_networkmanagerpriorities::DeletedEntryIsNotAddedAgain()
{
    const QString a = Fake().AddProfile("A");
    Begin("X");
    const QString connection = Fake().Connect(a, activated);
    QTRY_COMPARE(Listed().value(1), QString("A/1"));
    SetList("X");
    Settle();
    Fake().SetConnectionState(connection, activating);
    Fake().SetConnectionState(connection, activated);
    LoadedWLAN::Root()->OnDestroy();
    QVERIFY(LoadedWLAN::Root()->Init());
    Settle();
    QCOMPARE(Listed(), QStringList("X/1"));
}

void tst_networkmanagerpriorities::WhatWasConnectedBeforeTheFirstStartIsNotAdded()
{
    const QString a = Fake().AddProfile("A");
    Fake().Connect(a, activated);
    const QString b = Fake().AddProfile("B");
    Fake().SetSetting(b, "connection", "timestamp", qulonglong(1700000000));
    // What is known of former connections is known from the first start in a new directory on.
    Directory().Write("NetworkManager.ini", "");
    Begin("X");
    QCOMPARE(Listed(), QStringList("X/1"));
}

QTEST_MAIN(tst_networkmanagerpriorities)
#include "tst_networkmanagerpriorities.moc"
