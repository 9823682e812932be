#include "ListChangeText.h"

#include "BidiText.h"

#include <DashboardText.h>
#include <ListDifference.h>

#include <QLocale>
#include <QStringList>

namespace
{

const int longestName = 40;
const int namesTold = 5;

/** The texts for a change, by what has happened to networks. */
struct ChangeTexts {
    const char *none;
    const char *emptied;
    const char *addedOne;
    const char *addedMany;
    const char *removedOne;
    const char *removedMany;
    const char *replaced;
    const char *movedUp;
    const char *movedDown;
    const char *movedToTop;
    const char *movedToEnd;
    const char *movedMany;
};

const ChangeTexts done = {"IDS_CHANGE_NONE",       "IDS_CHANGE_EMPTIED",     "IDS_CHANGE_ADDED_ONE",
                          "IDS_CHANGE_ADDED_MANY", "IDS_CHANGE_DELETED_ONE", "IDS_CHANGE_DELETED_MANY",
                          "IDS_CHANGE_REPLACED",   "IDS_CHANGE_MOVED_UP",    "IDS_CHANGE_MOVED_DOWN",
                          "IDS_CHANGE_MOVED_TOP",  "IDS_CHANGE_MOVED_END",   "IDS_CHANGE_MOVED_MANY"};

const ChangeTexts planned = {"IDS_PLAN_NONE",     "IDS_PLAN_EMPTY",      "IDS_PLAN_ADD_ONE",
                             "IDS_PLAN_ADD_MANY", "IDS_PLAN_REMOVE_ONE", "IDS_PLAN_REMOVE_MANY",
                             "IDS_PLAN_REPLACE",  "IDS_PLAN_MOVE_UP",    "IDS_PLAN_MOVE_DOWN",
                             "IDS_PLAN_MOVE_TOP", "IDS_PLAN_MOVE_END",   "IDS_PLAN_MOVE_MANY"};

const char *MoveTextId(const ListDifference::Move &move, const ChangeTexts &texts)
{
    // When two neighbours change places, either may be the one that was moved. One of them went up.
    if (move.distance > 1 && move.isFirst) {
        return texts.movedToTop;
    }
    if (move.distance > 1 && move.isLast) {
        return texts.movedToEnd;
    }
    return move.direction == ListDifference::Down ? texts.movedDown : texts.movedUp;
}

QString OneOrMany(const char *oneId, const char *manyId, const QList<PriorityList> &list,
                  const QList<int> &places)
{
    return places.size() == 1 ? DashboardText(oneId).arg(ListChangeText::Name(list.at(places.first())))
                              : DashboardText(manyId).arg(DashboardNumber(places.size()));
}

/** One entry stands where another of its kind stood, and that is all. */
bool IsReplacement(const ListDifference &difference, const QList<PriorityList> &before,
                   const QList<PriorityList> &after)
{
    return difference.moved.isEmpty() && difference.added.size() == 1 &&
           difference.removed == difference.added &&
           before.at(difference.removed.first()).type == after.at(difference.added.first()).type;
}

/** @param told  the only move, where it is known which entry was moved; otherwise null. */
QStringList PartsOf(const QList<PriorityList> &before, const QList<PriorityList> &after,
                    const ChangeTexts &texts, const ListDifference::Move *told = nullptr)
{
    if (told) {
        return QStringList(
            DashboardText(MoveTextId(*told, texts)).arg(ListChangeText::Name(after.at(told->to))));
    }
    const ListDifference difference = ListDifference::Between(before, after);
    if (difference.IsNone()) {
        return QStringList(DashboardText(texts.none));
    }
    if (after.isEmpty() && before.size() > 1) {
        return QStringList(DashboardText(texts.emptied));
    }
    if (IsReplacement(difference, before, after)) {
        return QStringList(DashboardText(texts.replaced)
                               .arg(ListChangeText::Name(before.at(difference.removed.first())),
                                    ListChangeText::Name(after.at(difference.added.first()))));
    }
    QStringList parts;
    if (!difference.added.isEmpty()) {
        parts.append(OneOrMany(texts.addedOne, texts.addedMany, after, difference.added));
    }
    if (!difference.removed.isEmpty()) {
        parts.append(OneOrMany(texts.removedOne, texts.removedMany, before, difference.removed));
    }
    if (difference.moved.size() == 1) {
        const ListDifference::Move &move = difference.moved.first();
        parts.append(DashboardText(MoveTextId(move, texts)).arg(ListChangeText::Name(after.at(move.to))));
    } else if (!difference.moved.isEmpty()) {
        parts.append(DashboardText(texts.movedMany).arg(DashboardNumber(difference.moved.size())));
    }
    return parts;
}

} // namespace

QString ListChangeText::Describe(const QList<PriorityList> &before, const QList<PriorityList> &after)
{
    return PartsOf(before, after, done).join(QString::fromUtf8(" · "));
}

QString ListChangeText::Announce(const QList<PriorityList> &before, const QList<PriorityList> &after)
{
    return DashboardJoined("IDS_SENTENCES", PartsOf(before, after, planned));
}

QString ListChangeText::DescribeStep(const QList<ListState> &states, int from, int to)
{
    const ListState &state = states.at(to);
    // With others in between, it stands for the change that had led to the list that was gone back to.
    return state.backTo.isValid() && from == to - 1
               ? DashboardText("IDS_CHANGE_WENT_BACK").arg(Moment(state.backTo))
               : DescribeStep(states.at(from), state);
}

QString ListChangeText::DescribeStep(const ListState &from, const ListState &to)
{
    const QList<ListDifference::Move> moves = ListHistory::Moves(from, to);
    return PartsOf(from.entries, to.entries, done, moves.size() == 1 ? &moves.first() : nullptr)
        .join(QString::fromUtf8(" · "));
}

QString ListChangeText::Name(const PriorityList &entry)
{
    QString name = entry.name.simplified();
    if (name.isEmpty()) {
        return DashboardText("IDS_CHANGE_UNNAMED");
    }
    if (name.size() > longestName) {
        const bool cutsPair = name.at(longestName - 1).isHighSurrogate();
        name = name.left(cutsPair ? longestName - 1 : longestName) + QChar(0x2026);
    }
    return InOwnDirection(name);
}

QString ListChangeText::Names(const QList<PriorityList> &entries)
{
    QStringList names;
    const QList<PriorityList> told = entries.mid(0, namesTold);
    for (const PriorityList &entry : told) {
        names.append(Name(entry));
    }
    if (entries.size() > namesTold) {
        names.append(QString(QChar(0x2026)));
    }
    return DashboardJoined("IDS_NAMES", names);
}

QString ListChangeText::Moment(const QDateTime &time)
{
    return QLocale(Change::GetLangName()).toString(time.toLocalTime(), QLocale::ShortFormat);
}
