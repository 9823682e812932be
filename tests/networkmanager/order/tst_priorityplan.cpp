#include <FirstConnections.h>
#include <PriorityPlan.h>
#include <PriorityRecords.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QFile>
#include <QtTest>

namespace
{

PriorityList Entry(const QString &name, const QString &type = QLatin1String("1"))
{
    PriorityList entry;
    entry.name = name;
    entry.type = type;
    return entry;
}

QList<PriorityList> List(const QString &names)
{
    QList<PriorityList> list;
    const QStringList all = names.isEmpty() ? QStringList() : names.split(' ');
    for (int i = 0; i < all.size(); ++i) {
        list.append(Entry(all.at(i)));
    }
    return list;
}

/** A Wi-Fi profile with a uuid and a path of its own, made from its name. */
NetworkProfile Profile(const QString &name, int priority = 0)
{
    NetworkProfile profile;
    profile.name = name;
    profile.uuid = "uuid-of-" + name;
    profile.path = "/" + name;
    profile.kind = NetworkProfile::Wifi;
    profile.priority = priority;
    profile.isFreelyChangeable = true;
    return profile;
}

typedef QMap<QString, PriorityRecord> Records;

/** What can't be fitted, and "name=priority" for every change. */
QStringList Plan(const QList<PriorityList> &list, const QList<NetworkProfile> &profiles, Records *records)
{
    const PlannedPriorities planned = PriorityPlan::Make(list, profiles, records);
    QStringList texts;
    for (const NetworkProfile &profile : planned.contradicting) {
        texts.append(profile.name + " contradicts");
    }
    for (const NetworkProfile &profile : planned.overtaking) {
        texts.append(profile.name + " overtakes");
    }
    for (const NetworkProfile &profile : planned.owing) {
        texts.append(profile.name + " can't be given back");
    }
    for (const PriorityChange &change : planned.changes) {
        texts.append(QString("%1=%2").arg(change.profile.name).arg(change.priority));
    }
    return texts;
}

QStringList Names(const QList<NetworkProfile> &profiles)
{
    QStringList names;
    for (int i = 0; i < profiles.size(); ++i) {
        names.append(profiles.at(i).name);
    }
    return names;
}

} // namespace

/** What is decided about priorities and about first connections, without anything being asked or written. */
class tst_priorityplan : public QObject
{
    Q_OBJECT

private slots:
    void ListedProfilesGetTheirPlaces();
    void OnlyWhatDiffersIsWritten();
    void UnlistedProfilesAreLeftAlone();
    void NameAndKindHaveToFit_data();
    void NameAndKindHaveToFit();
    void RepeatedEntryHasItsFirstPlace();
    void ProfilesOfOneNameHaveOnePlace();
    void UnchangeableProfilesAreLeftAlone();
    void OthersAreFittedAroundTheUnchangeable();
    void UnchangeableThatContradictsIsTold();
    void UnlistedProfilesComeAfterTheList_data();
    void UnlistedProfilesComeAfterTheList();
    void UnlistedProfileThatOvertakesIsTold();
    void ProfileWithoutItsAccountIsNotTriedFirst();
    void AccountIsLackingOnlyWhereOneIsNeeded_data();
    void AccountIsLackingOnlyWhereOneIsNeeded();
    void ProfileThatLeavesGetsItsFormerPriority();
    void FormerPriorityIsThatBeforeTheFirstWrite();
    void ForeignValueIsNotSetBack();
    void ForeignValueThatFollowsTheListStays();
    void ForeignValueInTheListIsOverwrittenAndRemembered();
    void ValueOfAnotherProgramOfOursThatComesLateIsOwn();
    void SetBackIsTriedAgainUntilItIsDone();
    void SetBackThatCannotBeDoneIsTold();
    void InterruptedWriteIsStillOwn();
    void RecordGoesWithTheSetBack();

    void RecordsSurviveTheProgram();
    void RecordsAreOnlyWrittenWhenTheyChange();
    void DamagedRecordsAreLeftOut();
    void RecordsThatCannotBeWrittenAreToldAndKept();
    void RecordsAreUsedByOneProgramAtATime();

    void WhatWasConnectedBeforeTheRecordsIsOld();
    void FirstConnectionIsFound();
    void ConnectionIsFoundOnce();
    void ConnectionsAreFoundInTheirOrder();
    void ListedConnectionIsNotFound();
    void WhatIsNotForTheListIsNotFound_data();
    void WhatIsNotForTheListIsNotFound();
};

