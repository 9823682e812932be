#ifndef LISTMODEL_H
#define LISTMODEL_H

#include "ListDocument.h"

#include <set>

namespace Model
{

/** The user data directory and the priority file in it, with what the operating system allows. */
struct Disk {
    enum FileKind { NoFile, OrdinaryFile, DirectoryInItsPlace };

    FileKind kind = NoFile;
    Document document;
    bool fileAllowsAccess = true;
    bool directoryExists = true;
    bool directoryAllowsChange = true;
    /** The largest file that can be written. */
    std::size_t room = std::size_t(-1);
};

struct Remembered {
    Text name;
    Text type;
};

/**
 * What the priority list's rules say must be in the file, on the page and in the dialogs. One operation for
 * everything that a user, the host, another plug-in or another program can do.
 */
class ListModel
{
public:
    enum DialogKind { NoDialog, AddDialog, NewDialog };

    ListModel();

    // Another program.
    Disk disk;

    // The WLAN plug-in.
    bool wlanPresent;
    std::vector<Remembered> remembered;
    std::set<Text> readOnly;
    bool mobileOffered;
    bool authenticationOffered;

    // The host.
    void Show();
    void Hide();
    void ConfirmSettings();
    void DeletePage();

    // Another plug-in.
    void AddTopPriority(const Entry &entry);
    void AddPriorityList(const Entries &entries);
    /** The code that reading the list gives, and the entries read. */
    int Read(Entries *entries) const;

    // The user on the page.
    void ClickRow(int row);
    void ClickUp();
    void ClickDown();
    void PressUp();
    void PressDown();
    /** Whether the question is asked; then AnswerDelete belongs to it. */
    bool ClickDelete();
    void AnswerDelete(bool confirmed);
    void ClickAdd();
    void ClickNew();

    // The user in a dialog.
    void ConfirmAdd(const std::vector<bool> &ticked);
    void ConfirmNew(const Text &name);
    void CloseDialog();

    // What must be seen.
    Entries working;
    int selectedRow;
    /** The row that looks selected; -1 for none. */
    int highlightedRow;
    bool upEnabled;
    bool downEnabled;
    bool deleteEnabled;
    DialogKind dialog;
    std::vector<Remembered> offered;
    int signalsSent;
    int noticesShown;
    int profilesCreated;

private:
    int RowCount() const { return int(working.size()); }
    void Refresh();
    void RefreshBySignal();
    void RebuildTable();
    void UpdateButtons();
    void MoveUp();
    void MoveDown();
    int ReadForChange();
    void AddAtEnd(const Entries &entries);
    void Save(const Entries &entries);
    void SavePage();
    bool IsListed(const Text &name) const;

    /** As it was when the new-network dialog was opened. */
    bool m_dialogHasAuthentication;
    /** The page made after a host deleted the first one hears of no changes. */
    bool m_pageHearsSignals;
};

} // namespace Model

#endif
