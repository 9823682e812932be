#include "SignalStrength.h"

#include "DashboardText.h"

int SignalStrength::Percent(int value)
{
    return value >= 0 && value <= 100 ? value : unknown;
}

QString SignalStrength::Text(int percent)
{
    return percent == unknown ? QString() : DashboardText("IDS_CONNECT_PERCENT").arg(percent);
}
