#ifndef OUTLINECOMPARISON_H
#define OUTLINECOMPARISON_H

#include <QString>

namespace OutlineComparison
{

/** By how many pixels a number with "~" before it may differ, and which part of itself if that is more. */
const int tolerance = 20;
const int tolerancePart = 12;

/**
 * What differs, line by line: "-" stands before what was approved, "+" before what was found. Null when
 * nothing does but numbers with "~", and those by no more than the tolerance.
 */
QString Difference(const QString &approved, const QString &found);

} // namespace OutlineComparison

#endif
