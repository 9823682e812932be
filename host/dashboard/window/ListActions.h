#ifndef LISTACTIONS_H
#define LISTACTIONS_H

#include <ListKeeper.h>

#include <QList>
#include <QObject>
#include <QPointer>

class ActionButton;
class ElidedLabel;
class ExtendDialog;
class ImportDialog;
class QAction;
class QFileDialog;
class QMenu;
class QWidget;
class RestoreDialog;

/** What the user can do with the list as a whole: undo, redo, restore, import and export, as menu entries and
 * buttons, with the dialogs that belong to them. */
class ListActions : public QObject
{
    Q_OBJECT

public:
    /** @param keeper  not owned; outlives this. @param window  the parent of dialogs. */
    ListActions(ListKeeper *keeper, QWidget *window);

    /** Not owned; whoever calls puts it into a menu bar. */
    void FillMenu(QMenu *menu);

    /** The last change in words, and a button to undo it. */
    QWidget *CreateBar();

    /** Buttons to undo and redo for another window. */
    QList<QWidget *> CreateButtons(const char *undoName, const char *redoName);

    // Not owned.
    QAction *UndoAction() const { return m_undo; }
    QAction *ImportAction() const { return m_import; }
    QAction *TakeOverAction() const { return m_takeOver; }

    void Retranslate();

    /** Says at the foot what was done, more than the change of the list, until the list changes again. */
    void Tell(const QString &text);

public slots:
    void Update();
    void Undo();
    void Redo();
    void OpenRestore();
    void OpenImport();
    void OpenTakeOver();
    void OpenExport();

signals:
    /** Undo or Redo has moved this entry alone, or put it into the list. */
    void Stepped(const PriorityList &entry);

private slots:
    void Import(const QString &path);
    void Export(const QString &path);

private:
    QAction *CreateAction(const char *name, const char *slot);
    void Step(ListKeeper::Obstacle (ListKeeper::*step)());
    void SetHelp(QAction *action, const QString &help);
    void Open(ImportDialog *dialog);
    QFileDialog *CreateFileDialog(const char *name, const char *titleId);

    ListKeeper *const m_keeper;
    QWidget *const m_window;
    QAction *m_undo;
    QAction *m_redo;
    QAction *m_restore;
    QAction *m_import;
    QAction *m_export;
    /** Makes the networks that this computer remembers the list, in the order in which they are used. */
    QAction *m_takeOver;
    QPointer<ElidedLabel> m_lastChange;
    QString m_told;
    /** The last change when it was told. */
    QString m_toldOf;
    QPointer<RestoreDialog> m_restoreDialog;
    QPointer<ImportDialog> m_importDialog;
};

#endif