void tst_priorityplan::ListedProfilesGetTheirPlaces()
{
    Records records;
    QCOMPARE(Plan(List("B A"), QList<NetworkProfile>() << Profile("A") << Profile("B"), &records),
             QStringList() << "A=334"
                           << "B=667");
}

void tst_priorityplan::OnlyWhatDiffersIsWritten()
{
    Records records;
    QCOMPARE(Plan(List("A B C D"),
                  QList<NetworkProfile>()
                      << Profile("A", 999) << Profile("B", 5) << Profile("C", 997) << Profile("D", 900),
                  &records),
             QStringList("B=998"));
    QCOMPARE(records.keys(), QList<QString>() << "uuid-of-B");
}

void tst_priorityplan::UnlistedProfilesAreLeftAlone()
{
    Records records;
    QCOMPARE(Plan(List("A"),
                  QList<NetworkProfile>() << Profile("A", 999) << Profile("B", 7) << Profile("C", -5),
                  &records),
             QStringList());
    QVERIFY(records.isEmpty());
}

void tst_priorityplan::NameAndKindHaveToFit_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("fits");

    Row("Wi-Fi", "A", "1", int(NetworkProfile::Wifi), true);
    Row("mobile broadband", "A", "2", int(NetworkProfile::MobileBroadband), true);
    Row("mobile broadband of another number", "A", "0", int(NetworkProfile::MobileBroadband), true);
    Row("mobile broadband without type", "A", "", int(NetworkProfile::MobileBroadband), true);
    Row("Wi-Fi entry, mobile profile", "A", "1", int(NetworkProfile::MobileBroadband), false);
    Row("mobile entry, Wi-Fi profile", "A", "2", int(NetworkProfile::Wifi), false);
    Row("wired profile", "A", "2", int(NetworkProfile::OtherKind), false);
    Row("other case", "a", "1", int(NetworkProfile::Wifi), false);
    Row("blank behind", "A ", "1", int(NetworkProfile::Wifi), false);
}

void tst_priorityplan::NameAndKindHaveToFit()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QFETCH(int, kind);
    QFETCH(bool, fits);
    NetworkProfile profile = Profile("A");
    profile.kind = static_cast<NetworkProfile::Kind>(kind);
    Records records;
    QCOMPARE(Plan(QList<PriorityList>() << Entry(name, type), QList<NetworkProfile>() << profile, &records),
             fits ? QStringList("A=500") : QStringList());
}

void tst_priorityplan::RepeatedEntryHasItsFirstPlace()
{
    Records records;
    QCOMPARE(Plan(List("A B A C"), QList<NetworkProfile>() << Profile("A") << Profile("B") << Profile("C"),
                  &records),
             QStringList() << "A=750"
                           << "B=500"
                           << "C=250");
}

void tst_priorityplan::ProfilesOfOneNameHaveOnePlace()
{
    NetworkProfile twin = Profile("A");
    twin.uuid = "another";
    Records records;
    QCOMPARE(Plan(List("B A"), QList<NetworkProfile>() << Profile("A") << twin, &records), QStringList()
                                                                                               << "A=500"
                                                                                               << "A=500");
}

void tst_priorityplan::UnchangeableProfilesAreLeftAlone()
{
    NetworkProfile profile = Profile("A", 5);
    profile.isFreelyChangeable = false;
    Records records;
    QCOMPARE(Plan(List("A"), QList<NetworkProfile>() << profile, &records), QStringList());
    QVERIFY(records.isEmpty());
}

void tst_priorityplan::OthersAreFittedAroundTheUnchangeable()
{
    NetworkProfile fixed = Profile("B", 300);
    fixed.isFreelyChangeable = false;
    Records records;
    QCOMPARE(Plan(List("A B C"), QList<NetworkProfile>() << Profile("A") << fixed << Profile("C"), &records),
             QStringList() << "A=377"
                           << "C=267");
}

void tst_priorityplan::UnchangeableThatContradictsIsTold()
{
    NetworkProfile first = Profile("A", 100);
    first.isFreelyChangeable = false;
    NetworkProfile second = Profile("B", 200);
    second.isFreelyChangeable = false;
    Records records;
    QCOMPARE(Plan(List("A B"), QList<NetworkProfile>() << first << second, &records),
             QStringList("B contradicts"));
}

