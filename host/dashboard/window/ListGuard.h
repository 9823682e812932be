#ifndef LISTGUARD_H
#define LISTGUARD_H

#include <QObject>
#include <QPointer>

class DamagedListDialog;
class ListKeeper;
class QDialog;
class QWidget;

/** Keeps the window's dialogs from writing a list that can't be read in full, until the user has decided
 * about it. */
class ListGuard : public QObject
{
    Q_OBJECT

public:
    /** @param keeper  not owned; outlives this. @param window  owns this, and is the parent of the question.
     */
    ListGuard(ListKeeper *keeper, QWidget *window);

    /**
     * Whether a dialog that can write the list may be opened. If not, the user is told why, or asked what to
     * do with the list; once it is whole, the window's slot is called.
     */
    bool MayOpen(const char *slot);

    /** From now on, asks when the list is damaged while dialog is open, and closes that by its Cancel when
     * the list is to stay as it is. */
    void Watch(QDialog *dialog);

    void Retranslate();

public slots:
    /** Asks, or tells why nothing can be done; does nothing when nothing is wrong. */
    void Ask();

private slots:
    void Follow();
    void AskOverOpenDialog();
    void CloseDialog();

private:
    bool IsListUnsafe() const;
    bool IsDialogOpen() const;

    ListKeeper *const m_keeper;
    QWidget *const m_window;
    QPointer<QDialog> m_dialog;
    QPointer<DamagedListDialog> m_question;
};

#endif
