#include "EntryActions.h"

#include "NetworkList.h"
#include "PlaceDialog.h"

#include <ArrowButton.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <ListChangeText.h>
#include <ListEntries.h>
#include <ListKeeperText.h>

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QRegularExpression>

namespace
{

/** An action's text as it stands where it has no underlined letter. */
QString WithoutMnemonic(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("\\(&.\\)")));
    return text.remove(QLatin1Char('&'));
}

QList<PriorityList> MissingIn(const QList<PriorityList> &list, const QList<ListedEntry> &entries)
{
    QList<PriorityList> missing;
    for (const ListedEntry &entry : entries) {
        if (ListEdit::PlaceOf(entry, list) < 0) {
            missing.append(entry.entry);
        }
    }
    return missing;
}

// Where what is selected goes, as EntryActions::Goal tells.

int Higher(const QList<int> &places, const QList<PriorityList> &)
{
    return qMax(0, places.first() - 1);
}

int Lower(const QList<int> &places, const QList<PriorityList> &list)
{
    return qMin(places.last() + 2, static_cast<int>(list.size()));
}

int Top(const QList<int> &, const QList<PriorityList> &)
{
    return 0;
}

int End(const QList<int> &, const QList<PriorityList> &list)
{
    return static_cast<int>(list.size());
}

} // namespace

EntryActions::EntryActions(ListKeeper *keeper, NetworkList *list, QWidget *window)
    : QObject(window), m_window(window), m_keeper(keeper), m_list(list), m_menu(new QMenu(window)),
      m_connect(CreateAction("entryConnectAction", QKeySequence()))
{
    AddMove("moveUpAction", "Alt+Up", Higher, true);
    AddMove("moveDownAction", "Alt+Down", Lower, true);
    AddMove("moveTopAction", "Alt+Home", Top, false);
    AddMove("moveEndAction", "Alt+End", End, false);
    m_place = CreateAction("movePlaceAction", QKeySequence());
    m_remove = CreateAction("removeAction", QKeySequence(Qt::Key_Delete));
    m_add = CreateAction("addAction", QKeySequence());
    m_menu->setObjectName(QLatin1String("entryMenu"));
    m_menu->addAction(m_connect);
    m_menu->setDefaultAction(m_connect);
    m_menu->addSeparator();
    FillMenu(m_menu);
    m_menu->addSeparator();
    connect(m_connect, &QAction::triggered, this, &EntryActions::Connect);
    connect(m_place, &QAction::triggered, this, &EntryActions::OpenPlace);
    connect(m_remove, &QAction::triggered, this, &EntryActions::Remove);
    connect(m_add, &QAction::triggered, this, &EntryActions::Add);
    connect(m_list, &NetworkList::ConnectWanted, m_connect, &QAction::trigger);
    connect(m_list, &NetworkList::MenuWanted, this, &EntryActions::OpenMenu);
    connect(m_list, &NetworkList::Dropped, this, &EntryActions::Drop);
    connect(m_list, &NetworkList::itemSelectionChanged, this, &EntryActions::Update);
    connect(m_list, &NetworkList::currentRowChanged, this, &EntryActions::Update);
    connect(m_keeper, &ListKeeper::Changed, this, &EntryActions::Update);
}

QAction *EntryActions::CreateAction(const char *name, const QKeySequence &key)
{
    QAction *action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    // The keys edit text elsewhere.
    action->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(action);
    return action;
}

void EntryActions::AddMove(const char *name, const char *key, const Goal &goal, bool needsNeighbours)
{
    QAction *action = CreateAction(name, QKeySequence(QLatin1String(key)));
    connect(action, &QAction::triggered, this, [this, goal] { Place(m_list->Selected(), {}, goal); });
    m_moves.append(MoveAction{action, goal, needsNeighbours});
}

void EntryActions::FillMenu(QMenu *menu)
{
    menu->setToolTipsVisible(true);
    for (const MoveAction &move : std::as_const(m_moves)) {
        menu->addAction(move.action);
    }
    menu->addAction(m_place);
    menu->addSeparator();
    menu->addAction(m_remove);
    menu->addAction(m_add);
}

