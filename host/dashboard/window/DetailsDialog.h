#ifndef DETAILSDIALOG_H
#define DETAILSDIALOG_H

#include <Overview.h>

#include <QDialog>
#include <QList>
#include <QSet>
#include <QString>

class FactList;
class ProfilePart;
class QLabel;
class QPushButton;
class QVBoxLayout;

/** All that is told of one network: its place, its state, and every profile of its name. It follows a profile
 * that is given another name. */
class DetailsDialog : public QDialog
{
    Q_OBJECT

public:
    DetailsDialog(const PriorityList &entry, QWidget *parent);

    /** In the language of now. */
    void Show(const Overview &overview);

private:
    void FollowName(const QList<ConnectionProfile> &profiles);
    void ShowPlace(const Overview &overview);
    void ShowProfiles(const QList<ConnectionProfile> &profiles);

    PriorityList m_entry;
    /** The lasting ids of the profiles that are shown. */
    QSet<QString> m_profiles;
    QLabel *m_name;
    FactList *m_facts;
    QVBoxLayout *m_rows;
    QList<ProfilePart *> m_parts;
    QPushButton *m_closeButton;
};

#endif
