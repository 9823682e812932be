#ifndef ROWDRAG_H
#define ROWDRAG_H

#include <QObject>
#include <QPoint>

class QKeyEvent;
class QListWidget;
class QMouseEvent;
class QTimer;

/**
 * Lets the mouse drag the selected rows of a list to another place in it: a line shows where they would go,
 * near its edges the list scrolls, Escape gives up. The rows themselves stay where they are; whoever has the
 * list moves them.
 */
class RowDrag : public QObject
{
    Q_OBJECT

public:
    /** @param list  owns this. */
    explicit RowDrag(QListWidget *list);
    ~RowDrag() override;

    /** A drag that is under way ends without a drop when it is turned off. */
    void SetOn(bool isOn);

    /** That row can't be dragged, and before rows behind it nothing can be dropped; -1: all are places to
     * drop at. A row from behind there is dropped at the end only by letting go above it. */
    void SetEnd(int row) { m_end = row; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /** The selected rows were dropped before that row. */
    void Dropped(int row);

private:
    class Mark;

    bool Press(const QMouseEvent *event);
    bool Press(QKeyEvent *event);
    bool Move(const QMouseEvent *event);
    bool Release(const QMouseEvent *event);
    bool IsDragging() const { return m_mark; }
    void Begin();
    void Follow();
    void Scroll();
    void End();
    /** The row before which the place is; -1: it is no place to drop at. */
    int RowAt(const QPoint &place) const;
    int EndOfRows() const;

    QListWidget *const m_list;
    QTimer *const m_scrolling;
    Mark *m_mark = nullptr;
    bool m_isOn = true;
    bool m_isPressed = false;
    /** The drag has ended, and the button may still be down. */
    bool m_isOver = false;
    bool m_isFromBehind = false;
    int m_end = -1;
    QPoint m_pressedAt;
    QPoint m_place;
};

#endif
