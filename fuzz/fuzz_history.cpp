#include "FuzzSupport.h"

#include <HistoryFile.h>
#include <ListEntries.h>
#include <ListHistory.h>

#include <QDir>
#include <QFile>

namespace
{

const char path[] = "history/states.xml";

bool IsSame(const ListHistory &left, const ListHistory &right)
{
    return left.States() == right.States() && left.Position() == right.Position() &&
           left.Target() == right.Target() && left.CameBack() == right.CameBack();
}

bool CanBeInForce(const ListHistory &history, int place)
{
    return place >= 0 && place < history.States().size() && !history.States().at(place).isPassedBy;
}

void RequireSound(const ListHistory &history)
{
    using FuzzSupport::Require;
    const int count = history.States().size();
    Require(count <= ListHistory::Most, "no more states are kept than can be");
    Require(count > 0 ? CanBeInForce(history, history.Position()) : history.Position() == -1,
            "the state in force is one of the states that are not passed by");
    Require(history.Target() == -1 || CanBeInForce(history, history.Target()),
            "so is the target, where there is one");
    int before = 0;
    int behind = 0;
    for (int i = 0; i < count; ++i) {
        before += i < history.Position() && CanBeInForce(history, i) ? 1 : 0;
        behind += i > history.Position() && CanBeInForce(history, i) ? 1 : 0;
    }
    Require((history.UndoPlace() >= 0) == (before > 0), "what is before the state in force can be undone to");
    Require((history.RedoPlace() >= 0) == (behind > 0), "what is behind the state in force can be redone");
}

/** The lists of the states that the limits spare, oldest first. */
QList<QList<PriorityList>> Spared(const QList<ListState> &states)
{
    QList<QList<PriorityList>> spared;
    QList<QDate> days;
    for (int i = states.size() - 1; i >= 0; --i) {
        const QDate day = states.at(i).time.toLocalTime().date();
        const bool isNewDay = !days.contains(day);
        if (isNewDay) {
            days.append(day);
        }
        if (states.size() - i <= ListHistory::Recent || (isNewDay && days.size() <= ListHistory::Days)) {
            spared.prepend(states.at(i).entries);
        }
    }
    return spared;
}

void TryToRecord(ListHistory *history, const ListState &state)
{
    using FuzzSupport::Require;
    QList<ListState> expected = history->States();
    if (history->RedoPlace() >= 0) {
        ListState back = expected.at(history->Position());
        back.time = history->CameBack().isValid() ? history->CameBack() : state.time;
        expected.append(back);
    }
    expected.append(state);
    history->Record(state);
    QList<QList<PriorityList>> kept;
    for (const ListState &one : history->States()) {
        kept.append(one.entries);
    }
    const QList<QList<PriorityList>> spared = Spared(expected);
    bool isSame = kept.size() == spared.size();
    for (int i = 0; isSame && i < kept.size(); ++i) {
        isSame = ListEntries::IsSame(kept.at(i), spared.at(i));
    }
    Require(isSame,
            "a change is added, after an undo behind what was gone back to; only the limits take any");
    Require(history->Position() == history->States().size() - 1, "a new state is in force");
    Require(history->RedoPlace() == -1, "nothing can be redone after a change");
    Require(history->Target() == -1, "a new state ends the way to another");
}

void TryToRecordJoined(ListHistory *history, const ListState &state)
{
    using FuzzSupport::Require;
    const ListHistory before = *history;
    history->RecordJoined(state, QDateTime());
    ListHistory recorded = before;
    recorded.Record(state);
    if (!IsSame(*history, recorded)) {
        const int count = before.States().size();
        Require(count > 1 && history->States().mid(0, count - 1) == before.States().mid(0, count - 1),
                "joining touches the newest state only");
    }
    Require(ListEntries::IsSame(history->Entries(), state.entries), "joined or not, the list is in force");
}

void TryToShorten(ListHistory *history)
{
    using FuzzSupport::Require;
    const ListHistory before = *history;
    const bool isShorter = history->Shorten();
    const int taken = before.States().size() - history->States().size();
    Require(isShorter == (before.Position() > 0) && isShorter == (taken > 0),
            "only what can be undone is given up");
    Require(history->States() == before.States().mid(taken), "the oldest states go");
    Require(history->Position() == before.Position() - taken, "the state in force stays in force");
}

/** Adds an entry, takes one away, or moves one by one place. */
void Edit(QList<PriorityList> *entries, InputReader *input)
{
    const std::uint8_t kind = input->Byte();
    const int place = entries->isEmpty() ? 0 : (kind >> 2) % entries->size();
    if (kind % 4 == 0 || entries->isEmpty()) {
        entries->insert(place, input->Entry());
    } else if (kind % 4 == 1) {
        entries->removeAt(place);
    } else if (place > 0) {
        entries->move(place, place - 1);
    }
}

/** Any changes, as the input says. */
void Change(ListHistory *history, InputReader *input)
{
    qint64 seconds = 1772355600;
    const int most = 4 * ListHistory::Most;
    for (int changes = 0; changes < most && !input->AtEnd(); ++changes) {
        const std::uint8_t kind = input->Byte();
        const int place = int(kind >> 2) - 2;
        switch (kind & 3) {
        case 0: {
            ListState state;
            // Days apart, now and then back in time.
            seconds += kind & 4 ? 86000 : kind & 8 ? -200000 : 1;
            state.time = QDateTime::fromMSecsSinceEpoch(seconds * 1000).toUTC();
            state.entries = history->Entries();
            for (int i = kind >> 5; i > 0 && !input->AtEnd(); --i) {
                Edit(&state.entries, input);
            }
            state.entries = ListEntries::Storable(state.entries);
            if (kind & 16) {
                TryToRecordJoined(history, state);
            } else {
                TryToRecord(history, state);
            }
            break;
        }
        case 1:
            history->GoTo(kind & 4   ? history->UndoPlace()
                          : kind & 8 ? history->RedoPlace()
                                     : place,
                          QDateTime::fromMSecsSinceEpoch(++seconds * 1000).toUTC());
            break;
        case 2:
            history->SetTarget(place);
            break;
        default:
            TryToShorten(history);
        }
        RequireSound(*history);
    }
}

} // namespace

