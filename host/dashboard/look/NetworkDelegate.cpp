#include "NetworkDelegate.h"

#include "DialogParts.h"
#include "Glyphs.h"

#include <DashboardText.h>

#include <QPainter>

#include <cmath>

namespace
{

const int margin = 8;
const int glyphSize = 26;
const int markSize = 12;
const int foldSize = 10;
const int listedRow = 52;
const int otherRow = 44;
const int keptScreens = 2;

Glyphs::Mark MarkOf(const QModelIndex &index)
{
    return static_cast<Glyphs::Mark>(index.data(NetworkDelegate::MarkRole).toInt());
}

/** The ground, the text and the mark of a state that stands out. */
Tones::Trouble ChipOf(Glyphs::Mark mark, const Tones &tones)
{
    if (mark == Glyphs::MarkInUse) {
        Tones::Trouble chip;
        chip.ground = tones.filled;
        chip.text = tones.onFilled;
        chip.mark = tones.onFilled;
        return chip;
    }
    return mark == Glyphs::MarkError ? tones.error : tones.warning;
}

} // namespace

NetworkDelegate::NetworkDelegate(QObject *parent, Places places)
    : QStyledItemDelegate(parent), m_places(places)
{
}

QRect NetworkDelegate::GlyphArea(const QStyleOptionViewItem &option) const
{
    const int places = m_places == WithPlaces ? FontsOf(option).placeWidth + margin : 0;
    return QRect(option.rect.left() + margin + places,
                 option.rect.top() + (option.rect.height() - glyphSize) / 2, glyphSize, glyphSize);
}

void NetworkDelegate::PaintSection(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index, const Tones &tones) const
{
    painter->fillRect(option.rect, option.palette.color(QPalette::Window));
    painter->setFont(FontsOf(option).smallBold);
    painter->setPen(tones.text);
    const Qt::Alignment leading =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter) | Qt::AlignAbsolute;
    const int fold = index.data(FoldRole).toInt();
    const int room = fold == NoFold ? 0 : foldSize + margin;
    const QRect text = option.rect.adjusted(margin + room, 0, -margin, 0);
    painter->drawText(QStyle::visualRect(option.direction, option.rect, text), static_cast<int>(leading),
                      index.data(Qt::DisplayRole).toString());
    if (fold != NoFold) {
        const QRect place(option.rect.left() + margin, option.rect.center().y() - foldSize / 2, foldSize,
                          foldSize);
        const QRectF sign = QStyle::visualRect(option.direction, option.rect, place);
        painter->save();
        painter->translate(sign.center());
        painter->rotate(fold == Open ? 90 : option.direction == Qt::RightToLeft ? 180 : 0);
        const qreal half = foldSize / 2.0;
        painter->setBrush(tones.text);
        painter->setPen(Qt::NoPen);
        painter->drawPolygon(QPolygonF()
                             << QPointF(-half / 2, -half) << QPointF(half, 0) << QPointF(-half / 2, half));
        painter->restore();
    }
    PaintFocus(painter, option, tones);
}

void NetworkDelegate::PaintFocus(QPainter *painter, const QStyleOptionViewItem &option, const Tones &tones)
{
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(tones.accent, 2));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(option.rect.adjusted(2, 2, -2, -2), 4, 4);
    }
}

void NetworkDelegate::PaintGround(QPainter *painter, const QStyleOptionViewItem &option, bool isInUse,
                                  const Tones &tones)
{
    const QRect &row = option.rect;
    if (isInUse) {
        painter->fillRect(row, tones.inUse);
        painter->fillRect(
            QStyle::visualRect(option.direction, row, QRect(row.left(), row.top(), 4, row.height())),
            tones.accent);
    } else if (option.state & QStyle::State_Selected) {
        painter->fillRect(row, tones.selected);
    }
    painter->fillRect(QRect(row.left(), row.bottom(), row.width(), 1), tones.separator);
}

