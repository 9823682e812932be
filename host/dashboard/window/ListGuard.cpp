#include "ListGuard.h"

#include "DamagedListDialog.h"

#include <DialogParts.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>

#include <QApplication>
#include <QTimer>

ListGuard::ListGuard(ListKeeper *keeper, QWidget *window)
    : QObject(window), m_keeper(keeper), m_window(window)
{
    connect(m_keeper, SIGNAL(Changed()), this, SLOT(Follow()));
}

bool ListGuard::MayOpen(const char *slot)
{
    m_keeper->Follow();
    if (!IsListUnsafe()) {
        return true;
    }
    Ask();
    if (m_question) {
        connect(m_question.data(), SIGNAL(accepted()), m_window, slot);
    }
    return false;
}

void ListGuard::Watch(QDialog *dialog)
{
    m_dialog = dialog;
}

void ListGuard::Retranslate()
{
    if (m_question) {
        m_question->Retranslate();
    }
}

bool ListGuard::IsListUnsafe() const
{
    return m_keeper->IsDamaged() || m_keeper->WriteObstacle() != ListKeeper::NoObstacle;
}

bool ListGuard::IsDialogOpen() const
{
    return m_dialog && m_dialog->isVisible();
}

void ListGuard::Ask()
{
    if (m_question || !IsListUnsafe()) {
        return;
    }
    const QString obstacle = ListKeeperText::Reason(*m_keeper, m_keeper->WriteObstacle());
    if (!obstacle.isNull()) {
        DialogParts::Tell(obstacle);
        return;
    }
    m_question = new DamagedListDialog(m_keeper, IsDialogOpen() ? m_dialog.data() : m_window);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    m_question->setModal(true);
    m_question->show();
}

void ListGuard::Follow()
{
    if (IsListUnsafe() && IsDialogOpen() && !m_question) {
        // The list is being worked with just now.
        QTimer::singleShot(0, this, SLOT(AskOverOpenDialog()));
    }
}

void ListGuard::AskOverOpenDialog()
{
    if (!IsListUnsafe() || !IsDialogOpen() || m_question) {
        return;
    }
    if (m_keeper->WriteObstacle() != ListKeeper::NoObstacle) {
        CloseDialog();
    }
    Ask();
    if (m_question) {
        connect(m_question.data(), SIGNAL(rejected()), this, SLOT(CloseDialog()));
    }
}

void ListGuard::CloseDialog()
{
    // First what is open over it, such as a dialog of its page.
    QWidget *top = QApplication::activeModalWidget();
    while (top && top != m_dialog && top->close() && top != QApplication::activeModalWidget()) {
        top = QApplication::activeModalWidget();
    }
    m_dialog->reject();
}
