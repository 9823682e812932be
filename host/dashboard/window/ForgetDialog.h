#ifndef FORGETDIALOG_H
#define FORGETDIALOG_H

#include <Connections.h>

#include <QDialog>
#include <QList>
#include <QString>

class ListKeeper;
class QLabel;
class QPushButton;

/**
 * Asks whether a network is to be forgotten, does it, and tells what could not be done. Only once all its
 * profiles are gone it leaves the list, which is one change that can be undone. Where the question says that
 * it is not in the list, the list stays as it is.
 *
 * Who closes it meanwhile is told all the same.
 */
class ForgetDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param keeper  outlives this. */
    ForgetDialog(const PriorityList &entry, ListKeeper *keeper, QWidget *parent);

    /** As things stand, in the language of now. */
    void Show();

public slots:
    void reject() override;

signals:
    /** What was done, in words. */
    void Forgotten(const QString &text);

private slots:
    void Follow();

private:
    void Ask(const Connections &connections);
    void Forget();
    void LookAtOrders();
    bool LeaveList();
    void End();
    void Fail(const QString &problem);
    void Fit();
    QString Problem() const;

    const PriorityList m_entry;
    ListKeeper *const m_keeper;
    QLabel *m_title;
    QLabel *m_text;
    QLabel *m_problem;
    QPushButton *m_forgetButton;
    QPushButton *m_cancelButton;
    /** As the question tells of them. */
    QList<ConnectionProfile> m_profiles;
    /** As IConnectionPlugin has answered them, one for each of these; empty until all is ordered. */
    QList<int> m_orders;
    /** As the question tells of it. */
    bool m_isListed = true;
    bool m_isUnderWay = false;
    bool m_isOver = false;
};

#endif
