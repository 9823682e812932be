#ifndef FAKEPRIORITY_H
#define FAKEPRIORITY_H

#include <IPriorityPlugin.h>

#include <QStringList>

/** The priority list as a plain object behind the real interface. */
class FakePriority : public QObject, public IPriorityPlugin
{
    Q_OBJECT
    Q_INTERFACES(IPriorityPlugin)

public:
    int GetPriorityList(QList<PriorityList> *out) override;
    void AddPriorityList(QList<PriorityList> &entries) override;
    void AddTopPriority(PriorityList entry) override;

    /** What was put on top, "name/type" each, in the order of the calls. */
    QStringList toppedEntries;
    QList<PriorityList> list;
    /** What is answered with it. */
    int status = 0;

signals:
    void OnUpdataPriorityView();
};

#endif
