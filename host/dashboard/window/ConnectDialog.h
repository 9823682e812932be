#ifndef CONNECTDIALOG_H
#define CONNECTDIALOG_H

#include <Connections.h>
#include <ExtendDialog.h>

#include <QString>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTableWidget;

/**
 * Lists the networks in range as they come and go, and connects the one that the user chooses. A network
 * that asks for a key and has no profile is given its key here. What is listed keeps its place in the
 * priority list; what is not goes to its end once it is connected.
 */
class ConnectDialog : public ExtendDialog
{
    Q_OBJECT

public:
    explicit ConnectDialog(QWidget *parent);

    /** Begins to connect the chosen network. The dialog closes when it is connected. */
    void accept() override;

    /** Stops what is under way, or else closes. */
    void reject() override;

public slots:
    void Retranslate();

private slots:
    void Follow();
    void FollowChoice();
    void ShowKey(bool isShown);

private:
    void CreateTable();
    QWidget *CreateKeyRow();
    QWidget *CreateButtons();
    void ListNetworks();
    const VisibleNetwork *Chosen() const;
    bool IsUnderWay() const;
    static bool NeedsKey(const VisibleNetwork &network);
    QString DetailsOf(const VisibleNetwork &network) const;
    QString Outcome() const;
    void Show();
    void AddToList() const;

    Connections m_told;
    /** Of the chosen network; empty when none is. */
    QString m_chosen;
    QString m_chosenName;
    /** The last order, as IConnectionPlugin answers it; 0: none was given. */
    int m_order = 0;
    ConnectAttempt m_attempt;

    QLabel *m_hint;
    QStackedWidget *m_body;
    QTableWidget *m_table;
    QLabel *m_empty;
    QWidget *m_keyRow;
    QLabel *m_keyLabel;
    QLineEdit *m_key;
    QCheckBox *m_showKey;
    QLabel *m_outcome;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

#endif
