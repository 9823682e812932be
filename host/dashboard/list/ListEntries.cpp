#include "ListEntries.h"

namespace
{

bool IsXmlCharacter(ushort unit)
{
    return unit >= 0x20 ? unit < 0xfffe : unit == '\t' || unit == '\n' || unit == '\r';
}

QString StorableText(const QString &text)
{
    QString storable = text;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (text.at(i).category() == QChar::Other_Surrogate || !IsXmlCharacter(text.at(i).unicode())) {
            storable[i] = QChar(QChar::ReplacementCharacter);
        }
    }
    return storable;
}

} // namespace

bool ListEntries::IsSame(const PriorityList &left, const PriorityList &right)
{
    return left.name == right.name && left.type == right.type;
}

bool ListEntries::IsSame(const QList<PriorityList> &left, const QList<PriorityList> &right)
{
    if (left.size() != right.size()) {
        return false;
    }
    for (int i = 0; i < left.size(); ++i) {
        if (!IsSame(left.at(i), right.at(i))) {
            return false;
        }
    }
    return true;
}

bool ListEntries::IsWifi(const PriorityList &entry)
{
    return entry.type == QLatin1String("1");
}

bool ListEntries::IsStorable(const PriorityList &entry)
{
    return StorableText(entry.name) == entry.name && StorableText(entry.type) == entry.type;
}

QList<PriorityList> ListEntries::Storable(const QList<PriorityList> &entries)
{
    QList<PriorityList> storable = entries;
    for (int i = 0; i < storable.size(); ++i) {
        storable[i].name = StorableText(entries.at(i).name);
        storable[i].type = StorableText(entries.at(i).type);
    }
    return storable;
}
