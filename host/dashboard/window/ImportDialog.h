#ifndef IMPORTDIALOG_H
#define IMPORTDIALOG_H

#include <ExtendDialog.h>
#include <PriorityList.h>

#include <QList>

class ListKeeper;
class QLabel;
class QPushButton;
class QTableWidget;

/** Shows what taking a list in would do, and does it when it is accepted. */
class ImportDialog : public ExtendDialog
{
    Q_OBJECT

public:
    /** Ids of the texts that tell where the list comes from. */
    struct Words {
        const char *title;
        const char *summary;
        const char *accept;
    };
    static const Words fromFile;
    static const Words fromComputer;

    /** @param keeper  not owned; outlives the dialog. */
    ImportDialog(ListKeeper *keeper, const QList<PriorityList> &entries, const Words &words, QWidget *parent);

    /** Stays open, and says why, when the list can't be changed. */
    void accept() override;

public slots:
    void Retranslate();

private:
    void ShowPlan();

    ListKeeper *const m_keeper;
    const QList<PriorityList> m_entries;
    const Words m_words;
    QLabel *m_summary;
    QTableWidget *m_table;
    QLabel *m_unknown;
    QLabel *m_problem;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

#endif