void tst_priorityplan::UnlistedProfilesComeAfterTheList_data()
{
    QTest::addColumn<int>("unlisted");
    QTest::addColumn<int>("priority");
    Row("as others have set it", 700, 850);
    Row("none", 0, 500);
    Row("less than none", -10, 500);
}

void tst_priorityplan::UnlistedProfilesComeAfterTheList()
{
    QFETCH(int, unlisted);
    QFETCH(int, priority);
    Records records;
    QCOMPARE(Plan(List("A"), QList<NetworkProfile>() << Profile("A") << Profile("B", unlisted), &records),
             QStringList(QString("A=%1").arg(priority)));
}

void tst_priorityplan::UnlistedProfileThatOvertakesIsTold()
{
    Records records;
    QCOMPARE(Plan(List("A"), QList<NetworkProfile>() << Profile("A") << Profile("B", 999), &records),
             QStringList() << "B overtakes"
                           << "A=500");
}

void tst_priorityplan::ProfileWithoutItsAccountIsNotTriedFirst()
{
    NetworkProfile incomplete = Profile("A", 999);
    incomplete.lacksAccount = true;
    Records records;
    records["uuid-of-A"].AddOwn(999);
    QCOMPARE(Plan(List("A B"), QList<NetworkProfile>() << incomplete << Profile("B"), &records),
             QStringList() << "A=0"
                           << "B=500");
}

void tst_priorityplan::AccountIsLackingOnlyWhereOneIsNeeded_data()
{
    QTest::addColumn<QString>("keyManagement");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("lacks");
    const QString wpa = "wpa-eap";
    const QString eap = "802-1x";
    const QVariant sim = QStringList("sim");
    Row("open", "", eap, "eap", sim, false);
    Row("key", "wpa-psk", eap, "eap", sim, false);
    Row("SIM", wpa, eap, "eap", sim, true);
    Row("SIM, 192 bits", "wpa-eap-suite-b-192", eap, "eap", sim, true);
    Row("SIM, dynamic WEP", "ieee8021x", eap, "eap", sim, true);
    Row("empty identity", wpa, eap, "identity", QVariant(""), true);
    Row("identity", wpa, eap, "identity", QVariant("user"), false);
    Row("certificate", wpa, eap, "client-cert", QVariant(QByteArray("file:///a")), false);
    Row("LEAP", "ieee8021x", "802-11-wireless-security", "leap-username", QVariant("user"), false);
}

void tst_priorityplan::AccountIsLackingOnlyWhereOneIsNeeded()
{
    QFETCH(QString, keyManagement);
    QFETCH(QString, section);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    NMVariantMapMap settings;
    settings["connection"]["type"] = "802-11-wireless";
    if (!keyManagement.isEmpty()) {
        settings["802-11-wireless-security"]["key-mgmt"] = keyManagement;
    }
    settings[section][key] = value;
    QTEST(NetworkProfile::Make(ProfilePlace(), settings, CallerRights(), "user").lacksAccount, "lacks");
}

void tst_priorityplan::ProfileThatLeavesGetsItsFormerPriority()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << Profile("A", 500), &records), QStringList("A=-12"));
}

void tst_priorityplan::FormerPriorityIsThatBeforeTheFirstWrite()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    QCOMPARE(Plan(List("B A"), QList<NetworkProfile>() << Profile("A", 500) << Profile("B", 400), &records),
             QStringList("A=356"));
    QCOMPARE(Plan(List("B"), QList<NetworkProfile>() << Profile("A", 356) << Profile("B", 400), &records),
             QStringList("A=-12"));
}

void tst_priorityplan::ForeignValueIsNotSetBack()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << Profile("A", 50), &records), QStringList());
    QVERIFY(records.isEmpty());
}

void tst_priorityplan::ForeignValueThatFollowsTheListStays()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    QCOMPARE(Plan(List("A"), QList<NetworkProfile>() << Profile("A", 50), &records), QStringList());
    QVERIFY(records.isEmpty());
}

void tst_priorityplan::ForeignValueInTheListIsOverwrittenAndRemembered()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    QCOMPARE(Plan(List("A"), QList<NetworkProfile>() << Profile("A", -50), &records), QStringList("A=500"));
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << Profile("A", 500), &records), QStringList("A=-50"));
}

void tst_priorityplan::ValueOfAnotherProgramOfOursThatComesLateIsOwn()
{
    Records records;
    records["uuid-of-A"].before = 12;
    records["uuid-of-A"].AddOwn(700);
    records["uuid-of-A"].AddOwn(400);
    // Its writes are made, and not yet heard of.
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", 12), &records);
    Plan(List("B A"), QList<NetworkProfile>() << Profile("A", 700) << Profile("B", 600), &records);
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << Profile("A", 400), &records), QStringList("A=12"));
}

