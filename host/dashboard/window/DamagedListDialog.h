#ifndef DAMAGEDLISTDIALOG_H
#define DAMAGEDLISTDIALOG_H

#include <ExtendDialog.h>
#include <ListKeeper.h>
#include <PriorityList.h>

#include <QList>

class QLabel;
class QPushButton;

/**
 * Asks what to do with a list that can't be read to its end: bring back the last one that was whole, where
 * the history has it, go on with what could be read, or leave it as it is. It is accepted when the list is
 * whole, also when somebody else has made it so meanwhile, and rejected when it stays as it is.
 */
class DamagedListDialog : public ExtendDialog
{
    Q_OBJECT

public:
    /** @param keeper  not owned; outlives the dialog. */
    DamagedListDialog(ListKeeper *keeper, QWidget *parent);

public slots:
    void Retranslate();

private slots:
    void Follow();
    void BringBack();
    void GoOn();

private:
    QPushButton *AddButton(const char *name, const char *slot);
    /** Stays open, and says why, when there is a problem. */
    void Finish(ListKeeper::Obstacle obstacle);
    void ShowProblem(const QString &problem);

    ListKeeper *const m_keeper;
    /** What could be read, as the user was told. */
    QList<PriorityList> m_entries;
    QWidget *m_content;
    QLabel *m_damage;
    QLabel *m_last;
    QLabel *m_copy;
    QLabel *m_problem;
    QPushButton *m_bringBackButton;
    QPushButton *m_goOnButton;
    QPushButton *m_leaveButton;
};

#endif
