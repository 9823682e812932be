#include "Glyphs.h"

#include <SignalStrength.h>

#include <QPainter>

namespace
{

/** How many of the three arcs a signal fills: none when nobody has measured it. */
int ArcsOf(int signal)
{
    return signal == SignalStrength::unknown ? 0 : 1 + qMin(2, signal / 34);
}

void DrawWifi(QPainter *painter, const QRectF &square, int arcs, const QColor &reached,
              const QColor &unreached)
{
    const QPointF foot(square.center().x(), square.bottom() - square.height() * 0.2);
    const qreal unit = square.height() * 0.22;
    QPen pen(reached, square.height() / 10, Qt::SolidLine, Qt::RoundCap);
    painter->setPen(pen);
    painter->drawPoint(foot);
    for (int i = 1; i <= 3; ++i) {
        pen.setColor(i <= arcs ? reached : unreached);
        painter->setPen(pen);
        const qreal radius = unit * i;
        painter->drawArc(QRectF(foot.x() - radius, foot.y() - radius, 2 * radius, 2 * radius), 45 * 16,
                         90 * 16);
    }
}

void DrawMobile(QPainter *painter, const QRectF &square, const QColor &colour)
{
    painter->setPen(QPen(colour, square.height() / 10, Qt::SolidLine, Qt::RoundCap));
    const qreal step = square.width() / 5;
    for (int i = 1; i <= 4; ++i) {
        const qreal x = square.left() + step * i;
        painter->drawLine(QPointF(x, square.bottom() - 3), QPointF(x, square.bottom() - 3 - step * i * 0.85));
    }
}

void DrawPlug(QPainter *painter, const QRectF &square, const QColor &colour)
{
    const qreal x = square.left();
    const qreal y = square.top();
    const qreal s = square.width();
    painter->setPen(QPen(colour, s / 12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(x + s * 0.25, y + s * 0.35, s * 0.5, s * 0.32), s / 12, s / 12);
    painter->drawLine(QPointF(x + s * 0.4, y + s * 0.35), QPointF(x + s * 0.4, y + s * 0.15));
    painter->drawLine(QPointF(x + s * 0.6, y + s * 0.35), QPointF(x + s * 0.6, y + s * 0.15));
    painter->drawLine(QPointF(x + s * 0.5, y + s * 0.67), QPointF(x + s * 0.5, y + s * 0.9));
}

} // namespace

Glyphs::Kind Glyphs::KindOf(const QString &type)
{
    if (type == QLatin1String("1")) {
        return Wifi;
    }
    return type == QLatin1String("2") ? Mobile : OtherKind;
}

void Glyphs::Draw(QPainter *painter, const QRectF &square, const Signal &signal, const Tones &tones)
{
    const QColor &reached = signal.isInUse ? tones.accent : tones.text;
    const bool isInReach = signal.reach == InReach;
    const QColor &colour = isInReach ? reached : tones.frame;
    if (signal.kind == Wifi) {
        DrawWifi(painter, square, isInReach ? ArcsOf(signal.percent) : 0, colour, tones.frame);
    } else if (signal.kind == Mobile) {
        DrawMobile(painter, square, colour);
    } else {
        DrawPlug(painter, square, colour);
    }
    if (signal.reach == OutOfReach) {
        painter->drawLine(square.bottomLeft() + QPointF(square.width() * 0.15, -square.height() * 0.1),
                          square.topRight() + QPointF(-square.width() * 0.15, square.height() * 0.15));
    } else if (signal.reach == ReachNotKnown) {
        QFont font = painter->font();
        font.setPixelSize(qRound(square.height() * 0.5));
        font.setBold(true);
        painter->setFont(font);
        painter->setPen(tones.text);
        painter->drawText(square, Qt::AlignRight | Qt::AlignBottom | Qt::AlignAbsolute, QLatin1String("?"));
    }
}

void Glyphs::Draw(QPainter *painter, const QRectF &square, Mark mark, const QColor &colour,
                  const QColor &ground)
{
    const qreal x = square.left();
    const qreal y = square.top();
    const qreal s = square.width();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(colour, s / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (mark == MarkInUse) {
        painter->drawPolyline(QPolygonF()
                              << QPointF(x + s * 0.1, y + s * 0.55) << QPointF(x + s * 0.4, y + s * 0.85)
                              << QPointF(x + s * 0.9, y + s * 0.2));
    } else if (mark == MarkWarning) {
        painter->drawPolygon(QPolygonF()
                             << QPointF(x + s * 0.5, y + s * 0.08) << QPointF(x + s * 0.95, y + s * 0.9)
                             << QPointF(x + s * 0.05, y + s * 0.9));
        painter->drawLine(QPointF(x + s * 0.5, y + s * 0.4), QPointF(x + s * 0.5, y + s * 0.58));
        painter->drawPoint(QPointF(x + s * 0.5, y + s * 0.75));
    } else if (mark == MarkError) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(colour);
        painter->drawEllipse(square);
        painter->setPen(QPen(ground, s / 7, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(QPointF(x + s * 0.33, y + s * 0.33), QPointF(x + s * 0.67, y + s * 0.67));
        painter->drawLine(QPointF(x + s * 0.67, y + s * 0.33), QPointF(x + s * 0.33, y + s * 0.67));
    }
}
