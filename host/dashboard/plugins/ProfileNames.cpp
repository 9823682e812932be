#include "ProfileNames.h"

#include "PluginObjects.h"

#include <DirectoryLock.h>
#include <IConnectionPlugin.h>
#include <ListEntries.h>
#include <ListKeeper.h>
#include <OrdinaryFile.h>
#include <PrivateFile.h>

#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>
#include <QSet>

#include <utility>

namespace
{

// Of thousands of profiles.
const int largestFile = 4000000;

QString TypeKey()
{
    return QLatin1String("type");
}

QString NameKey()
{
    return QLatin1String("name");
}

typedef QPair<QString, QString> Key;

Key KeyOf(const PriorityList &entry)
{
    return Key(entry.type, entry.name);
}

PriorityList EntryOf(const ConnectionProfile &profile)
{
    PriorityList entry;
    entry.name = profile.name;
    entry.type = profile.type;
    return entry;
}

QSet<Key> KeysOf(const QList<PriorityList> &list)
{
    QSet<Key> keys;
    for (const PriorityList &entry : list) {
        keys.insert(KeyOf(entry));
    }
    return keys;
}

bool CanBeListed(const PriorityList &entry)
{
    return !entry.name.isEmpty() && ListEntries::IsStorable(entry);
}

/** By the entries that are to get another name, with that name. */
typedef QHash<Key, QString> NewNames;

NewNames Wanted(const QList<ConnectionProfile> &profiles, const ProfileNames::Known &known)
{
    QHash<Key, QSet<QString>> names;
    for (const ConnectionProfile &profile : profiles) {
        if (known.contains(profile.lastingId) && CanBeListed(EntryOf(profile))) {
            names[KeyOf(known.value(profile.lastingId))].insert(profile.name);
        }
    }
    NewNames wanted;
    for (auto i = names.constBegin(); i != names.constEnd(); ++i) {
        if (i->size() == 1 && *i->constBegin() != i.key().second) {
            wanted.insert(i.key(), *i->constBegin());
        }
    }
    return wanted;
}

QList<PriorityList> With(const NewNames &names, QList<PriorityList> list)
{
    for (PriorityList &entry : list) {
        entry.name = names.value(KeyOf(entry), entry.name);
    }
    return list;
}

/** Entries of list that would get a name which another one has or gets. */
QSet<Key> Doubled(const QList<PriorityList> &list, const NewNames &names)
{
    QHash<Key, QSet<Key>> sources;
    for (const PriorityList &entry : list) {
        sources[Key(entry.type, names.value(KeyOf(entry), entry.name))].insert(KeyOf(entry));
    }
    QSet<Key> doubled;
    for (const QSet<Key> &source : std::as_const(sources)) {
        if (source.size() > 1) {
            doubled += source;
        }
    }
    return doubled;
}

} // namespace

ProfileNames::ProfileNames(const QString &file, ListKeeper *keeper, QObject *parent)
    : QObject(parent), m_file(file), m_keeper(keeper)
{
    connect(m_keeper, &ListKeeper::Changed, this, &ProfileNames::CatchUp);
    QObject *connections = PluginObjects::ConnectionService();
    // A plug-in need not have it.
    if (connections && connections->metaObject()->indexOfSignal("OnProfilesChanged()") >= 0) {
        connect(connections, SIGNAL(OnProfilesChanged()), this, SLOT(CatchUp()));
    }
    Read();
    CatchUp();
}

QString ProfileNames::FileName()
{
    return QLatin1String("profiles.json");
}

QList<PriorityList> ProfileNames::Renamed(const QList<PriorityList> &list,
                                          const QList<ConnectionProfile> &profiles, const Known &known)
{
    NewNames names = Wanted(profiles, known);
    bool isSound = names.isEmpty();
    while (!isSound) {
        const QSet<Key> doubled = Doubled(list, names);
        isSound = true;
        for (const Key &key : doubled) {
            isSound = names.remove(key) == 0 && isSound;
        }
    }
    return With(names, list);
}

ProfileNames::Known ProfileNames::Noted(const QList<PriorityList> &list,
                                        const QList<ConnectionProfile> &profiles, const Known &known)
{
    const QSet<Key> keys = KeysOf(list);
    Known noted;
    for (auto i = known.constBegin(); i != known.constEnd(); ++i) {
        // Its profile may only be missing for a while.
        if (keys.contains(KeyOf(*i))) {
            noted.insert(i.key(), *i);
        }
    }
    for (const ConnectionProfile &profile : profiles) {
        const PriorityList entry = EntryOf(profile);
        if (!profile.lastingId.isEmpty() &&
            (known.contains(profile.lastingId) || keys.contains(KeyOf(entry)))) {
            noted.insert(profile.lastingId, entry);
        }
    }
    return noted;
}

void ProfileNames::CatchUp()
{
    IConnectionPlugin *plugin = PluginObjects::Connecting();
    if (!plugin || m_keeper->IsBusy() || m_keeper->LastReading().status != PriorityRead ||
        m_keeper->ChangeObstacle() != ListKeeper::NoObstacle) {
        return;
    }
    ConnectionState state;
    QList<ConnectionProfile> profiles;
    plugin->GetConnectionState(&state);
    plugin->GetProfiles(&profiles);
    if (state.source != ConnectionState::SourceKnown) {
        return;
    }
    if (Wanted(profiles, m_known).isEmpty()) {
        Write(Noted(m_keeper->Entries(), profiles, m_known));
        return;
    }
    // Another program may have seen to it already, and the user have undone it.
    Read();
    const QList<PriorityList> renamed = Renamed(m_keeper->Entries(), profiles, m_known);
    if (ListEntries::IsSame(renamed, m_keeper->Entries()) ||
        m_keeper->Replace(renamed) == ListKeeper::NoObstacle) {
        Write(Noted(m_keeper->Entries(), profiles, m_known));
    }
}

void ProfileNames::Read()
{
    QByteArray bytes;
    if (!OrdinaryFile::Read(m_file, largestFile, &bytes)) {
        return;
    }
    m_written = bytes;
    m_known.clear();
    const QJsonObject profiles = QJsonDocument::fromJson(bytes).object();
    for (auto i = profiles.constBegin(); i != profiles.constEnd(); ++i) {
        PriorityList entry;
        entry.name = i->toObject().value(NameKey()).toString();
        entry.type = i->toObject().value(TypeKey()).toString();
        m_known.insert(i.key(), entry);
    }
}

void ProfileNames::Write(const Known &known)
{
    m_known = known;
    QJsonObject profiles;
    for (auto i = known.constBegin(); i != known.constEnd(); ++i) {
        profiles.insert(i.key(), QJsonObject{{TypeKey(), i->type}, {NameKey(), i->name}});
    }
    const QByteArray bytes = QJsonDocument(profiles).toJson(QJsonDocument::Compact);
    if (m_file.isEmpty() || bytes == m_written) {
        return;
    }
    const DirectoryLock lock(QFileInfo(m_file).path(), DirectoryLock::Changing);
    if (!lock.IsRefused() && PrivateFile::Replace(m_file, bytes) == PrivateFile::OutcomeDone) {
        m_written = bytes;
    }
}
