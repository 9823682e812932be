#ifndef PROFILEPART_H
#define PROFILEPART_H

#include "ByItselfOrder.h"

#include <ConnectionRecords.h>

#include <QWidget>

class FactList;
class QCheckBox;
class QLabel;

/** What is told of one profile, and a box for it to connect by itself. */
class ProfilePart : public QWidget
{
    Q_OBJECT

public:
    explicit ProfilePart(const QString &profileId);

    QString ProfileId() const { return m_profile.id; }

    /** False where its profile is not among them. */
    bool Show(const QList<ConnectionProfile> &profiles);

    /** Empty where it is the only profile of its name. */
    void SetHeading(const QString &heading);

private:
    void Show(const ProfileDetails &details);
    void Order(bool isOn);
    void ShowBox(const ProfileDetails &details);

    QLabel *m_heading;
    FactList *m_facts;
    QCheckBox *m_box;
    QLabel *m_problem;
    ConnectionProfile m_profile;
    ByItselfOrder m_order;
};

#endif
