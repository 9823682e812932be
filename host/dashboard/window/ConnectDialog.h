#ifndef CONNECTDIALOG_H
#define CONNECTDIALOG_H

#include <Connections.h>

#include <PriorityList.h>

#include <QDialog>
#include <QHash>
#include <QString>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QTimer;

/**
 * Lists the networks in range as they come and go, and connects the one that the user chooses. A network
 * that asks for a key and has no profile is given its key here. What is listed keeps its place in the
 * priority list; what is not goes once it is connected to where the user wants new networks to go.
 */
class ConnectDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ConnectDialog(QWidget *parent);

    /** Begins to connect the chosen network. The dialog closes when it is connected. */
    void accept() override;

    /** Stops what is under way, or else closes. */
    void reject() override;

    /** Keeps the size for the next time, in whatever way the dialog is closed. */
    void done(int result) override;

public slots:
    void Retranslate();

private slots:
    void Follow();
    void FollowChoice();
    void FollowSearch();
    void ShowKey(bool isShown);

private:
    void CreateList();
    QWidget *CreateKeyRow();
    QWidget *CreateButtons();
    void Read();
    void ListNetworks();
    QString NoNetworks() const;
    QList<VisibleNetwork> Section(bool isListed) const;
    void AddSection(const char *titleId, const QList<VisibleNetwork> &networks);
    void AddNetwork(const VisibleNetwork &network);
    int PlaceOf(const VisibleNetwork &network) const;
    const VisibleNetwork *Chosen() const;
    bool IsUnderWay() const;
    static bool NeedsKey(const VisibleNetwork &network);
    QString DetailsOf(const VisibleNetwork &network) const;
    QString Outcome() const;
    QString NotConnected() const;
    void Show();
    void AddToList() const;

    Connections m_told;
    /** The priority list as it was when the dialog opened. */
    QList<PriorityList> m_listed;
    /** Of the profiles that are in it, by their id: counted from 1. */
    QHash<QString, int> m_places;
    /** Runs while an attempt takes no longer than usual. */
    QTimer *m_usualTime;
    /** Of the chosen network; empty when none is. */
    QString m_chosen;
    QString m_chosenName;
    /** The last order, as IConnectionPlugin answers it; 0: none was given. */
    int m_order = 0;
    ConnectAttempt m_attempt;
    /** The order brought a key along; otherwise a saved one was used, or none. */
    bool m_isKeyTyped = false;

    QLabel *m_hint;
    QLineEdit *m_search;
    QStackedWidget *m_body;
    QListWidget *m_list;
    QLabel *m_empty;
    QWidget *m_keyRow;
    QLabel *m_keyLabel;
    QLineEdit *m_key;
    QCheckBox *m_showKey;
    QProgressBar *m_progress;
    QLabel *m_outcome;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

#endif
