#ifndef SIGNALSTRENGTH_H
#define SIGNALSTRENGTH_H

/** How well a network is received. */
namespace SignalStrength
{

const int unknown = -1;

/** @param value  WlanAvilableNetworkInfo::value1. The Wi-Fi plug-ins of this dashboard put the percentage
 * there; another may put there what it likes. */
inline int Percent(int value)
{
    return value >= 0 && value <= 100 ? value : unknown;
}

} // namespace SignalStrength

#endif
