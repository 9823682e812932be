#include "HandConnections.h"

#include "StartRecord.h"

#include <ListRules.h>

#include <QStringList>

namespace
{

// None of them matters for long.
const int mostKept = 50;

StartRecord Record()
{
    return StartRecord("byhand.ini", "connections");
}

} // namespace

void HandConnections::Note(const QString &connection)
{
    if (ListRules::IsFollowing() || ListRules::IsSavingData()) {
        const QStringList connections = Record().Read() << connection;
        Record().Write(connections.mid(connections.size() - mostKept));
    }
}

QSet<QString> HandConnections::Known()
{
    const QStringList connections = Record().Read();
    return QSet<QString>(connections.constBegin(), connections.constEnd());
}

void HandConnections::Forget()
{
    Record().Write(QStringList());
}
