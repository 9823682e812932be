#include "RowDrag.h"

#include <Tones.h>

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>

namespace
{

const int leastDistance = 8;
const int edge = 32;
const int scrollStep = 12;
const int scrollMilliseconds = 30;
const qreal lifted = 0.85;

} // namespace

/** Lies over the list while rows are dragged: the row that was taken, and the line. */
class RowDrag::Mark : public QWidget
{
public:
    static const int noLine = -1000;

    Mark(QAbstractScrollArea *list, const QRect &row, const QPoint &taken)
        : QWidget(list), m_list(list), m_row(list->viewport()->grab(row)), m_grip(taken.y() - row.top())
    {
        setObjectName(QLatin1String("dropMark"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void Show(int line, int pointer)
    {
        m_line = line;
        m_pointer = pointer;
        setGeometry(m_list->viewport()->geometry());
        show();
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setOpacity(lifted);
        painter.drawPixmap(0, m_pointer - m_grip, m_row);
        painter.setOpacity(1);
        if (m_line != noLine) {
            painter.fillRect(0, qBound(0, m_line - 1, height() - 2), width(), 2,
                             Tones::OfApplication().accent);
        }
    }

private:
    const QAbstractScrollArea *const m_list;
    const QPixmap m_row;
    const int m_grip;
    int m_line = 0;
    int m_pointer = 0;
};

RowDrag::RowDrag(QListWidget *list) : QObject(list), m_list(list), m_scrolling(new QTimer(this))
{
    m_scrolling->setInterval(scrollMilliseconds);
    connect(m_scrolling, &QTimer::timeout, this, &RowDrag::Scroll);
    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
}

RowDrag::~RowDrag() = default;

void RowDrag::SetOn(bool isOn)
{
    m_isOn = isOn;
    if (!m_isOn) {
        End();
    }
}

bool RowDrag::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return watched != m_list && Press(static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return watched != m_list && Move(static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return watched != m_list && Release(static_cast<QMouseEvent *>(event));
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return IsDragging() && Press(static_cast<QKeyEvent *>(event));
    case QEvent::FocusOut:
    case QEvent::Hide:
        End();
        return false;
    default:
        return false;
    }
}

bool RowDrag::Press(const QMouseEvent *event)
{
    m_isPressed = m_isOn && event->button() == Qt::LeftButton;
    m_isOver = false;
    m_pressedAt = event->pos();
    return IsDragging();
}

/** Nothing else happens to the list meanwhile. */
bool RowDrag::Press(QKeyEvent *event)
{
    if (event->type() == QEvent::KeyPress && event->key() == Qt::Key_Escape) {
        End();
    }
    event->accept();
    return true;
}

bool RowDrag::Move(const QMouseEvent *event)
{
    if (!m_isPressed || !(event->buttons() & Qt::LeftButton)) {
        return false;
    }
    m_place = event->pos();
    if (!IsDragging() && !m_isOver && (m_place - m_pressedAt).manhattanLength() >= leastDistance) {
        Begin();
    }
    if (IsDragging()) {
        Follow();
    }
    // The list would select whatever the pointer goes over.
    return true;
}

bool RowDrag::Release(const QMouseEvent *event)
{
    const bool wasTaken = m_isOver || IsDragging();
    const bool isDropped = IsDragging() && event->button() == Qt::LeftButton;
    const int row = RowAt(event->pos());
    if (event->button() == Qt::LeftButton) {
        m_isPressed = false;
        End();
    }
    if (isDropped && row >= 0) {
        emit Dropped(row);
    }
    return wasTaken;
}

void RowDrag::Begin()
{
    QListWidgetItem *taken = m_list->itemAt(m_pressedAt);
    m_isFromBehind = taken && m_list->row(taken) > EndOfRows();
    if (taken && taken->isSelected() && m_list->row(taken) != m_end) {
        m_mark = new Mark(m_list, m_list->visualItemRect(taken), m_pressedAt);
        m_list->viewport()->setCursor(Qt::ClosedHandCursor);
        m_scrolling->start();
    }
}

void RowDrag::Follow()
{
    const int row = RowAt(m_place);
    const QRect area = m_list->visualItemRect(m_list->item(qMin(qMax(row, 0), m_list->count() - 1)));
    const int line = row < m_list->count() ? area.top() : area.bottom() + 1;
    m_mark->Show(row < 0 ? Mark::noLine : line, m_place.y());
}

void RowDrag::Scroll()
{
    const int height = m_list->viewport()->height();
    const int step = m_place.y() < edge ? -scrollStep : m_place.y() >= height - edge ? scrollStep : 0;
    if (step != 0) {
        m_list->verticalScrollBar()->setValue(m_list->verticalScrollBar()->value() + step);
        Follow();
    }
}

void RowDrag::End()
{
    m_scrolling->stop();
    if (m_mark) {
        m_isOver = true;
        m_list->viewport()->unsetCursor();
        delete m_mark;
        m_mark = nullptr;
    }
}

int RowDrag::EndOfRows() const
{
    return m_end < 0 ? m_list->count() : qMin(m_end, m_list->count());
}

int RowDrag::RowAt(const QPoint &place) const
{
    for (int i = 0; i < EndOfRows(); ++i) {
        if (place.y() < m_list->visualItemRect(m_list->item(i)).center().y()) {
            return i;
        }
    }
    const int end = EndOfRows();
    const QListWidgetItem *behind = m_list->item(end);
    return m_isFromBehind && behind && place.y() > m_list->visualItemRect(behind).bottom() ? -1 : end;
}
