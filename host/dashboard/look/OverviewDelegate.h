#ifndef OVERVIEWDELEGATE_H
#define OVERVIEWDELEGATE_H

#include <QStyledItemDelegate>

struct Tones;

/** Draws one entry of the list: its place, its name with its kind and what is to be said of it, and its
 * state. */
class OverviewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** What an item holds besides its text, which is the entry's name. */
    enum Role {
        DetailTextRole = Qt::UserRole, /**< QString, shown below the name. */
        StateTextRole,                 /**< QString, shown at the end of the row. */
        MarkRole,                      /**< int, a Glyphs::Mark: what kind of state that is. */
        KindRole,                      /**< int, a Glyphs::Kind */
        ReachRole,                     /**< int, a Glyphs::Reach */
        SignalRole                     /**< int, as Overview::Entry::signal. */
    };

    explicit OverviewDelegate(QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    // What is laid out from left to right is mirrored in row for the other direction.
    static void PaintGround(QPainter *painter, const QStyleOptionViewItem &option, bool isInUse,
                            const Tones &tones);
    static QRect PaintState(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                            const Tones &tones);
    static void PaintTexts(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                           const QRect &area, const Tones &tones);
};

#endif