void tst_priorityplan::SetBackIsTriedAgainUntilItIsDone()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    Plan(List(""), QList<NetworkProfile>() << Profile("A", 500), &records);
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << Profile("A", 500), &records), QStringList("A=-12"));
}

void tst_priorityplan::SetBackThatCannotBeDoneIsTold()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    NetworkProfile ruled = Profile("A", 500);
    ruled.isFreelyChangeable = false;
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << ruled, &records),
             QStringList("A can't be given back"));
    QCOMPARE(Plan(List("A"), QList<NetworkProfile>() << ruled, &records), QStringList());
}

void tst_priorityplan::InterruptedWriteIsStillOwn()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    // Recorded, and never written: the profile still has what was written before.
    Plan(List("B A"), QList<NetworkProfile>() << Profile("A", 500) << Profile("B", 400), &records);
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << Profile("A", 500), &records), QStringList("A=-12"));
}

void tst_priorityplan::RecordGoesWithTheSetBack()
{
    Records records;
    Plan(List("A"), QList<NetworkProfile>() << Profile("A", -12), &records);
    Plan(List(""), QList<NetworkProfile>() << Profile("A", 500), &records);
    QCOMPARE(Plan(List(""), QList<NetworkProfile>() << Profile("A", -12), &records), QStringList());
    QVERIFY(records.isEmpty());
}

void tst_priorityplan::RecordsSurviveTheProgram()
{
    const TemporaryDirectory directory;
    {
        CPriorityRecords records(directory.FilePath("records.ini"));
        QVERIFY(!records.isConnectedKnown);
        records.priorities["first"].before = -3;
        records.priorities["first"].AddOwn(999);
        records.priorities["first"].AddOwn(998);
        records.isConnectedKnown = true;
        records.connected << "one"
                          << "two, with a comma";
        QVERIFY(records.Save());
    }
    CPriorityRecords records(directory.FilePath("records.ini"));
    QVERIFY(records.Open());
    QCOMPARE(records.priorities.size(), 1);
    QCOMPARE(records.priorities.value("first").before, -3);
    QCOMPARE(records.priorities.value("first").own, QList<int>({999, 998}));
    QVERIFY(records.isConnectedKnown);
    QCOMPARE(records.connected, QSet<QString>() << "one"
                                                << "two, with a comma");
}

void tst_priorityplan::RecordsAreOnlyWrittenWhenTheyChange()
{
    const TemporaryDirectory directory;
    CPriorityRecords records(directory.FilePath("records.ini"));
    QVERIFY(records.Save());
    QVERIFY(directory.Read("records.ini").isNull());
    records.isConnectedKnown = true;
    QVERIFY(records.Save());
    QVERIFY(QFile::remove(directory.FilePath("records.ini")));
    QVERIFY(records.Save());
    QVERIFY(directory.Read("records.ini").isNull());
}

void tst_priorityplan::DamagedRecordsAreLeftOut()
{
    const TemporaryDirectory directory;
    directory.Write("records.ini", "[priorities]\na=1 2 3\nb=1\nc=x y z\nd=\ne=1 2 x\nf=99999999999 1 1\n");
    CPriorityRecords records(directory.FilePath("records.ini"));
    QVERIFY(records.Open());
    QCOMPARE(records.priorities.keys(), QList<QString>() << "a");
}

void tst_priorityplan::RecordsThatCannotBeWrittenAreToldAndKept()
{
    const TemporaryDirectory directory;
    CPriorityRecords records(directory.FilePath("absent/because/this is a file/records.ini"));
    directory.Write("absent", "a file");
    records.isConnectedKnown = true;
    QVERIFY(!records.Save());
    records.Close();
    QVERIFY(records.Open());
    QVERIFY(records.isConnectedKnown);
}

void tst_priorityplan::RecordsAreUsedByOneProgramAtATime()
{
    const TemporaryDirectory directory;
    CPriorityRecords one(directory.FilePath("records.ini"));
    CPriorityRecords other(directory.FilePath("records.ini"));
    QVERIFY(one.Open());
    QVERIFY(!other.Open());
    one.priorities["first"].before = 12;
    one.priorities["first"].AddOwn(999);
    QVERIFY(one.Save());
    one.Close();
    QVERIFY(other.Open());
    QCOMPARE(other.priorities, one.priorities);
    other.priorities.clear();
    QVERIFY(other.Save());
    other.Close();
    QVERIFY(one.Open());
    QVERIFY(one.priorities.isEmpty());
}

