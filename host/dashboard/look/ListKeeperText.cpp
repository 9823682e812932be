#include "ListKeeperText.h"

#include "BidiText.h"
#include "FileFaultText.h"
#include "ListChangeText.h"

#include <DashboardText.h>

QString ListKeeperText::Reason(const ListKeeper &keeper, ListKeeper::Obstacle obstacle)
{
    const QString list = InOwnDirection(keeper.ListPath());
    const QString history = InOwnDirection(keeper.File().Path());
    switch (obstacle) {
    case ListKeeper::NoObstacle:
        break;
    case ListKeeper::ListNotOffered:
        return DashboardText("IDS_UNDO_NO_PLUGIN");
    case ListKeeper::ListNotOpened:
        return DashboardText("IDS_LIST_NOT_OPENED");
    case ListKeeper::ListDamaged:
        return DashboardText("IDS_LIST_DAMAGED");
    case ListKeeper::ListBusy:
        return DashboardText("IDS_LIST_BUSY");
    case ListKeeper::ListNotWritten:
        return DashboardText("IDS_LIST_NOT_WRITTEN").arg(list);
    case ListKeeper::ListNotKept:
        return DashboardText("IDS_LIST_NOT_KEPT").arg(list);
    case ListKeeper::NothingToUndo:
        return DashboardText("IDS_UNDO_NOTHING");
    case ListKeeper::NothingToRedo:
        return DashboardText("IDS_REDO_NOTHING");
    case ListKeeper::NoRedoOfDamage:
        return DashboardText("IDS_REDO_DAMAGED");
    case ListKeeper::StateGone:
        return DashboardText("IDS_RESTORE_GONE");
    case ListKeeper::HistoryDamaged:
        return DashboardText("IDS_HISTORY_DAMAGED").arg(history, FileFaultText(keeper.File().Fault()));
    case ListKeeper::HistoryNotReadable:
        return DashboardText("IDS_HISTORY_NOT_READABLE").arg(history);
    case ListKeeper::HistoryNotWritable:
        return DashboardText("IDS_HISTORY_NOT_WRITABLE").arg(history);
    case ListKeeper::HistoryNotSetAside:
        return DashboardText("IDS_HISTORY_NOT_SET_ASIDE").arg(history);
    }
    return QString();
}

QString ListKeeperText::Undo(const ListKeeper &keeper)
{
    if (keeper.UndoObstacle() != ListKeeper::NoObstacle) {
        return QString();
    }
    const ListHistory &history = keeper.History();
    return keeper.IsDamaged()
               ? DashboardText("IDS_CHANGE_DAMAGED")
               : ListChangeText::DescribeStep(history.States(), history.UndoPlace(), history.Position());
}

QString ListKeeperText::Redo(const ListKeeper &keeper)
{
    const ListHistory &history = keeper.History();
    return keeper.RedoObstacle() == ListKeeper::NoObstacle
               ? ListChangeText::DescribeStep(history.States(), history.Position(), history.RedoPlace())
               : QString();
}

QString ListKeeperText::LastChange(const ListKeeper &keeper)
{
    if (keeper.UndoObstacle() != ListKeeper::NoObstacle || keeper.IsDamaged()) {
        return QString();
    }
    const ListState &state = keeper.History().States().at(keeper.History().Position());
    return DashboardText("IDS_LAST_CHANGE").arg(Undo(keeper), ListChangeText::Moment(state.time));
}
