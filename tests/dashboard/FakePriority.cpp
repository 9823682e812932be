#include "FakePriority.h"

int FakePriority::GetPriorityList(QList<PriorityList> *out)
{
    *out += list;
    return status;
}

void FakePriority::AddPriorityList(QList<PriorityList> &entries)
{
    list += entries;
    emit OnUpdataPriorityView();
}

void FakePriority::AddTopPriority(PriorityList entry)
{
    toppedEntries.append(entry.name + QLatin1Char('/') + entry.type);
    list.prepend(entry);
    emit OnUpdataPriorityView();
}