QRect NetworkDelegate::PaintState(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index, const Tones &tones) const
{
    const QRect &row = option.rect;
    const Glyphs::Mark mark = MarkOf(index);
    const QFont &font = mark == Glyphs::MarkInUse ? FontsOf(option).smallBold : FontsOf(option).small;
    const QFontMetrics metrics(font);
    const int markRoom = mark == Glyphs::NoMark ? 0 : markSize + 5;
    const int most = row.width() / 2 - 2 * margin - markRoom;
    const QString state = metrics.elidedText(index.data(StateTextRole).toString(), Qt::ElideRight, most);
    const int width = metrics.horizontalAdvance(state) + markRoom + 2 * margin + 2;
    const int height = qMax(metrics.height(), markSize) + 6;
    const QRect chip(row.right() - margin - width, row.top() + (row.height() - height) / 2, width, height);
    QColor text = tones.faint;
    if (mark != Glyphs::NoMark) {
        const Tones::Trouble colours = ChipOf(mark, tones);
        text = colours.text;
        painter->setPen(mark == Glyphs::MarkInUse ? QPen(Qt::NoPen) : QPen(colours.mark, 1));
        painter->setBrush(colours.ground);
        painter->drawRoundedRect(QRectF(QStyle::visualRect(option.direction, row, chip)), height / 2.0,
                                 height / 2.0);
        const QRect square(chip.left() + margin, chip.top() + (height - markSize) / 2, markSize, markSize);
        Glyphs::Draw(painter, QRectF(QStyle::visualRect(option.direction, row, square)), mark, colours.mark,
                     colours.ground);
    }
    painter->setPen(text);
    painter->setFont(font);
    painter->drawText(
        QStyle::visualRect(option.direction, row, chip.adjusted(margin + markRoom, 0, -margin, 0)),
        Qt::AlignCenter, state);
    return chip;
}

void NetworkDelegate::PaintTexts(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, const QRect &area, const Tones &tones) const
{
    const Fonts &fonts = FontsOf(option);
    const QFont &nameFont = MarkOf(index) == Glyphs::MarkInUse ? fonts.nameBold : fonts.name;
    const QFont &smallFont = fonts.small;
    const QFontMetrics nameMetrics(nameFont);
    const QFontMetrics smallMetrics(smallFont);
    const Qt::Alignment leading =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter) | Qt::AlignAbsolute;
    const int height = nameMetrics.height() + smallMetrics.height() + 2;
    const QRect nameLine(area.left(), area.top() + (area.height() - height) / 2, area.width(),
                         nameMetrics.height());
    const QRect detailLine(area.left(), nameLine.bottom() + 3, area.width(), smallMetrics.height());
    // A name may hold line breaks; it has one line here.
    const QString name = index.data(Qt::DisplayRole).toString().simplified();
    painter->setFont(nameFont);
    painter->setPen(tones.text);
    // The row is mirrored with the language, the name reads in its own direction.
    painter->setLayoutDirection(name.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter->drawText(QStyle::visualRect(option.direction, option.rect, nameLine), static_cast<int>(leading),
                      nameMetrics.elidedText(name, Qt::ElideRight, nameLine.width()));
    painter->setLayoutDirection(option.direction);
    painter->setFont(smallFont);
    painter->setPen(tones.faint);
    painter->drawText(
        QStyle::visualRect(option.direction, option.rect, detailLine), static_cast<int>(leading),
        smallMetrics.elidedText(index.data(DetailTextRole).toString(), Qt::ElideRight, detailLine.width()));
}

void NetworkDelegate::PaintRow(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index, const Tones &tones) const
{
    PaintGround(painter, option, MarkOf(index) == Glyphs::MarkInUse, tones);
    const QRect &row = option.rect;
    const QRect glyph = GlyphArea(option);
    Glyphs::Signal signal;
    signal.kind = static_cast<Glyphs::Kind>(index.data(KindRole).toInt());
    signal.reach = static_cast<Glyphs::Reach>(index.data(ReachRole).toInt());
    signal.percent = index.data(SignalRole).toInt();
    signal.isInUse = MarkOf(index) == Glyphs::MarkInUse;
    Glyphs::Draw(painter, QRectF(QStyle::visualRect(option.direction, row, glyph)), signal, tones);

    const QRect chip = PaintState(painter, option, index, tones);
    const int left = glyph.right() + margin + 4;
    PaintTexts(painter, option, index, QRect(left, row.top(), chip.left() - margin - left, row.height()),
               tones);
}

