#ifndef OVERVIEWTEXT_H
#define OVERVIEWTEXT_H

#include "Glyphs.h"

#include <Overview.h>

#include <QString>

/** The overview in words of the current language. */
namespace OverviewText
{

/** Such as "64%"; empty when it is unknown. */
QString Signal(int percent);

/** The name of a network or connection, as it stands in sentences. */
QString Name(const QString &name);

/** text, marked where all that is told of networks is made up. */
QString Marked(const Overview &overview, const QString &text);

/** Which network is in use, and how that stands to the list. */
QString Headline(const Overview &overview);
QString Explanation(const Overview &overview);

// Of one entry: what it is, how it stands with it, and why it is used now or not.
QString Kind(const Overview::Entry &entry);
QString State(const Overview &overview, const Overview::Entry &entry);
QString Reason(const Overview &overview, int place);

/** What stands below an entry's name: its kind, and what its state does not tell already. */
QString Detail(const Overview &overview, int place);

/** The same of a saved network that is not in the list. */
QString UnlistedDetail(const Overview::Entry &entry);

// How an entry's state is drawn.
Glyphs::Mark Mark(const Overview &overview, const Overview::Entry &entry);
Glyphs::Reach Reach(const Overview &overview, const Overview::Entry &entry);

/** How far a network is that is coming up, a ConnectionStage; empty when it is not. */
QString Stage(int stage);

/** Why a network could not be connected when last tried, a ConnectionFailure; empty when nothing has failed.
 */
QString Failure(int failure);

/** Why what was just tried failed, a ConnectionFailure, and what can be done; empty when that is not known.
 */
QString Outcome(int failure);

/** ... of a network whose key is saved. */
QString OutcomeOfSaved(int failure);

/** What was not done with a network, the id of a text, and why; reason may be empty. */
QString NotDone(const char *what, const QString &name, const QString &reason);

} // namespace OverviewText

#endif
