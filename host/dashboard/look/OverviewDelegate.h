#ifndef OVERVIEWDELEGATE_H
#define OVERVIEWDELEGATE_H

#include <QStyledItemDelegate>

/** Draws one entry of the list: its place, its kind, its name, and what the connection manager makes of it.
 */
class OverviewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** What an item holds besides its text, which is the entry's name. */
    enum Role {
        KindTextRole = Qt::UserRole, /**< QString, shown below the name. */
        StateTextRole,               /**< QString, shown at the end of the row. */
        IsWifiRole,                  /**< bool */
        IsAvailableRole,             /**< bool; false is drawn fainter. */
        IsInUseRole,                 /**< bool */
        SignalRole                   /**< int, as Overview::Entry::signal. */
    };

    explicit OverviewDelegate(QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

#endif
