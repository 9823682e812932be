#ifndef OVERVIEWTEXT_H
#define OVERVIEWTEXT_H

#include <Overview.h>

#include <QString>

/** The overview in words of the current language. */
namespace OverviewText
{

/** Such as "64%"; empty when it is unknown. */
QString Signal(int percent);

/** Which network is in use, and why that one or why none. */
QString Headline(const Overview &overview);
QString Explanation(const Overview &overview);

// Of one entry: what it is, how it stands with it, and why it is used now or not.
QString Kind(const Overview::Entry &entry);
QString State(const Overview::Entry &entry);
QString Reason(const Overview &overview, int place);

} // namespace OverviewText

#endif
