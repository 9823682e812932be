#include "DashboardStyle.h"

#include <Change.h>

#include <QApplication>
#include <QLocale>
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

DashboardStyle::DashboardStyle(QStyle *style) : QProxyStyle(style)
{
    setObjectName(baseStyle()->objectName());
}

QStyle *DashboardStyle::Over(QStyle *style)
{
    return new DashboardStyle(style);
}

void DashboardStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool isFusion = objectName().compare(QLatin1String("fusion"), Qt::CaseInsensitive) == 0;
    if (!isFusion || !(option->state & State_HasFocus)) {
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

int DashboardStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *returned) const
{
    // Every widget asks for other hints all the time.
    const bool isOff =
        hint == SH_UnderlineShortcut && QLocale(Change::GetLangName()).script() == QLocale::ArabicScript;
    return isOff ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}
