#include "ImportPlan.h"

#include "ListDifference.h"
#include "ListEntries.h"

#include <QPair>
#include <QSet>

namespace
{

typedef QPair<QString, bool> Network;

/** Mobile broadband has many types, and all mean the same. */
Network NetworkOf(const PriorityList &entry)
{
    return Network(entry.name, ListEntries::IsWifi(entry));
}

ImportPlan::Effect EffectOf(ListDifference::Direction direction)
{
    switch (direction) {
    case ListDifference::Up:
        return ImportPlan::MovedUp;
    case ListDifference::Down:
        return ImportPlan::MovedDown;
    case ListDifference::Across:
        break;
    }
    return ImportPlan::Moved;
}

} // namespace

bool ImportPlan::IsChange() const
{
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i).effect != Stays) {
            return true;
        }
    }
    return false;
}

ImportPlan ImportPlan::Make(const QList<PriorityList> &before, const QList<PriorityList> &after,
                            const QList<PriorityList> *known)
{
    QSet<Network> knownNetworks;
    for (int i = 0; known && i < known->size(); ++i) {
        knownNetworks.insert(NetworkOf(known->at(i)));
    }
    ImportPlan plan;
    for (int i = 0; i < after.size(); ++i) {
        Row row;
        row.entry = after.at(i);
        row.isUnknown = known && !knownNetworks.contains(NetworkOf(row.entry));
        plan.rows.append(row);
    }
    const ListDifference difference = ListDifference::Between(before, after);
    for (int i = 0; i < difference.added.size(); ++i) {
        plan.rows[difference.added.at(i)].effect = Added;
    }
    for (int i = 0; i < difference.moved.size(); ++i) {
        plan.rows[difference.moved.at(i).to].effect = EffectOf(difference.moved.at(i).direction);
    }
    for (int i = 0; i < difference.removed.size(); ++i) {
        Row row;
        row.entry = before.at(difference.removed.at(i));
        row.effect = Removed;
        plan.rows.append(row);
    }
    return plan;
}
