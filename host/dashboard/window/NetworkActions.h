#ifndef NETWORKACTIONS_H
#define NETWORKACTIONS_H

#include <Overview.h>

#include <QObject>
#include <QPointer>

class DetailsDialog;
class ForgetDialog;
class ListKeeper;
class QAction;
class QMenu;
class QWidget;

/** What the user can do with the network that is chosen in the list, as menu entries, with their dialogs. */
class NetworkActions : public QObject
{
    Q_OBJECT

public:
    /** @param keeper  not owned; outlives this. @param window  the parent of dialogs. */
    NetworkActions(ListKeeper *keeper, QWidget *window);

    void FillMenu(QMenu *menu);

    // Not owned.
    QAction *DetailsAction() const { return m_details; }
    QAction *ForgetAction() const { return m_forget; }

    /** Of which network of the overview they are, in the list or not; null: of none. */
    void Choose(const Overview &overview, const Overview::Entry *chosen);

    /** Has open dialogs follow, in the language of now. */
    void Show(const Overview &overview);

public slots:
    void OpenDetails();
    void OpenForget();

signals:
    /** What was done, in words. */
    void Told(const QString &text);

private:
    QAction *CreateAction(const char *name, const QKeySequence &key);
    /** Why what is chosen can't be forgotten; null where it can. */
    QString ForgetObstacle() const;

    ListKeeper *const m_keeper;
    QWidget *const m_window;
    QAction *m_details;
    QAction *m_forget;
    Overview m_overview;
    PriorityList m_entry;
    QPointer<DetailsDialog> m_detailsDialog;
    QPointer<ForgetDialog> m_forgetDialog;
};

#endif
