#include "HandedOutPlugin.h"

#include <ContractNumbers.h>

#include <QPair>

void HandedOutPlugin::HandOut()
{
    Plugin()->Init();
    container.objects[qMakePair(QString(priorityClassId), int(PriorityInterface))] = Service();
    StandInHost::container = &container;
}
