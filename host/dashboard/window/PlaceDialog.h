#ifndef PLACEDIALOG_H
#define PLACEDIALOG_H

#include <ListEdit.h>

#include <QDialog>
#include <QList>

class ListKeeper;
class QLabel;
class QPushButton;
class QSpinBox;

/** Asks for the place that one or several networks of the list are to get. It follows the list. */
class PlaceDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param keeper  outlives this. */
    PlaceDialog(const QList<ListedEntry> &entries, ListKeeper *keeper, QWidget *parent);

    void Retranslate();

signals:
    /** The place of the first of them, counted from 0, once they are moved. */
    void Chosen(int place);

private slots:
    void Follow();

private:
    void Choose();

    const QList<ListedEntry> m_entries;
    ListKeeper *const m_keeper;
    QLabel *m_question;
    QSpinBox *m_place;
    QPushButton *m_moveButton;
    QPushButton *m_cancelButton;
};

#endif
