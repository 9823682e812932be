#ifndef POWERSUPPLY_H
#define POWERSUPPLY_H

#include <QString>

namespace PowerSupply
{

/** Of the computer itself, as Linux tells it. */
QString SystemDirectory();

/**
 * Whether the computer runs on its battery: it has one and no charger gives current. The battery of a mouse
 * is none of the computer's. False where nothing can be told.
 *
 * @param directory  with a directory for each supply.
 */
bool IsOnBattery(const QString &directory);

} // namespace PowerSupply

#endif