// The first byte says how much of the input is the file; the rest is what happens to the list afterwards.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace FuzzSupport;
    if (size == 0) {
        return 0;
    }
    const QString userData = Path(QString());
    HistoryFile file(userData);
    Require(file.Prepare(), "there is a directory");
    const std::size_t fileSize = (size - 1) * data[0] / 255;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), int(fileSize));
    Write(path, bytes);

    ListHistory history;
    TryToRecord(&history, ListState());
    const ListHistory untouched = history;
    const bool isLoaded = file.Load(&history);
    Require(Read(path) == bytes, "reading changes nothing");
    if (isLoaded) {
        RequireSound(history);
        Require(!history.IsEmpty(), "a history without a state is none");
    } else {
        Require(file.LastTrouble() == HistoryFile::Damaged, "what is no history is damaged");
        Require(IsSame(history, untouched), "of a damaged file nothing is taken");
        Require(file.Fault().line >= 1 && file.Fault().line <= LineCount(bytes),
                "a fault is on one of the file's lines");
        history = ListHistory();
    }

    for (int i = 0; i < 2; ++i) {
        Require(file.Save(&history), "a history can be saved");
        if (!history.IsEmpty()) {
            HistoryFile other(userData);
            ListHistory again;
            Require(other.Load(&again), "what was saved can be read");
            Require(IsSame(again, history), "no state and no entry is lost or changed by saving");
        }
        InputReader input(data + 1 + fileSize, size - 1 - fileSize);
        Change(&history, &input);
    }
    Require(!QFile::exists(Path(QString::fromLatin1(path) + ".new")), "nothing is left beside the file");
    return 0;
}
