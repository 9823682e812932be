#include "ListRules.h"

#include "UserData.h"

#include <QSettings>
#include <QString>

namespace
{

const char *const placeWords[] = {"end", "top", "none"};
const char *const yes = "yes";
const char *const no = "no";

QString NewNetworksKey()
{
    return QLatin1String("newNetworks");
}

QString RulingKey()
{
    return QLatin1String("ruling");
}

QString FollowingKey()
{
    return QLatin1String("following");
}

QString SavingKey()
{
    return QLatin1String("savingData");
}

QString NotifyingKey()
{
    return QLatin1String("notify");
}

QString Word(const QString &key)
{
    const QString path = ListRules::FilePath();
    return path.isEmpty() ? QString() : QSettings(path, QSettings::IniFormat).value(key).toString();
}

bool SetWord(const QString &key, const char *word)
{
    const QString path = ListRules::FilePath();
    if (path.isEmpty()) {
        return false;
    }
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(key, QLatin1String(word));
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

QString ListRules::FilePath()
{
    return UserData::FilePath(QLatin1String("rules.ini"));
}

ListRules::NewNetworks ListRules::PlaceOfNewNetworks()
{
    const QString word = Word(NewNetworksKey());
    for (const NewNetworks place : {NewAtTheTop, NewNotInTheList}) {
        if (word == QLatin1String(placeWords[place])) {
            return place;
        }
    }
    return NewAtTheEnd;
}

bool ListRules::SetPlaceOfNewNetworks(NewNetworks place)
{
    return SetWord(NewNetworksKey(), placeWords[place]);
}

bool ListRules::IsRuling()
{
    return Word(RulingKey()) != QLatin1String(no);
}

bool ListRules::SetRuling(bool isRuling)
{
    return SetWord(RulingKey(), isRuling ? yes : no);
}

bool ListRules::IsFollowing()
{
    return Word(FollowingKey()) == QLatin1String(yes);
}

bool ListRules::SetFollowing(bool isFollowing)
{
    return SetWord(FollowingKey(), isFollowing ? yes : no);
}

bool ListRules::IsSavingData()
{
    return Word(SavingKey()) == QLatin1String(yes);
}

bool ListRules::SetSavingData(bool isSaving)
{
    return SetWord(SavingKey(), isSaving ? yes : no);
}

bool ListRules::IsNotifying()
{
    return Word(NotifyingKey()) == QLatin1String(yes);
}

bool ListRules::SetNotifying(bool isNotifying)
{
    return SetWord(NotifyingKey(), isNotifying ? yes : no);
}