QWidget *EntryActions::CreateButtons()
{
    const char *const names[] = {"moveUpButton", "moveDownButton", "moveTopButton", "moveEndButton"};
    const ArrowButton::Shape shapes[] = {ArrowButton::Up, ArrowButton::Down, ArrowButton::Top,
                                         ArrowButton::End};
    QWidget *buttons = new QWidget;
    buttons->setObjectName(QLatin1String("entryButtons"));
    QHBoxLayout *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (int i = 0; i < m_moves.size(); ++i) {
        layout->addWidget(new ArrowButton(names[i], m_moves.at(i).action, shapes[i]));
    }
    layout->addSpacing(8);
    layout->addWidget(new ArrowButton("removeButton", m_remove, ArrowButton::Cross));
    layout->addWidget(new ArrowButton("addToListButton", m_add, ArrowButton::Plus));
    layout->addStretch();
    return buttons;
}

void EntryActions::Retranslate()
{
    const char *const moves[] = {"IDS_EDIT_UP", "IDS_EDIT_DOWN", "IDS_EDIT_TOP", "IDS_EDIT_END"};
    for (int i = 0; i < m_moves.size(); ++i) {
        SetText(m_moves.at(i).action, moves[i]);
    }
    SetText(m_connect, "IDS_EDIT_CONNECT");
    SetText(m_place, "IDS_EDIT_TO_PLACE");
    SetText(m_remove, "IDS_EDIT_REMOVE");
    SetText(m_add, "IDS_UNLISTED_ADD");
    m_list->setAccessibleDescription(QString());
    if (m_placeDialog) {
        m_placeDialog->Retranslate();
    }
    Update();
}

void EntryActions::Show(const Overview &overview)
{
    m_overview = overview;
    Update();
}

void EntryActions::SetText(QAction *action, const char *id)
{
    const QString text = DashboardText(id);
    action->setText(text);
    action->setIconText(WithoutMnemonic(text));
}

void EntryActions::SetHelp(QAction *action, const QString &obstacle)
{
    const QString caption = action->iconText();
    action->setEnabled(obstacle.isNull());
    action->setToolTip((obstacle.isNull() ? caption : obstacle).toHtmlEscaped());
    action->setWhatsThis(obstacle.isNull() ? caption : obstacle);
}

QString EntryActions::SelectionObstacle() const
{
    QString obstacle = ListKeeperText::Reason(*m_keeper, m_keeper->EditObstacle());
    const bool isNone = m_list->Selected().isEmpty();
    return obstacle.isNull() && isNone ? DashboardText("IDS_EDIT_NONE") : obstacle;
}

QString EntryActions::MoveObstacle(const MoveAction &move) const
{
    QString obstacle = SelectionObstacle();
    const QList<PriorityList> list = m_keeper->Entries();
    const QList<int> places = ListEdit::PlacesOf(m_list->Selected(), list);
    if (!obstacle.isNull() || places.isEmpty()) {
        return obstacle;
    }
    if (move.needsNeighbours && m_list->IsSearched()) {
        return DashboardText("IDS_FIND_MOVES");
    }
    const bool isThere = ListEdit::IsInPlace(list, places, move.goal(places, list));
    return isThere ? DashboardText("IDS_EDIT_IN_PLACE") : QString();
}

QString EntryActions::PlaceObstacle() const
{
    const QString obstacle = SelectionObstacle();
    const bool isAll = m_list->Selected().size() >= m_keeper->Entries().size();
    return obstacle.isNull() && isAll ? DashboardText("IDS_EDIT_IN_PLACE") : obstacle;
}

bool EntryActions::CanConnect() const
{
    const Overview::Entry *entry = m_list->Current(m_overview);
    return entry && m_overview.connections.AreKnown() && !entry->isRepeated &&
           (entry->stage == StageNotKnown || entry->stage == StageDisconnecting);
}

void EntryActions::Update()
{
    for (const MoveAction &move : std::as_const(m_moves)) {
        SetHelp(move.action, MoveObstacle(move));
    }
    SetHelp(m_place, PlaceObstacle());
    SetHelp(m_remove, SelectionObstacle());
    const QString obstacle = ListKeeperText::Reason(*m_keeper, m_keeper->EditObstacle());
    const bool isNone = m_list->SelectedUnlisted().isEmpty();
    SetHelp(m_add, obstacle.isNull() && isNone ? DashboardText("IDS_UNLISTED_NONE") : obstacle);
    m_connect->setEnabled(CanConnect());
    m_list->SetDraggable(m_keeper->EditObstacle() == ListKeeper::NoObstacle && !m_list->IsSearched());
}

