#include "ArrowButton.h"

#include "DialogParts.h"

#include <QAction>
#include <QPainterPath>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QTransform>

namespace
{

const int side = 30;

/** In a square whose sides are 16 and whose middle is at 0, pointing up. */
QPainterPath Drawing(ArrowButton::Shape shape)
{
    QPainterPath path;
    if (shape == ArrowButton::Cross || shape == ArrowButton::Plus) {
        path.moveTo(-6, 0);
        path.lineTo(6, 0);
        path.moveTo(0, -6);
        path.lineTo(0, 6);
        return shape == ArrowButton::Plus ? path : QTransform().rotate(45).map(path);
    }
    path.moveTo(0, 7);
    path.lineTo(0, -5);
    path.moveTo(-5, 0);
    path.lineTo(0, -5);
    path.lineTo(5, 0);
    if (shape == ArrowButton::Top || shape == ArrowButton::End) {
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
    painter.drawPath(Drawing(m_shape));
}
