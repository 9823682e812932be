#include "ByItselfOrder.h"

#include <IOrderPlugin.h>
#include <OverviewText.h>
#include <PluginObjects.h>

void ByItselfOrder::Give(const QString &name, const QString &profileId, bool isOn)
{
    IOrderPlugin *plugin = PluginObjects::Ordering();
    m_name = name;
    m_isOn = isOn;
    m_number = plugin ? plugin->SetConnectsByItself(profileId, isOn) : 0;
}

bool ByItselfOrder::TakeEnd(QString *problem)
{
    IOrderPlugin *plugin = PluginObjects::Ordering();
    OrderOutcome outcome;
    if (plugin && IsOpen()) {
        plugin->GetOutcome(m_number, &outcome);
    }
    if (outcome.stage != OrderOutcome::StageOrderDone && outcome.stage != OrderOutcome::StageOrderFailed) {
        return false;
    }
    m_number = 0;
    problem->clear();
    const bool isFailed = outcome.stage == OrderOutcome::StageOrderFailed;
    if (isFailed || !outcome.kept.isEmpty()) {
        const bool isAllowed = isFailed || (outcome.kept.constFirst().obstacle != ObstacleNotAllowed &&
                                            outcome.kept.constFirst().obstacle != ObstaclePassword);
        *problem =
            OverviewText::NotDone(m_isOn ? "IDS_RULED_NOT_TURNED_ON" : "IDS_DETAILS_NOT_TURNED_OFF", m_name,
                                  isAllowed ? QString() : OverviewText::Failure(FailureNotAllowed));
    }
    return true;
}
