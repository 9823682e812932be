#include "ListDifference.h"

#include "ListEntries.h"

#include <QHash>
#include <QPair>
#include <QString>

#include <algorithm>

namespace
{

const int unpaired = -1;

/** For each place of after the place of its entry in before, or unpaired. */
QList<int> Paired(const QList<PriorityList> &before, const QList<PriorityList> &after)
{
    typedef QPair<QString, QString> Key;
    QHash<Key, QList<int>> places;
    for (int i = 0; i < before.size(); ++i) {
        places[Key(before.at(i).name, before.at(i).type)].append(i);
    }
    QList<int> pairs;
    for (int i = 0; i < after.size(); ++i) {
        QList<int> &free = places[Key(after.at(i).name, after.at(i).type)];
        pairs.append(free.isEmpty() ? unpaired : free.takeFirst());
    }
    return pairs;
}

/** Which of the numbers, all different, belong to a longest sequence that rises. */
QList<bool> LongestRising(const QList<int> &numbers)
{
    // The place of the smallest number that ends a rising sequence, by the length of the sequence.
    QList<int> ends;
    QList<int> previous;
    for (int i = 0; i < numbers.size(); ++i) {
        const QList<int>::iterator place =
            std::lower_bound(ends.begin(), ends.end(), i, [&numbers](int left, int right) {
                return numbers.at(left) < numbers.at(right);
            });
        previous.append(place == ends.begin() ? -1 : *(place - 1));
        if (place == ends.end()) {
            ends.append(i);
        } else {
            *place = i;
        }
    }
    QList<bool> rising;
    for (int i = 0; i < numbers.size(); ++i) {
        rising.append(false);
    }
    for (int i = ends.isEmpty() ? -1 : ends.last(); i >= 0; i = previous.at(i)) {
        rising[i] = true;
    }
    return rising;
}

/** For each place below size: how many of the given places are smaller. These are all different. */
QList<int> Ranks(const QList<int> &places, int size)
{
    QList<int> ranks;
    for (int i = 0; i < size; ++i) {
        ranks.append(0);
    }
    for (int i = 0; i < places.size(); ++i) {
        ranks[places.at(i)] = 1;
    }
    int before = 0;
    for (int i = 0; i < size; ++i) {
        const int isOne = ranks.at(i);
        ranks[i] = before;
        before += isOne;
    }
    return ranks;
}

} // namespace

ListDifference ListDifference::Between(const QList<PriorityList> &before, const QList<PriorityList> &after)
{
    ListDifference difference;
    const QList<int> pairs = Paired(before, after);
    QList<int> from;
    QList<int> to;
    for (int i = 0; i < pairs.size(); ++i) {
        if (pairs.at(i) == unpaired) {
            difference.added.append(i);
        } else {
            from.append(pairs.at(i));
            to.append(i);
        }
    }
    QList<int> kept = from;
    std::sort(kept.begin(), kept.end());
    for (int i = 0, next = 0; i < before.size(); ++i) {
        if (next < kept.size() && kept.at(next) == i) {
            ++next;
        } else {
            difference.removed.append(i);
        }
    }

    const QList<bool> stays = LongestRising(from);
    const QList<int> ranksBefore = Ranks(from, before.size());
    for (int rank = 0; rank < from.size(); ++rank) {
        if (stays.at(rank)) {
            continue;
        }
        const int rankBefore = ranksBefore.at(from.at(rank));
        Move move;
        move.from = from.at(rank);
        move.to = to.at(rank);
        move.direction = rank < rankBefore ? Up : rank > rankBefore ? Down : Across;
        move.distance = qAbs(rank - rankBefore);
        move.isFirst = rank == 0;
        move.isLast = rank == from.size() - 1;
        difference.moved.append(move);
    }
    return difference;
}

QList<ListDifference::Move> ListDifference::OnlyMoves(const QList<PriorityList> &before,
                                                      const QList<PriorityList> &after)
{
    QList<Move> moves;
    if (before.size() != after.size()) {
        return moves;
    }
    int first = 0;
    int last = before.size() - 1;
    while (first <= last && ListEntries::IsSame(before.at(first), after.at(first))) {
        ++first;
    }
    while (last > first && ListEntries::IsSame(before.at(last), after.at(last))) {
        --last;
    }
    if (first >= last) {
        return moves;
    }
    const int others = last - first;
    const auto add = [&](int from, int to) {
        moves.append(
            Move{from, to, to < from ? Up : Down, others, to == 0, to == static_cast<int>(after.size()) - 1});
    };
    if (ListEntries::IsSame(before.at(last), after.at(first)) &&
        ListEntries::IsSame(before.mid(first, others), after.mid(first + 1, others))) {
        add(last, first);
    }
    if (ListEntries::IsSame(before.at(first), after.at(last)) &&
        ListEntries::IsSame(before.mid(first + 1, others), after.mid(first, others))) {
        add(first, last);
    }
    return moves;
}

QList<PriorityList> ListDifference::OnlyMoved(const QList<PriorityList> &before,
                                              const QList<PriorityList> &after)
{
    QList<PriorityList> moved;
    const QList<Move> moves = OnlyMoves(before, after);
    for (const Move &move : moves) {
        moved.append(after.at(move.to));
    }
    return moved;
}
