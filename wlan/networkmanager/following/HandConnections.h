#ifndef HANDCONNECTIONS_H
#define HANDCONNECTIONS_H

#include <QSet>
#include <QString>

/**
 * The connections that the user has ordered in windows and commands of ours, for whichever of them follows
 * the list: NetworkManager doesn't tell who wanted a connection. They are in the file "byhand.ini" of the
 * user data directory, by NetworkManager's paths, which it doesn't use twice; those of an earlier start of
 * the computer are not known any more.
 */
namespace HandConnections
{

/** Does nothing while the list is not followed and no data is saved: who chooses that later wants it from
 * then on. */
void Note(const QString &connection);

QSet<QString> Known();

/** For when NetworkManager has gone: the next one begins with the same paths. */
void Forget();

} // namespace HandConnections

#endif
