#include "ListModel.h"

#include <algorithm>

namespace
{

const int success = 0;
const int readError = 6;
const int fileMissing = 23;
const int fileNotOpenable = 25;

const int noneSelected = -1;
const int notFoundByMoveUp = -2;

const char16_t wifi[] = u"1";

int IndexOf(const Model::Entries &entries, const Model::Entry &entry)
{
    const Model::Entries::const_iterator found = std::find(entries.begin(), entries.end(), entry);
    return found == entries.end() ? -1 : int(found - entries.begin());
}

void RemoveFirst(Model::Entries *entries, const Model::Entry &entry)
{
    const int index = IndexOf(*entries, entry);
    if (index >= 0) {
        entries->erase(entries->begin() + index);
    }
}

} // namespace

Model::ListModel::ListModel()
    : wlanPresent(true), mobileOffered(true), authenticationOffered(true), selectedRow(noneSelected),
      highlightedRow(noneSelected), upEnabled(true), downEnabled(true), deleteEnabled(true), dialog(NoDialog),
      signalsSent(0), noticesShown(0), profilesCreated(0), m_dialogHasAuthentication(false),
      m_pageHearsSignals(true)
{
}

int Model::ListModel::Read(Entries *entries) const
{
    if (!disk.directoryExists || disk.kind == Disk::NoFile) {
        return fileMissing;
    }
    if (disk.kind == Disk::DirectoryInItsPlace || !disk.fileAllowsAccess) {
        return fileNotOpenable;
    }
    entries->insert(entries->end(), disk.document.entries.begin(), disk.document.entries.end());
    return disk.document.IsSound() ? success : readError;
}

void Model::ListModel::Save(const Entries &entries)
{
    if (!disk.directoryExists || disk.kind == Disk::DirectoryInItsPlace) {
        return;
    }
    const bool existed = disk.kind == Disk::OrdinaryFile;
    if (!disk.directoryAllowsChange && (!existed || !disk.fileAllowsAccess)) {
        return;
    }
    const Document before = disk.document;
    const bool beforeWasReadable = existed && disk.fileAllowsAccess;
    disk.kind = Disk::OrdinaryFile;
    disk.fileAllowsAccess = true;
    disk.document = ProductDocument(entries);
    if (disk.document.bytes.size() <= disk.room) {
        return;
    }
    if (beforeWasReadable) {
        disk.document = Truncated(before, disk.room);
    } else {
        disk.kind = Disk::NoFile;
    }
}

int Model::ListModel::ReadForChange()
{
    working.clear();
    return Read(&working);
}

void Model::ListModel::RebuildTable()
{
    highlightedRow = selectedRow >= 0 && selectedRow < RowCount() ? selectedRow : noneSelected;
}

void Model::ListModel::Refresh()
{
    ReadForChange();
    RebuildTable();
}

void Model::ListModel::RefreshBySignal()
{
    ++signalsSent;
    if (m_pageHearsSignals) {
        Refresh();
    }
}

void Model::ListModel::UpdateButtons()
{
    const int count = RowCount();
    if (selectedRow == 0) {
        upEnabled = false;
        downEnabled = count > 1;
        deleteEnabled = count > 0;
    } else if (count > 0 && selectedRow == count - 1) {
        upEnabled = true;
        downEnabled = false;
        deleteEnabled = true;
    } else {
        const bool any = count > 0 && selectedRow != noneSelected;
        upEnabled = any;
        downEnabled = any;
        deleteEnabled = any;
    }
    if (wlanPresent && selectedRow >= 0 && selectedRow < count && working[selectedRow].type == wifi &&
        readOnly.count(working[selectedRow].name) > 0) {
        deleteEnabled = false;
    }
}

void Model::ListModel::Show()
{
    Refresh();
    selectedRow = noneSelected;
    highlightedRow = noneSelected;
    UpdateButtons();
}

void Model::ListModel::Hide()
{
    selectedRow = noneSelected;
}

void Model::ListModel::SavePage()
{
    Save(working);
}

void Model::ListModel::ConfirmSettings()
{
    SavePage();
    Hide();
}

void Model::ListModel::DeletePage()
{
    m_pageHearsSignals = false;
    dialog = NoDialog;
}

void Model::ListModel::AddTopPriority(const Entry &entry)
{
    if (entry.name.empty()) {
        return;
    }
    const Entry added = Storable(entry);
    Entries entries;
    if (Read(&entries) == success) {
        RemoveFirst(&entries, added);
    }
    entries.insert(entries.begin(), added);
    Save(entries);
    RefreshBySignal();
}

