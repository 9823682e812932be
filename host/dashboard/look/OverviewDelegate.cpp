#include "OverviewDelegate.h"

#include <DashboardText.h>
#include <SignalStrength.h>

#include <QApplication>
#include <QPainter>

namespace
{

const int margin = 10;
const int glyphSize = 24;

QColor Blend(const QColor &over, const QColor &under, qreal share)
{
    return QColor::fromRgbF(over.redF() * share + under.redF() * (1 - share),
                            over.greenF() * share + under.greenF() * (1 - share),
                            over.blueF() * share + under.blueF() * (1 - share));
}

/** How many of the three arcs a signal fills: none when nobody has measured it. */
int ArcsOf(int signal)
{
    return signal == SignalStrength::unknown ? 0 : 1 + qMin(2, signal / 34);
}

/** Three arcs above a dot, those that the signal doesn't reach in a colour of their own. */
void DrawWifi(QPainter *painter, const QRectF &square, int arcs, const QColor &unreached)
{
    const QPointF foot(square.center().x(), square.bottom() - square.height() * 0.2);
    const qreal unit = square.height() * 0.24;
    painter->drawPoint(foot);
    for (int i = 1; i <= 3; ++i) {
        if (i == arcs + 1) {
            QPen pen = painter->pen();
            pen.setColor(unreached);
            painter->setPen(pen);
        }
        const qreal radius = unit * i;
        painter->drawArc(QRectF(foot.x() - radius, foot.y() - radius, 2 * radius, 2 * radius), 45 * 16,
                         90 * 16);
    }
}

/** Four bars of growing height. */
void DrawMobile(QPainter *painter, const QRectF &square)
{
    const qreal step = square.width() / 5;
    for (int i = 1; i <= 4; ++i) {
        const qreal x = square.left() + step * i;
        painter->drawLine(QPointF(x, square.bottom() - 3), QPointF(x, square.bottom() - 3 - step * i * 0.85));
    }
}

QFont SmallFont(const QFont &font)
{
    QFont small = font;
    if (small.pointSizeF() > 0) {
        small.setPointSizeF(small.pointSizeF() * 0.88);
    }
    return small;
}

} // namespace

OverviewDelegate::OverviewDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void OverviewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    const bool isInUse = index.data(IsInUseRole).toBool();
    const bool isAvailable = index.data(IsAvailableRole).toBool();
    const QColor base = option.palette.color(QPalette::Base);
    // The application's highlight: that of lists may be a soft one, made for reading on it.
    const QPalette application = QApplication::palette();
    const QColor &accent = application.color(QPalette::Highlight);
    const QColor strong = option.palette.color(QPalette::Text);
    const QColor text = isAvailable ? strong : Blend(strong, base, 0.65);
    const QColor faint = Blend(strong, base, isAvailable ? 0.7 : 0.62);
    const Qt::LayoutDirection direction = option.direction;
    const Qt::Alignment leading =
        QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter) | Qt::AlignAbsolute;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRect row = option.rect;
    if (isInUse) {
        painter->fillRect(row, Blend(accent, base, 0.14));
        painter->fillRect(QStyle::visualRect(direction, row, QRect(row.left(), row.top(), 4, row.height())),
                          accent);
    }
    painter->setPen(Blend(strong, base, 0.12));
    painter->drawLine(row.bottomLeft(), row.bottomRight());

    QFont nameFont = option.font;
    nameFont.setBold(isInUse);
    const QFont smallFont = SmallFont(option.font);
    const QFontMetrics nameMetrics(nameFont);
    const QFontMetrics smallMetrics(smallFont);

    // Everything is placed as for reading from left to right and then mirrored.
    const QRect place(row.left() + margin, row.top(), 28, row.height());
    painter->setFont(smallFont);
    painter->setPen(faint);
    painter->drawText(QStyle::visualRect(direction, row, place), Qt::AlignCenter,
                      DashboardNumber(index.row() + 1));

    const QRect glyph(place.right() + margin, row.top() + (row.height() - glyphSize) / 2, glyphSize,
                      glyphSize);
    painter->setPen(QPen(isInUse ? accent : text, 2.4, Qt::SolidLine, Qt::RoundCap));
    const QRectF glyphSquare(QStyle::visualRect(direction, row, glyph));
    if (index.data(IsWifiRole).toBool()) {
        DrawWifi(painter, glyphSquare, ArcsOf(index.data(SignalRole).toInt()), Blend(text, base, 0.25));
    } else {
        DrawMobile(painter, glyphSquare);
    }

    const QString state = index.data(StateTextRole).toString();
    const int stateWidth = smallMetrics.boundingRect(state).width() + 2 * margin;
    const int stateHeight = smallMetrics.height() + 6;
    const QRect chip(row.right() - margin - stateWidth, row.top() + (row.height() - stateHeight) / 2,
                     stateWidth, stateHeight);
    const QRect visualChip = QStyle::visualRect(direction, row, chip);
    if (isInUse) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(accent);
        painter->drawRoundedRect(visualChip, stateHeight / 2.0, stateHeight / 2.0);
    }
    painter->setPen(isInUse ? application.color(QPalette::HighlightedText) : faint);
    painter->setFont(smallFont);
    painter->drawText(visualChip, Qt::AlignCenter, state);

    const int nameLeft = glyph.right() + margin + 4;
    const QRect nameArea(nameLeft, row.top(), chip.left() - margin - nameLeft, row.height());
    const int textHeight = nameMetrics.height() + smallMetrics.height() + 2;
    const int textTop = row.top() + (row.height() - textHeight) / 2;
    const QRect nameLine(nameArea.left(), textTop, nameArea.width(), nameMetrics.height());
    const QRect kindLine(nameArea.left(), nameLine.bottom() + 3, nameArea.width(), smallMetrics.height());
    painter->setFont(nameFont);
    painter->setPen(text);
    // A name may hold line breaks; it has one line here.
    const QString name = index.data(Qt::DisplayRole).toString().simplified();
    // The row is mirrored with the language, the name reads in its own direction.
    painter->setLayoutDirection(name.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter->drawText(QStyle::visualRect(direction, row, nameLine), static_cast<int>(leading),
                      nameMetrics.elidedText(name, Qt::ElideRight, nameLine.width()));
    painter->setLayoutDirection(direction);
    painter->setFont(smallFont);
    painter->setPen(faint);
    painter->drawText(QStyle::visualRect(direction, row, kindLine), static_cast<int>(leading),
                      index.data(KindTextRole).toString());
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(accent, 1, Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(row.adjusted(1, 1, -2, -2));
    }
    painter->restore();
}

QSize OverviewDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int text = QFontMetrics(option.font).height() + QFontMetrics(SmallFont(option.font)).height();
    return QSize(260, qMax(text, glyphSize) + 22);
}
