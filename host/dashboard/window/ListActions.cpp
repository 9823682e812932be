#include "ListActions.h"

#include "ImportDialog.h"
#include "RestoreDialog.h"

#include <ActionButton.h>
#include <BidiText.h>
#include <Connections.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <ElidedLabel.h>
#include <FileFaultText.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <OrderFile.h>
#include <OrdinaryFile.h>

#include <QAccessible>
#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>

ListActions::ListActions(ListKeeper *keeper, QWidget *window)
    : QObject(window), m_keeper(keeper), m_window(window), m_undo(CreateAction("undoAction", SLOT(Undo()))),
      m_redo(CreateAction("redoAction", SLOT(Redo()))),
      m_restore(CreateAction("restoreAction", SLOT(OpenRestore()))),
      m_import(CreateAction("importAction", SLOT(OpenImport()))),
      m_export(CreateAction("exportAction", SLOT(OpenExport()))),
      m_takeOver(CreateAction("takeOverAction", SLOT(OpenTakeOver())))
{
    m_undo->setShortcut(QKeySequence(QLatin1String("Ctrl+Z")));
    m_redo->setShortcut(QKeySequence(QLatin1String("Ctrl+Shift+Z")));
    connect(m_keeper, SIGNAL(Changed()), this, SLOT(Update()));
}

QAction *ListActions::CreateAction(const char *name, const char *slot)
{
    QAction *action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

void ListActions::FillMenu(QMenu *menu)
{
    menu->setToolTipsVisible(true);
    menu->addAction(m_undo);
    menu->addAction(m_redo);
    menu->addAction(m_restore);
    menu->addSeparator();
    menu->addAction(m_import);
    menu->addAction(m_export);
}

QWidget *ListActions::CreateBar()
{
    m_lastChange = new ElidedLabel("lastChangeLabel");
    QWidget *bar = new QWidget;
    bar->setObjectName(QLatin1String("listBar"));
    QHBoxLayout *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lastChange, 1);
    layout->addWidget(new ActionButton("undoButton", m_undo));
    return bar;
}

QList<QWidget *> ListActions::CreateButtons(const char *undoName, const char *redoName)
{
    return QList<QWidget *>() << new ActionButton(undoName, m_undo) << new ActionButton(redoName, m_redo);
}

void ListActions::Retranslate()
{
    m_undo->setText(DashboardText("IDS_ACTION_UNDO"));
    m_redo->setText(DashboardText("IDS_ACTION_REDO"));
    m_restore->setText(DashboardText("IDS_ACTION_RESTORE"));
    m_import->setText(DashboardText("IDS_ACTION_IMPORT"));
    m_export->setText(DashboardText("IDS_ACTION_EXPORT"));
    m_takeOver->setText(DashboardText("IDS_BUTTON_TAKE_OVER"));
    m_takeOver->setIconText(DashboardText("IDS_BUTTON_TAKE_OVER"));
    m_import->setIconText(DashboardText("IDS_BUTTON_IMPORT"));
    m_undo->setIconText(DashboardText("IDS_BUTTON_UNDO"));
    m_redo->setIconText(DashboardText("IDS_BUTTON_REDO"));
    if (m_restoreDialog) {
        m_restoreDialog->Retranslate();
    }
    if (m_importDialog) {
        m_importDialog->Retranslate();
    }
    Update();
}

void ListActions::SetHelp(QAction *action, const QString &help)
{
    // Both may hold the names of networks, which must not be taken for rich text.
    action->setToolTip(help.toHtmlEscaped());
    action->setWhatsThis(help);
}

void ListActions::Update()
{
    const QString undoObstacle = ListKeeperText::Reason(*m_keeper, m_keeper->UndoObstacle());
    const QString redoObstacle = ListKeeperText::Reason(*m_keeper, m_keeper->RedoObstacle());
    const QString obstacle = ListKeeperText::Reason(*m_keeper, m_keeper->ChangeObstacle());
    m_undo->setEnabled(undoObstacle.isNull());
    SetHelp(m_undo, undoObstacle.isNull()
                        ? DashboardText("IDS_UNDO_WHAT").arg(ListKeeperText::Undo(*m_keeper))
                        : undoObstacle);
    m_redo->setEnabled(redoObstacle.isNull());
    SetHelp(m_redo, redoObstacle.isNull()
                        ? DashboardText("IDS_REDO_WHAT").arg(ListKeeperText::Redo(*m_keeper))
                        : redoObstacle);
    // A history that can't be used is what the dialog helps with.
    const bool canOpen = obstacle.isNull() || m_keeper->IsHistoryUnusable();
    m_restore->setEnabled(canOpen);
    SetHelp(m_restore, canOpen ? DashboardText("IDS_RESTORE_HINT") : obstacle);
    m_import->setEnabled(obstacle.isNull());
    SetHelp(m_import, obstacle.isNull() ? DashboardText("IDS_IMPORT_HINT") : obstacle);
    m_takeOver->setEnabled(obstacle.isNull());
    SetHelp(m_takeOver, obstacle.isNull() ? DashboardText("IDS_TAKE_OVER_HINT") : obstacle);
    // What can be read of a damaged list would pass for all of it, and take the place of a file that has all.
    const QString exportObstacle =
        obstacle.isNull() && m_keeper->IsDamaged() ? DashboardText("IDS_LIST_DAMAGED") : obstacle;
    m_export->setEnabled(exportObstacle.isNull());
    SetHelp(m_export, exportObstacle.isNull() ? DashboardText("IDS_EXPORT_HINT") : exportObstacle);
    if (m_lastChange) {
        const QString lastChange = ListKeeperText::LastChange(*m_keeper);
        m_lastChange->SetFullText(m_told.isEmpty() || m_toldOf != lastChange ? lastChange : m_told);
    }
}

