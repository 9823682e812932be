#include "Lists.h"

QList<PriorityList> Listed(const QString &text)
{
    QList<PriorityList> entries;
    const QStringList parts = text.isEmpty() ? QStringList() : text.split(", ");
    for (int i = 0; i < parts.size(); ++i) {
        PriorityList entry;
        entry.name = parts.at(i).section('/', 0, 0);
        entry.type = parts.at(i).contains('/') ? parts.at(i).section('/', 1) : QString("1");
        entries.append(entry);
    }
    return entries;
}

QString AsText(const QList<PriorityList> &entries)
{
    QStringList parts;
    for (int i = 0; i < entries.size(); ++i) {
        const PriorityList &entry = entries.at(i);
        parts.append(entry.type == "1" ? entry.name : entry.name + '/' + entry.type);
    }
    return parts.join(", ");
}

QString Plain(QString text)
{
    return text.remove(QChar(0x2068)).remove(QChar(0x2069));
}
