#ifndef NAMESPACE_H
#define NAMESPACE_H

#include <QString>

namespace Namespace
{

/**
 * Gives the process a network of its own, without any connection to the machine's, and empty directories in
 * the place of those in which a NetworkManager keeps what it knows. To be called before there is a second
 * thread.
 *
 * @return empty, or why that can't be had here.
 */
QString Enter();

} // namespace Namespace

#endif