void ListActions::Tell(const QString &text)
{
    m_told = text;
    m_toldOf = ListKeeperText::LastChange(*m_keeper);
    Update();
    if (m_lastChange) {
        QAccessibleEvent event(m_lastChange, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void ListActions::Undo()
{
    Step(&ListKeeper::Undo);
}

void ListActions::Redo()
{
    Step(&ListKeeper::Redo);
}

void ListActions::Step(ListKeeper::Obstacle (ListKeeper::*step)())
{
    const int from = m_keeper->History().Position();
    const ListKeeper::Obstacle problem = (m_keeper->*step)();
    if (problem != ListKeeper::NoObstacle) {
        DialogParts::Tell(ListKeeperText::Reason(*m_keeper, problem));
        return;
    }
    const ListHistory &history = m_keeper->History();
    const ListState earlier = history.States().value(qMin(from, history.Position()));
    const ListState later = history.States().value(qMax(from, history.Position()));
    const QList<ListDifference::Move> moves = ListHistory::Moves(earlier, later);
    const QList<PriorityList> now = history.Entries();
    const ListState &left = history.Position() < from ? later : earlier;
    const QList<int> added = ListDifference::Between(left.entries, now).added;
    if (moves.size() == 1) {
        emit Stepped(later.entries.at(moves.first().to));
    } else if (moves.isEmpty() && added.size() == 1) {
        emit Stepped(now.at(added.first()));
    }
}

void ListActions::OpenRestore()
{
    m_restoreDialog = new RestoreDialog(m_keeper, m_window);
    m_restoreDialog->setAttribute(Qt::WA_DeleteOnClose);
    m_restoreDialog->setModal(true);
    m_restoreDialog->show();
}

QFileDialog *ListActions::CreateFileDialog(const char *name, const char *titleId)
{
    QFileDialog *dialog = new QFileDialog(m_window, DashboardText(titleId), QDir::homePath());
    dialog->setObjectName(QLatin1String(name));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setModal(true);
    dialog->setNameFilters(QStringList() << DashboardText("IDS_ORDER_FILES") + QLatin1String(" (*.xml)")
                                         << DashboardText("IDS_ALL_FILES") + QLatin1String(" (*)"));
    return dialog;
}

void ListActions::OpenImport()
{
    QFileDialog *dialog = CreateFileDialog("importFileDialog", "IDS_IMPORT_TITLE");
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, SIGNAL(fileSelected(QString)), this, SLOT(Import(QString)));
    dialog->show();
}

void ListActions::OpenExport()
{
    QFileDialog *dialog = CreateFileDialog("exportFileDialog", "IDS_EXPORT_TITLE");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(QLatin1String("xml"));
    dialog->selectFile(DashboardText("IDS_EXPORT_FILE_NAME"));
    connect(dialog, SIGNAL(fileSelected(QString)), this, SLOT(Export(QString)));
    dialog->show();
}

void ListActions::Import(const QString &path)
{
    QByteArray bytes;
    if (!OrdinaryFile::Read(path, OrderFile::largestFile, &bytes)) {
        DialogParts::Tell(DashboardText("IDS_IMPORT_NOT_READABLE").arg(InOwnDirection(path)));
        return;
    }
    QList<PriorityList> entries;
    const FileFault fault = OrderFile::Parse(bytes, &entries);
    if (fault.kind != FileFault::None) {
        DialogParts::Tell(
            DashboardText("IDS_IMPORT_DAMAGED").arg(InOwnDirection(path), FileFaultText(fault)));
        return;
    }
    Open(new ImportDialog(m_keeper, entries, ImportDialog::fromFile, m_window));
}

void ListActions::OpenTakeOver()
{
    Open(new ImportDialog(m_keeper, Connections::Read().Remembered(), ImportDialog::fromComputer, m_window));
}

void ListActions::Open(ImportDialog *dialog)
{
    m_importDialog = dialog;
    m_importDialog->setAttribute(Qt::WA_DeleteOnClose);
    m_importDialog->setModal(true);
    m_importDialog->show();
}

void ListActions::Export(const QString &path)
{
    if (!OrderFile::Write(path, m_keeper->Entries())) {
        DialogParts::Tell(DashboardText("IDS_EXPORT_NOT_WRITTEN").arg(InOwnDirection(path)));
    }
}
