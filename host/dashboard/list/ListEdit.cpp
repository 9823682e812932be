#include "ListEdit.h"

#include "ListEntries.h"

#include <algorithm>

int ListEdit::PlaceOf(const PriorityList &entry, const QList<PriorityList> &list)
{
    for (int i = 0; i < list.size(); ++i) {
        if (ListEntries::IsSame(list.at(i), entry)) {
            return i;
        }
    }
    return -1;
}

QList<PriorityList> ListEdit::Moved(const QList<PriorityList> &list, const QList<int> &places, int before)
{
    QList<PriorityList> moved;
    int place = before;
    for (const int from : places) {
        moved.append(list.at(from));
        place -= from < before ? 1 : 0;
    }
    QList<PriorityList> others = Removed(list, places);
    place = qBound(0, place, static_cast<int>(others.size()));
    return others.mid(0, place) + moved + others.mid(place);
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
