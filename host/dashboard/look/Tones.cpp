#include "Tones.h"

#include <QApplication>
#include <QPalette>

#include <cmath>

namespace
{

// Of the Web Content Accessibility Guidelines: for text, and for what is not text.
const qreal textRatio = 4.5;
const qreal shapeRatio = 3;

qreal Linear(qreal part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

qreal Luminance(const QColor &colour)
{
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

Tones::Trouble Readable(QRgb ground, QRgb text, QRgb mark)
{
    Tones::Trouble trouble;
    trouble.ground = QColor::fromRgb(ground);
    trouble.text = Tones::Readable(QColor::fromRgb(text), {trouble.ground}, textRatio);
    trouble.mark = Tones::Readable(QColor::fromRgb(mark), {trouble.ground}, shapeRatio);
    return trouble;
}

} // namespace

qreal Tones::Contrast(const QColor &one, const QColor &other)
{
    const qreal a = Luminance(one) + 0.05;
    const qreal b = Luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

QColor Tones::Blend(const QColor &over, const QColor &under, qreal share)
{
    return QColor::fromRgbF(over.redF() * share + under.redF() * (1 - share),
                            over.greenF() * share + under.greenF() * (1 - share),
                            over.blueF() * share + under.blueF() * (1 - share));
}

QColor Tones::Readable(const QColor &colour, const QList<QColor> &grounds, qreal ratio)
{
    QColor readable = colour;
    for (const QColor &ground : grounds) {
        const bool isToDarken = Contrast(Qt::black, ground) > Contrast(Qt::white, ground);
        const QColor end = isToDarken ? Qt::black : Qt::white;
        const int steps = 50;
        for (int i = 1; i <= steps && Contrast(readable, ground) < ratio; ++i) {
            readable = Blend(end, colour, qreal(i) / steps);
        }
    }
    return readable;
}

Tones Tones::OfApplication()
{
    // Each row of a list that is painted asks for them.
    static QPalette palette;
    static Tones tones = Of(palette);
    if (QApplication::palette().cacheKey() != palette.cacheKey()) {
        palette = QApplication::palette();
        tones = Of(palette);
    }
    return tones;
}

Tones Tones::Of(const QPalette &palette)
{
    const QColor &window = palette.color(QPalette::Window);
    // That of lists may be a soft one, made for reading on it.
    const QColor &highlight = palette.color(QPalette::Highlight);
    Tones tones;
    tones.base = palette.color(QPalette::Base);
    tones.selected = Blend(palette.color(QPalette::Text), tones.base, 0.1);
    tones.inUse = Blend(highlight, tones.base, 0.14);
    const QList<QColor> grounds = {window, tones.base, tones.selected, tones.inUse};
    tones.text = Readable(palette.color(QPalette::Text), grounds, textRatio);
    tones.faint = Readable(Blend(tones.text, tones.base, 0.7), grounds, textRatio);
    tones.accent = Readable(highlight, grounds, textRatio);
    tones.frame = Readable(Blend(tones.text, tones.base, 0.5), grounds, shapeRatio);
    tones.onFilled = palette.color(QPalette::HighlightedText);
    tones.filled = Readable(highlight, {tones.onFilled}, textRatio);
    tones.separator = Blend(palette.color(QPalette::Text), tones.base, 0.15);
    const bool isDark = Luminance(tones.base) < Luminance(tones.text);
    tones.warning = isDark ? ::Readable(0xff463c16, 0xfff6ecc8, 0xfff2c94c)
                           : ::Readable(0xfffff4cf, 0xff3d2f00, 0xff8a5a00);
    tones.error = isDark ? ::Readable(0xff4a2422, 0xfffbdcd9, 0xffff9a91)
                         : ::Readable(0xfffde8e7, 0xff5c1512, 0xffb3261e);
    return tones;
}
