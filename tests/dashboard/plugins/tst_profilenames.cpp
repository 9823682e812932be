#include "FakeConnections.h"
#include "Lists.h"
#include "PluginWorld.h"

#include <HostControl.h>
#include <ListKeeper.h>
#include <OrderFile.h>
#include <PluginList.h>
#include <ProfileNames.h>
#include <Row.h>

#include <QtTest>

namespace
{

/** Entries by the lasting ids that are written before them: "a Home, b Phone/2". */
ProfileNames::Known KnownOf(const QString &text)
{
    ProfileNames::Known known;
    for (const PriorityList &written : Listed(text)) {
        PriorityList entry = written;
        entry.name = written.name.mid(2);
        known.insert(written.name.left(1), entry);
    }
    return known;
}

QList<ConnectionProfile> ProfilesOf(const QString &text)
{
    QList<ConnectionProfile> profiles;
    const ProfileNames::Known known = KnownOf(text);
    for (auto i = known.constBegin(); i != known.constEnd(); ++i) {
        profiles.append(SavedProfile(i->name, ConnectionProfile::UsePossible, i->type));
        profiles.last().lastingId = i.key();
    }
    return profiles;
}

QString KnownAsText(const ProfileNames::Known &known)
{
    QStringList texts;
    for (auto i = known.constBegin(); i != known.constEnd(); ++i) {
        texts.append(i.key() + ' ' + AsText({*i}));
    }
    return texts.join(", ");
}

} // namespace

/** Names over the real list. The plug-in lives once in a process, so it is loaded for all tests together. */
class ProfileNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void EntryGetsTheNameOfItsProfile_data();
    void EntryGetsTheNameOfItsProfile();
    void WhatIsKnownAfterwards_data();
    void WhatIsKnownAfterwards();
    void ProfileThatIsRenamedKeepsItsPlace();
    void NameGivenWhileNothingRanIsFound();
    void RenamingIsUndoneOnce();
    void EntryOfLaterIsKnown();
    void WhatIsNotKnownRenamesNothing();
    void DamagedListIsLeftAlone();

private:
    void SetList(const QString &entries) const
    {
        m_world.Write("Priority.xml", OrderFile::Document(Listed(entries)));
    }
    void Start()
    {
        m_keeper.reset(new ListKeeper(m_world.UserData(), &m_list, nullptr));
        m_names.reset(
            new ProfileNames(m_world.UserData() + ProfileNames::FileName(), m_keeper.data(), nullptr));
    }
    void End()
    {
        m_names.reset();
        m_keeper.reset();
    }
    void Tell(const QString &profiles)
    {
        m_connections->told.profiles = ProfilesOf(profiles);
        emit m_connections->OnProfilesChanged();
    }

    PluginWorld m_world;
    PluginList m_list;
    QScopedPointer<FakeConnections> m_connections;
    QScopedPointer<WithConnections> m_container;
    QScopedPointer<ListKeeper> m_keeper;
    QScopedPointer<ProfileNames> m_names;
};

void ProfileNamesTest::initTestCase()
{
    QVERIFY(m_world.Load());
}

void ProfileNamesTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void ProfileNamesTest::init()
{
    QVERIFY(m_world.Begin());
    m_connections.reset(new FakeConnections);
    m_container.reset(new WithConnections(m_world.Plugins(), m_connections.data()));
    HostControl::SetPluginContainer(m_container.data());
    SetList("Office, Home, Phone/2");
    m_connections->told.profiles = ProfilesOf("a Office, b Home, c Phone/2");
}

void ProfileNamesTest::cleanup()
{
    End();
    HostControl::SetPluginContainer(m_world.Plugins());
}

void ProfileNamesTest::EntryGetsTheNameOfItsProfile_data()
{
    QTest::addColumn<QString>("known");
    QTest::addColumn<QString>("profiles");
    QTest::addColumn<QString>("list");
    const QString known = "a Office, b Home, c Phone/2";
    const QString same = "Office, Home, Phone/2";
    Row("no other name", known, known, same);
    Row("another name", known, "a Work, b Home, c Phone/2", "Work, Home, Phone/2");
    Row("other case", known, "a office", "office, Home, Phone/2");
    Row("several", known, "a Work, b Flat, c Modem/2", "Work, Flat, Modem/2");
    Row("names swapped", known, "a Home, b Office", "Home, Office, Phone/2");
    Row("names passed on", known, "a Home, b Flat", "Home, Flat, Phone/2");
    Row("name of a listed one", known, "a Home, b Home", same);
    Row("name of a listed one without a profile", "a Office", "a Home", same);
    Row("same name for two", known, "a Flat, b Flat", same);
    Row("passed on to a name that is taken", known, "a Home, b Phone, d Office", "Home, Phone, Phone/2");
    Row("name of another kind", known, "a Phone", "Phone, Home, Phone/2");
    Row("new profile of the old name", known, "a Work, d Office", "Work, Home, Phone/2");
    Row("another profile of that name", "a Office, d Office", "a Work, d Office", same);
    Row("both of that name", "a Office, d Office", "a Work, d Work", "Work, Home, Phone/2");
    Row("both, to several names", "a Office, d Office", "a Work, d Job", same);
    Row("the other one has gone", "a Office, d Office", "a Work", "Work, Home, Phone/2");
    Row("profile has gone", known, "b Home, c Phone/2", same);
    Row("not known before", "", "a Work", same);
    Row("not in the list", "a Café", "a Work", same);
    Row("name that no list can have", known, QString("a Wo%1rk").arg(QChar(1)), same);
}

