#ifndef RESTOREDIALOG_H
#define RESTOREDIALOG_H

#include <ExtendDialog.h>
#include <ListHistory.h>

#include <QList>

class ListKeeper;
class QLabel;
class QListWidget;
class QPushButton;
class QStackedWidget;
class QTableWidget;

/** Lists the states of the priority list, newest first, with when and what changed, and goes back to the one
 * that is chosen. A history that can't be used is told, and set aside if the user wants that. */
class RestoreDialog : public ExtendDialog
{
    Q_OBJECT

public:
    /** @param keeper  not owned; outlives the dialog. */
    RestoreDialog(ListKeeper *keeper, QWidget *parent);

    /** Stays open, and says why, when the chosen state can't be restored. */
    void accept() override;

public slots:
    void Retranslate();

private slots:
    void ListStates();
    void ShowChoice();
    void SetHistoryAside();

private:
    QWidget *CreateStatesPage();
    QWidget *CreateUnusablePage();
    void FitColumns();
    int ChosenPlace() const;
    void ShowProblem(const QString &problem);

    ListKeeper *const m_keeper;
    /** As listed, oldest first. */
    QList<ListState> m_states;
    int m_position;
    QLabel *m_hint;
    QStackedWidget *m_body;
    QTableWidget *m_table;
    QLabel *m_previewTitle;
    QListWidget *m_preview;
    QLabel *m_effect;
    QLabel *m_unusable;
    QPushButton *m_asideButton;
    QLabel *m_problem;
    QPushButton *m_okButton;
    QPushButton *m_closeButton;
};

#endif