void Model::ListModel::AddPriorityList(const Entries &added)
{
    Entries entries;
    Read(&entries);
    entries.insert(entries.end(), added.begin(), added.end());
    Save(entries);
    RefreshBySignal();
}

void Model::ListModel::ClickRow(int row)
{
    selectedRow = row;
    highlightedRow = row;
    UpdateButtons();
}

void Model::ListModel::ClickUp()
{
    if (upEnabled) {
        MoveUp();
    }
}

void Model::ListModel::ClickDown()
{
    if (downEnabled) {
        MoveDown();
    }
}

void Model::ListModel::PressUp()
{
    MoveUp();
}

void Model::ListModel::PressDown()
{
    MoveDown();
}

void Model::ListModel::MoveUp()
{
    if (selectedRow < 1 || selectedRow >= RowCount()) {
        return;
    }
    const Entry moved = working[selectedRow];
    if (ReadForChange() != success) {
        selectedRow = notFoundByMoveUp;
    } else {
        const int index = IndexOf(working, moved);
        if (index > 0) {
            std::swap(working[index], working[index - 1]);
        }
        SavePage();
        selectedRow = index - 1;
    }
    RebuildTable();
    UpdateButtons();
}

void Model::ListModel::MoveDown()
{
    if (selectedRow < 0 || selectedRow >= RowCount() - 1) {
        return;
    }
    const Entry moved = working[selectedRow];
    if (ReadForChange() != success) {
        selectedRow = 0;
    } else {
        const int index = IndexOf(working, moved);
        if (index >= 0 && index + 1 < RowCount()) {
            std::swap(working[index], working[index + 1]);
        }
        SavePage();
        selectedRow = index + 1;
    }
    RebuildTable();
    UpdateButtons();
}

bool Model::ListModel::ClickDelete()
{
    if (!deleteEnabled) {
        return false;
    }
    if (selectedRow >= 0 && selectedRow < RowCount()) {
        return true;
    }
    UpdateButtons();
    SavePage();
    return false;
}

void Model::ListModel::AnswerDelete(bool confirmed)
{
    if (confirmed) {
        if (selectedRow >= 0 && selectedRow < RowCount()) {
            working.erase(working.begin() + selectedRow);
        }
        SavePage();
    }
    selectedRow = noneSelected;
    highlightedRow = noneSelected;
    UpdateButtons();
    SavePage();
}

void Model::ListModel::ClickAdd()
{
    dialog = AddDialog;
    offered.clear();
    if (wlanPresent) {
        std::set<Text> taken;
        for (const Remembered &network : remembered) {
            if (taken.count(network.name) == 0 && (network.type == wifi || mobileOffered)) {
                taken.insert(network.name);
                if (!IsListed(network.name)) {
                    offered.push_back(network);
                }
            }
        }
    }
    UpdateButtons();
}

void Model::ListModel::ClickNew()
{
    dialog = NewDialog;
    m_dialogHasAuthentication = wlanPresent && authenticationOffered;
}

bool Model::ListModel::IsListed(const Text &name) const
{
    for (const Entry &entry : working) {
        if (entry.name == name) {
            return true;
        }
    }
    return false;
}

void Model::ListModel::AddAtEnd(const Entries &entries)
{
    if (entries.empty()) {
        return;
    }
    const Entries added = Storable(entries);
    if (ReadForChange() == success) {
        for (const Entry &entry : added) {
            RemoveFirst(&working, entry);
        }
    }
    working.insert(working.end(), added.begin(), added.end());
    SavePage();
    selectedRow = IndexOf(working, added.front());
    RebuildTable();
    UpdateButtons();
}

void Model::ListModel::ConfirmAdd(const std::vector<bool> &ticked)
{
    Entries added;
    for (std::size_t i = 0; i < offered.size(); ++i) {
        if (ticked[i]) {
            added.push_back(Entry{offered[i].name, offered[i].type});
        }
    }
    AddAtEnd(added);
    dialog = NoDialog;
}

void Model::ListModel::ConfirmNew(const Text &name)
{
    if (name.empty() || !m_dialogHasAuthentication) {
        ++noticesShown;
        return;
    }
    if (wlanPresent) {
        ++profilesCreated;
    }
    if (IsListed(name)) {
        ++noticesShown;
        return;
    }
    AddAtEnd(Entries(1, Entry{name, wifi}));
    dialog = NoDialog;
}

void Model::ListModel::CloseDialog()
{
    dialog = NoDialog;
}