void ProfileNamesTest::EntryGetsTheNameOfItsProfile()
{
    QFETCH(QString, known);
    QFETCH(QString, profiles);
    QTEST(
        AsText(ProfileNames::Renamed(Listed("Office, Home, Phone/2"), ProfilesOf(profiles), KnownOf(known))),
        "list");
}

void ProfileNamesTest::WhatIsKnownAfterwards_data()
{
    QTest::addColumn<QString>("known");
    QTest::addColumn<QString>("profiles");
    QTest::addColumn<QString>("after");
    Row("listed", "", "a Office, d Café", "a Office");
    Row("name that was not taken over", "a Office", "a Work", "a Work");
    Row("profile is missing", "a Office", "b Home", "a Office, b Home");
    Row("profile and entry are missing", "a Work", "b Home", "b Home");
}

void ProfileNamesTest::WhatIsKnownAfterwards()
{
    QFETCH(QString, known);
    QFETCH(QString, profiles);
    QTEST(KnownAsText(ProfileNames::Noted(Listed("Office, Home"), ProfilesOf(profiles), KnownOf(known))),
          "after");
}

void ProfileNamesTest::ProfileThatIsRenamedKeepsItsPlace()
{
    Start();
    Tell("a Office, b Flat, c Phone/2");
    QCOMPARE(PluginWorld::Stored(), QString("Office, Flat, Phone/2"));
    QCOMPARE(AsText(m_keeper->Entries()), QString("Office, Flat, Phone/2"));
}

void ProfileNamesTest::NameGivenWhileNothingRanIsFound()
{
    Start();
    End();
    m_connections->told.profiles = ProfilesOf("a Office, b Flat, c Phone/2");
    Start();
    QCOMPARE(PluginWorld::Stored(), QString("Office, Flat, Phone/2"));
}

void ProfileNamesTest::RenamingIsUndoneOnce()
{
    Start();
    Tell("a Office, b Flat, c Phone/2");
    QVERIFY(m_keeper->Undo() == ListKeeper::NoObstacle);
    QCOMPARE(PluginWorld::Stored(), QString("Office, Home, Phone/2"));
    End();
    Start();
    Tell("a Work, b Flat, c Phone/2");
    QCOMPARE(PluginWorld::Stored(), QString("Work, Home, Phone/2"));
}

void ProfileNamesTest::EntryOfLaterIsKnown()
{
    Start();
    Tell("a Office, d Café");
    PluginWorld::AddTop("Café");
    m_keeper->Follow();
    Tell("a Office, d Bar");
    QCOMPARE(PluginWorld::Stored(), QString("Bar, Office, Home, Phone/2"));
}

void ProfileNamesTest::WhatIsNotKnownRenamesNothing()
{
    Start();
    m_connections->told.state.source = ConnectionState::SourceNotKnown;
    Tell("a Work");
    QCOMPARE(PluginWorld::Stored(), QString("Office, Home, Phone/2"));
    m_connections->told.state.source = ConnectionState::SourceKnown;
    emit m_connections->OnProfilesChanged();
    QCOMPARE(PluginWorld::Stored(), QString("Work, Home, Phone/2"));
}

void ProfileNamesTest::DamagedListIsLeftAlone()
{
    Start();
    const QByteArray damaged = OrderFile::Document(Listed("Office, Home")) + "<";
    m_world.Write("Priority.xml", damaged);
    m_keeper->Follow();
    Tell("a Work, b Home, c Phone/2");
    QCOMPARE(m_world.Read("Priority.xml"), damaged);
    SetList("Office, Home");
    m_keeper->Follow();
    QCOMPARE(PluginWorld::Stored(), QString("Work, Home"));
}

QTEST_MAIN(ProfileNamesTest)

#include "tst_profilenames.moc"
