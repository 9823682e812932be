#include "ArrowButton.h"

#include "DialogParts.h"

#include <QAction>
#include <QPainterPath>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace
{

const int side = 30;

/** In a square whose sides are 16 and whose middle is at 0, pointing up. */
QPainterPath Drawing(bool isCross, bool hasBar)
{
    QPainterPath path;
    if (isCross) {
        path.moveTo(-5, -5);
        path.lineTo(5, 5);
        path.moveTo(-5, 5);
        path.lineTo(5, -5);
        return path;
    }
    path.moveTo(0, 7);
    path.lineTo(0, -5);
    path.moveTo(-5, 0);
    path.lineTo(0, -5);
    path.lineTo(5, 0);
    if (hasBar) {
        path.moveTo(-6, -8);
        path.lineTo(6, -8);
    }
    return path;
}

} // namespace

ArrowButton::ArrowButton(const char *name, QAction *action, Shape shape) : m_shape(shape)
{
    setObjectName(QLatin1String(name));
    setDefaultAction(action);
    setAutoRaise(true);
}

QSize ArrowButton::sizeHint() const
{
    return QSize(DialogParts::ForFont(side), DialogParts::ForFont(side));
}

void ArrowButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    const qreal scale = DialogParts::ForFont(side) / static_cast<qreal>(side);
    const bool isDown = m_shape == Down || m_shape == End;
    painter.scale(scale, isDown ? -scale : scale);
    painter.setPen(
        QPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText), 1.8,
             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(Drawing(m_shape == Cross, m_shape == Top || m_shape == End));
}
