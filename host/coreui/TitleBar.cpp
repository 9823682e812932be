#include "TitleBar.h"

#include <Change.h>
#include <ToolkitCompat.h>

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace
{

const int barHeight = 28;
const int closeButtonSize = 22;

QColor WithOpacity(QColor color, qreal opacity)
{
    color.setAlphaF(opacity);
    return color;
}

} // namespace

TitleLabel::TitleLabel(QWidget *parent) : QLabel(parent)
{
    setObjectName(QLatin1String("dialogTitle"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont titleFont = font();
    titleFont.setBold(true);
    setFont(titleFont);
}

void TitleLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&painter, rect(), QStyle::visualAlignment(layoutDirection(), alignment()),
                          palette(), isEnabled(), shown, QPalette::WindowText);
}

CloseButton::CloseButton(QWidget *parent) : QToolButton(parent)
{
    setObjectName(QLatin1String("dialogClose"));
    setFixedSize(closeButtonSize, closeButtonSize);
    // Escape closes too; the tab order belongs to the dialog's body.
    setFocusPolicy(Qt::NoFocus);
    const QString caption = Change::tr(QLatin1String("IDS_CLOSE"), QLatin1String("PriorityPlugin"));
    setToolTip(ToolkitCompat::PlainTextAsHtml(caption));
    setAccessibleName(caption);
}

void CloseButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    if (isDown() || underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(WithOpacity(ink, isDown() ? 0.25 : 0.12));
        painter.drawRoundedRect(rect(), 3, 3);
    }
    const qreal reach = 4;
    const QPointF centre = QRectF(rect()).center();
    painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre - QPointF(reach, reach), centre + QPointF(reach, reach));
    painter.drawLine(centre - QPointF(reach, -reach), centre + QPointF(reach, -reach));
}

TitleBar::TitleBar(QWidget *parent, bool closable) : QWidget(parent), m_label(nullptr), m_dragging(false)
{
    setObjectName(QLatin1String("dialogTitleBar"));
    setFixedHeight(barHeight);

    m_label = new TitleLabel(this);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(9, 0, 9, 0);
    row->setSpacing(6);
    row->addWidget(m_label, 1);
    if (closable) {
        CloseButton *close = new CloseButton(this);
        connect(close, SIGNAL(clicked()), window(), SLOT(close()));
        row->setContentsMargins(9, 0, 3, 0);
        if (layoutDirection() == Qt::RightToLeft) {
            row->setContentsMargins(3, 0, 9, 0);
        }
        row->addWidget(close);
    }
}

void TitleBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ink = palette().color(QPalette::WindowText);
    painter.fillRect(rect(), WithOpacity(ink, 0.08));
    painter.fillRect(QRect(0, height() - 1, width(), 1), WithOpacity(ink, 0.18));
}

void TitleBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    if (!ToolkitCompat::LetSystemMove(window())) {
        m_dragging = true;
        m_grip = ToolkitCompat::GlobalPosition(event) - window()->pos();
    }
}

void TitleBar::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging && (event->buttons() & Qt::LeftButton)) {
        window()->move(ToolkitCompat::GlobalPosition(event) - m_grip);
    }
}

void TitleBar::mouseReleaseEvent(QMouseEvent *)
{
    m_dragging = false;
}