void tst_priorityplan::WhatWasConnectedBeforeTheRecordsIsOld()
{
    CPriorityRecords records((QString()));
    NetworkProfile old = Profile("A");
    old.lastConnected = 100;
    const QList<NetworkProfile> profiles = QList<NetworkProfile>() << old << Profile("B") << Profile("C");
    QCOMPARE(Names(FirstConnections::Find(profiles, QList<QString>() << "/B", List(""), &records)),
             QStringList());
    QCOMPARE(records.connected, QSet<QString>() << "uuid-of-A"
                                                << "uuid-of-B");
    QVERIFY(records.isConnectedKnown);
}

void tst_priorityplan::FirstConnectionIsFound()
{
    CPriorityRecords records((QString()));
    records.isConnectedKnown = true;
    NetworkProfile passed = Profile("A");
    passed.lastConnected = 100;
    QCOMPARE(Names(FirstConnections::Find(QList<NetworkProfile>() << passed << Profile("B") << Profile("C"),
                                          QList<QString>() << "/C", List("X"), &records)),
             QStringList() << "A"
                           << "C");
}

void tst_priorityplan::ConnectionIsFoundOnce()
{
    CPriorityRecords records((QString()));
    records.isConnectedKnown = true;
    records.connected.insert("uuid-of-A");
    QCOMPARE(Names(FirstConnections::Find(QList<NetworkProfile>() << Profile("A"), QList<QString>() << "/A",
                                          List(""), &records)),
             QStringList());
}

void tst_priorityplan::ConnectionsAreFoundInTheirOrder()
{
    CPriorityRecords records((QString()));
    records.isConnectedKnown = true;
    NetworkProfile late = Profile("A");
    late.lastConnected = 300;
    NetworkProfile early = Profile("B");
    early.lastConnected = 200;
    const NetworkProfile now = Profile("C");
    QCOMPARE(Names(FirstConnections::Find(QList<NetworkProfile>() << late << now << early,
                                          QList<QString>() << "/C", List(""), &records)),
             QStringList() << "B"
                           << "A"
                           << "C");
}

void tst_priorityplan::ListedConnectionIsNotFound()
{
    CPriorityRecords records((QString()));
    records.isConnectedKnown = true;
    const QList<NetworkProfile> profiles = QList<NetworkProfile>() << Profile("A");
    QCOMPARE(Names(FirstConnections::Find(profiles, QList<QString>() << "/A", List("X A"), &records)),
             QStringList());
    // Nor is it later, when the user has taken it out of the list.
    QCOMPARE(Names(FirstConnections::Find(profiles, QList<QString>() << "/A", List("X"), &records)),
             QStringList());
}

void tst_priorityplan::WhatIsNotForTheListIsNotFound_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isHotspot");
    QTest::addColumn<bool>("isPassing");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFound");

    Row("Wi-Fi", int(NetworkProfile::Wifi), false, false, "A", true);
    Row("mobile broadband", int(NetworkProfile::MobileBroadband), false, false, "A", true);
    Row("wired", int(NetworkProfile::OtherKind), false, false, "A", false);
    Row("hotspot", int(NetworkProfile::Wifi), true, false, "A", false);
    Row("passing", int(NetworkProfile::Wifi), false, true, "A", false);
    Row("without name", int(NetworkProfile::Wifi), false, false, "", false);
}

void tst_priorityplan::WhatIsNotForTheListIsNotFound()
{
    QFETCH(int, kind);
    QFETCH(bool, isHotspot);
    QFETCH(bool, isPassing);
    QFETCH(QString, name);
    QFETCH(bool, isFound);
    NetworkProfile profile = Profile("A");
    profile.name = name;
    profile.kind = static_cast<NetworkProfile::Kind>(kind);
    profile.isHotspot = isHotspot;
    profile.isPassing = isPassing;
    CPriorityRecords records((QString()));
    records.isConnectedKnown = true;
    QCOMPARE(FirstConnections::Find(QList<NetworkProfile>() << profile, QList<QString>() << "/A", List(""),
                                    &records)
                 .size(),
             isFound ? 1 : 0);
}

QTEST_APPLESS_MAIN(tst_priorityplan)
#include "tst_priorityplan.moc"
