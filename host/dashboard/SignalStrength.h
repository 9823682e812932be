#ifndef SIGNALSTRENGTH_H
#define SIGNALSTRENGTH_H

#include <QString>

/** How well a network is received. */
namespace SignalStrength
{

const int unknown = -1;

/** @param value  WlanAvilableNetworkInfo::value1. The Wi-Fi plug-ins of this dashboard put the percentage
 * there; another may put there what it likes. */
int Percent(int value);

/** Such as "64%"; empty when it is unknown. */
QString Text(int percent);

} // namespace SignalStrength

#endif