void EntryActions::OpenMenu(const QPoint &place)
{
    m_menu->popup(place);
}

void EntryActions::Connect()
{
    if (CanConnect()) {
        const Overview::Entry *entry = m_list->Current(m_overview);
        emit ConnectWanted(entry->entry.name, entry->profile.id);
    }
}

void EntryActions::Place(const QList<ListedEntry> &entries, const QList<PriorityList> &unlisted,
                         const Goal &goal)
{
    QList<ListedEntry> placed;
    const bool isMoveOfOne = entries.size() == 1 && unlisted.isEmpty();
    Edit(entries, isMoveOfOne, [&](const QList<int> &places, const QList<PriorityList> &list) {
        const int before = goal(places, list);
        if (before < 0) {
            return list;
        }
        const int first = ListEdit::PlaceOfMoved(places, before, static_cast<int>(list.size()));
        const int behind = first + static_cast<int>(places.size());
        const QList<PriorityList> changed =
            ListEdit::Added(ListEdit::Moved(list, places, before), unlisted, behind);
        const auto added = changed.size() - list.size();
        placed = ListEdit::Numbered(changed).mid(first, places.size() + added);
        return changed;
    });
    m_list->Select(placed);
}

void EntryActions::OpenPlace()
{
    if (!m_place->isEnabled() || m_placeDialog) {
        return;
    }
    const QList<ListedEntry> entries = m_list->Selected();
    m_placeDialog = new PlaceDialog(entries, m_keeper, m_window);
    m_placeDialog->setModal(true);
    connect(m_placeDialog.data(), &PlaceDialog::Chosen, this, [this, entries](int place) {
        Place(entries, {}, [place](const QList<int> &places, const QList<PriorityList> &list) {
            return ListEdit::BeforeForPlace(places, place, static_cast<int>(list.size()));
        });
    });
    m_placeDialog->show();
}

void EntryActions::Add()
{
    Place({}, m_list->SelectedUnlisted(), End);
}

void EntryActions::Remove()
{
    Edit(m_list->Selected(), false, [](const QList<int> &places, const QList<PriorityList> &list) {
        return ListEdit::Removed(list, places);
    });
}

/** The list may be another one by now: the network that stood at that row tells the place. */
void EntryActions::Drop(int row)
{
    const QList<ListedEntry> rows = m_list->Listed();
    const bool isEnd = row >= rows.size();
    const ListedEntry target = rows.value(row);
    const Goal goal = [isEnd, target](const QList<int> &, const QList<PriorityList> &list) {
        return isEnd ? static_cast<int>(list.size()) : ListEdit::PlaceOf(target, list);
    };
    Place(m_list->Selected(), m_list->SelectedUnlisted(), goal);
}

void EntryActions::Edit(const QList<ListedEntry> &entries, bool isMoveOfOne, const Change &change)
{
    ListState before;
    ListState after;
    QList<PriorityList> missing;
    const ListKeeper::Obstacle problem = m_keeper->Edit(
        [&](const QList<PriorityList> &list) {
            const QList<int> places = ListEdit::PlacesOf(entries, list);
            missing = MissingIn(list, entries);
            before.entries = list;
            const bool isGone = places.isEmpty() && !entries.isEmpty();
            after.entries = isGone ? list : change(places, list);
            return after.entries;
        },
        isMoveOfOne ? &entries.first().entry : nullptr);
    if (problem != ListKeeper::NoObstacle) {
        DialogParts::Tell(ListKeeperText::Reason(*m_keeper, problem));
        return;
    }
    if (!missing.isEmpty()) {
        DialogParts::Tell(DashboardText("IDS_EDIT_GONE").arg(ListChangeText::Names(missing)));
    }
    if (!ListEntries::IsSame(before.entries, after.entries)) {
        after.moved = isMoveOfOne ? ListEdit::PlaceOf(entries.first().entry, after.entries) : -1;
        Announce(before, after);
    }
}

/** Tells screen readers, which don't see where a row has gone. */
void EntryActions::Announce(const ListState &before, const ListState &after)
{
    const QString what = ListChangeText::DescribeStep(before, after);
    const QList<ListDifference::Move> moves = ListHistory::Moves(before, after);
    m_list->Announce(moves.size() == 1 ? DashboardText("IDS_EDIT_PLACE")
                                             .arg(what, DashboardNumber(moves.first().to + 1),
                                                  DashboardNumber(after.entries.size()))
                                       : what);
}
