#include "ListRules.h"

#include "UserData.h"

#include <QSettings>
#include <QString>

namespace
{

const char *const placeWords[] = {"end", "top", "none"};

QString FilePath()
{
    return UserData::FilePath(QLatin1String("rules.ini"));
}

QString NewNetworksKey()
{
    return QLatin1String("newNetworks");
}

} // namespace

ListRules::NewNetworks ListRules::PlaceOfNewNetworks()
{
    const QString path = FilePath();
    const QString word =
        path.isEmpty() ? QString() : QSettings(path, QSettings::IniFormat).value(NewNetworksKey()).toString();
    for (const NewNetworks place : {NewAtTheTop, NewNotInTheList}) {
        if (word == QLatin1String(placeWords[place])) {
            return place;
        }
    }
    return NewAtTheEnd;
}

bool ListRules::SetPlaceOfNewNetworks(NewNetworks place)
{
    const QString path = FilePath();
    if (path.isEmpty()) {
        return false;
    }
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(NewNetworksKey(), QLatin1String(placeWords[place]));
    settings.sync();
    return settings.status() == QSettings::NoError;
}
