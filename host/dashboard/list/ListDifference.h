#ifndef LISTDIFFERENCE_H
#define LISTDIFFERENCE_H

#include <PriorityList.h>

#include <QList>

/**
 * What leads from one list to another: entries that come, entries that go, and the fewest of the others that
 * have to move. Of an entry that stands in a list several times the first is paired with the first, and so
 * on.
 */
struct ListDifference {
    enum Direction { Up, Down, Across };

    struct Move {
        int from; /**< Place in the list before. */
        int to;   /**< Place in the list after. */
        /** Among the entries that both lists have; Across: others moved around it. */
        Direction direction;
        /** By how many of these entries it moved. */
        int distance;
        /** Whether it is now the first of them, or the last. */
        bool isFirst;
        bool isLast;
    };

    QList<int> added;   /**< Places in the list after. */
    QList<int> removed; /**< Places in the list before. */
    QList<Move> moved;  /**< By their places in the list after. */

    bool IsNone() const { return added.isEmpty() && removed.isEmpty() && moved.isEmpty(); }

    static ListDifference Between(const QList<PriorityList> &before, const QList<PriorityList> &after);

    /** The moves of one entry alone that lead from one list to the other: one, or two when neighbours have
     * changed places. None when it takes more, or nothing. */
    static QList<Move> OnlyMoves(const QList<PriorityList> &before, const QList<PriorityList> &after);

    /** The entries of which one alone has been moved: one, or two when neighbours have changed places. None
     * when it takes more, or nothing, to get from one list to the other. */
    static QList<PriorityList> OnlyMoved(const QList<PriorityList> &before, const QList<PriorityList> &after);
};

#endif
