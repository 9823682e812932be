#include "FocusStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace
{

void DrawLine(QPainter *painter, const QRect &around, const QColor &colour, Qt::PenStyle style)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(colour, 1, style));
    painter->drawRect(around.adjusted(0, 0, -1, -1));
    painter->restore();
}

} // namespace

FocusStyle::FocusStyle(QStyle *style) : QProxyStyle(style)
{
    setObjectName(baseStyle()->objectName());
}

QStyle *FocusStyle::Over(QStyle *style)
{
    return new FocusStyle(style);
}

void FocusStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (!(option->state & State_HasFocus)) {
        return;
    }
    if (element == CE_PushButton) {
        DrawLine(painter, option->rect.adjusted(3, 3, -3, -3), option->palette.color(QPalette::ButtonText),
                 Qt::DotLine);
    } else if (element == CE_ShapedFrame) {
        // The application's highlight: that of lists is a soft one.
        DrawLine(painter, option->rect, QApplication::palette().color(QPalette::Highlight), Qt::SolidLine);
    }
}
