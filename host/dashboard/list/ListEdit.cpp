#include "ListEdit.h"

#include "ListEntries.h"

#include <QHash>
#include <QPair>

#include <algorithm>

bool operator==(const ListedEntry &left, const ListedEntry &right)
{
    return ListEntries::IsSame(left.entry, right.entry) && left.repetition == right.repetition;
}

int ListEdit::PlaceOf(const PriorityList &entry, const QList<PriorityList> &list)
{
    for (int i = 0; i < list.size(); ++i) {
        if (ListEntries::IsSame(list.at(i), entry)) {
            return i;
        }
    }
    return -1;
}

int ListEdit::PlaceOf(const ListedEntry &entry, const QList<PriorityList> &list)
{
    int repetition = 0;
    for (int i = 0; i < list.size(); ++i) {
        if (ListEntries::IsSame(list.at(i), entry.entry) && repetition++ == entry.repetition) {
            return i;
        }
    }
    return -1;
}

QList<int> ListEdit::PlacesOf(const QList<ListedEntry> &entries, const QList<PriorityList> &list)
{
    QList<int> places;
    for (const ListedEntry &entry : entries) {
        const int place = PlaceOf(entry, list);
        if (place >= 0) {
            places.append(place);
        }
    }
    std::sort(places.begin(), places.end());
    return places;
}

QList<ListedEntry> ListEdit::Numbered(const QList<PriorityList> &list)
{
    QHash<QPair<QString, QString>, int> seen;
    QList<ListedEntry> entries;
    for (const PriorityList &entry : list) {
        ListedEntry listed;
        listed.entry = entry;
        listed.repetition = seen[qMakePair(entry.name, entry.type)]++;
        entries.append(listed);
    }
    return entries;
}

int ListEdit::PlaceOfMoved(const QList<int> &places, int before, int size)
{
    const auto above = std::lower_bound(places.constBegin(), places.constEnd(), before);
    const int place = before - static_cast<int>(above - places.constBegin());
    return qBound(0, place, size - static_cast<int>(places.size()));
}

int ListEdit::BeforeForPlace(const QList<int> &places, int place, int size)
{
    int before = 0;
    while (before < size && PlaceOfMoved(places, before, size) < place) {
        ++before;
    }
    return before;
}

QList<PriorityList> ListEdit::Moved(const QList<PriorityList> &list, const QList<int> &places, int before)
{
    QList<PriorityList> moved;
    for (const int from : places) {
        moved.append(list.at(from));
    }
    const QList<PriorityList> others = Removed(list, places);
    const int place = PlaceOfMoved(places, before, static_cast<int>(list.size()));
    return others.mid(0, place) + moved + others.mid(place);
}

bool ListEdit::IsInPlace(const QList<PriorityList> &list, const QList<int> &places, int before)
{
    const int place = PlaceOfMoved(places, before, static_cast<int>(list.size()));
    int moved = 0;
    int other = 0;
    for (int i = 0; i < list.size(); ++i) {
        while (std::binary_search(places.constBegin(), places.constEnd(), other)) {
            ++other;
        }
        const bool isMoved = i >= place && moved < places.size();
        const int from = isMoved ? places.at(moved++) : other++;
        if (from != i && !ListEntries::IsSame(list.at(from), list.at(i))) {
            return false;
        }
    }
    return true;
}

QList<PriorityList> ListEdit::Removed(const QList<PriorityList> &list, const QList<int> &places)
{
    QList<PriorityList> others;
    for (int i = 0; i < list.size(); ++i) {
        if (!std::binary_search(places.constBegin(), places.constEnd(), i)) {
            others.append(list.at(i));
        }
    }
    return others;
}

QList<PriorityList> ListEdit::Added(const QList<PriorityList> &list, const QList<PriorityList> &entries,
                                    int before)
{
    const int place = qBound(0, before, static_cast<int>(list.size()));
    QList<PriorityList> added;
    for (const PriorityList &entry : entries) {
        if (PlaceOf(entry, list) < 0 && PlaceOf(entry, added) < 0) {
            added.append(entry);
        }
    }
    return list.mid(0, place) + added + list.mid(place);
}
