#ifndef CONTRAST_H
#define CONTRAST_H

#include <QColor>

#include <cmath>

/** How far colours are apart for the eye. */
namespace Contrast
{

inline qreal LinearPart(qreal part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

inline qreal Luminance(const QColor &colour)
{
    return 0.2126 * LinearPart(colour.redF()) + 0.7152 * LinearPart(colour.greenF()) +
           0.0722 * LinearPart(colour.blueF());
}

/** As the guidelines for accessible contents count it, 1 to 21. */
inline qreal Between(const QColor &one, const QColor &other)
{
    const qreal lighter = qMax(Luminance(one), Luminance(other));
    const qreal darker = qMin(Luminance(one), Luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace Contrast

#endif
