#ifndef CONNECTDIALOG_H
#define CONNECTDIALOG_H

#include <ExtendDialog.h>

#include <QString>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTableWidget;

/**
 * Lists the networks in range. The one that the user connects to goes to the top of the priority list, as it
 * does when a plug-in has connected to it.
 */
class ConnectDialog : public ExtendDialog
{
    Q_OBJECT

public:
    explicit ConnectDialog(QWidget *parent);

    enum Outcome {
        Done,
        NoPlugin,   /**< There is no priority plug-in to ask. */
        ListDamaged /**< The list can't be read in full, and is left alone. */
    };

    /** Puts the Wi-Fi network of that name on top, in range or not. */
    static Outcome Connect(const QString &network);

    /** Stays open, and says why, when the chosen network can't be put on top. */
    void accept() override;

public slots:
    void Retranslate();

private slots:
    void FollowChoice();

private:
    void CreateTable();
    QWidget *CreateButtons();
    void ListNetworks();
    QString ChosenNetwork() const;
    void ShowOutcome();

    bool m_isWlanMissing;
    Outcome m_outcome;
    QLabel *m_hint;
    QStackedWidget *m_body;
    QTableWidget *m_table;
    QLabel *m_empty;
    QLabel *m_problem;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

#endif