void NetworkDelegate::PaintKept(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index, const Tones &tones) const
{
    const QRect &row = option.rect;
    const int scale = qRound(painter->device()->devicePixelRatioF());
    QString key;
    for (const int role : {int(Qt::DisplayRole), int(DetailTextRole), int(StateTextRole)}) {
        key += index.data(role).toString() + QLatin1Char('\0');
    }
    const bool isSelected = option.state & QStyle::State_Selected;
    for (const int look : {MarkOf(index) + 0, index.data(KindRole).toInt(), index.data(ReachRole).toInt(),
                           index.data(SignalRole).toInt(), int(isSelected), int(option.direction),
                           row.width(), row.height(), scale}) {
        key += QChar(static_cast<ushort>(look));
    }
    if (m_paletteOfPictures != option.palette.cacheKey()) {
        m_pictures.clear();
        m_paletteOfPictures = option.palette.cacheKey();
    }
    if (const QPixmap *kept = m_pictures.object(key)) {
        painter->drawPixmap(row.topLeft(), *kept);
        return;
    }
    QPixmap picture(row.size() * scale);
    picture.setDevicePixelRatio(scale);
    // Letters are smoothed for what they stand on.
    picture.fill(option.palette.color(QPalette::Base));
    QStyleOptionViewItem alone = option;
    alone.rect.moveTo(0, 0);
    QPainter drawing(&picture);
    drawing.setRenderHint(QPainter::Antialiasing);
    drawing.setLayoutDirection(option.direction);
    PaintRow(&drawing, alone, index, tones);
    drawing.end();
    painter->drawPixmap(row.topLeft(), picture);
    m_pictures.setMaxCost(keptScreens * option.widget->height());
    m_pictures.insert(key, new QPixmap(picture), row.height());
}

void NetworkDelegate::PaintPlace(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, const Tones &tones) const
{
    const QRect &row = option.rect;
    const QRect place(row.left() + margin, row.top(), FontsOf(option).placeWidth, row.height());
    painter->setFont(FontsOf(option).small);
    painter->setPen(tones.faint);
    painter->drawText(QStyle::visualRect(option.direction, row, place), Qt::AlignCenter,
                      DashboardNumber(index.row() + 1));
}

void NetworkDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const Tones tones = Tones::OfApplication();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const qreal scale = painter->device()->devicePixelRatioF();
    if (index.data(IsSectionRole).toBool()) {
        PaintSection(painter, option, index, tones);
    } else {
        // A picture of half pixels would be blurred.
        if (option.widget && qFuzzyCompare(scale, std::round(scale))) {
            PaintKept(painter, option, index, tones);
        } else {
            PaintRow(painter, option, index, tones);
        }
        if (m_places == WithPlaces && !index.data(HasNoPlaceRole).toBool()) {
            PaintPlace(painter, option, index, tones);
        }
        PaintFocus(painter, option, tones);
    }
    painter->restore();
}

QSize NetworkDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Fonts &fonts = FontsOf(option);
    return QSize(200, index.data(IsSectionRole).toBool() ? fonts.sectionHeight : fonts.rowHeight);
}

const NetworkDelegate::Fonts &NetworkDelegate::FontsOf(const QStyleOptionViewItem &option) const
{
    if (m_fonts.rowHeight == 0 || m_fonts.of != option.font) {
        m_fonts.of = option.font;
        m_fonts.name = DialogParts::Scaled(option.font, 1.08);
        m_fonts.nameBold = m_fonts.name;
        m_fonts.nameBold.setBold(true);
        m_fonts.small = DialogParts::Scaled(option.font, 0.92);
        m_fonts.smallBold = m_fonts.small;
        m_fonts.smallBold.setBold(true);
        const int small = QFontMetrics(m_fonts.small).height();
        const int texts = QFontMetrics(m_fonts.nameBold).height() + small;
        const bool isInList = m_places == WithPlaces;
        m_fonts.sectionHeight = small + 12;
        m_fonts.placeWidth = QFontMetrics(m_fonts.small).horizontalAdvance(QLatin1String("0000"));
        m_pictures.clear();
        m_fonts.rowHeight = qMax(isInList ? listedRow : otherRow, texts + (isInList ? 16 : 8));
    }
    return m_fonts;
}
