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
           left.Target() == right.Target();
}

void RequireSound(const ListHistory &history)
{
    using FuzzSupport::Require;
    const int count = history.States().size();
    Require(count <= ListHistory::Limit, "no more states are kept than can be");
    Require(count > 0 ? history.Position() >= 0 && history.Position() < count : history.Position() == -1,
            "the state in force is one of the states");
    Require(history.Target() >= -1 && history.Target() < count, "the target is one of the states");
    Require(history.CanUndo() == (history.Position() > 0),
            "what is before the state in force can be undone to");
    Require(history.CanRedo() == (history.Position() < count - 1),
            "what is behind the state in force can be redone");
}

void TryToRecord(ListHistory *history, const ListState &state)
{
    using FuzzSupport::Require;
    QList<ListState> expected = history->States().mid(0, history->Position() + 1);
    expected.append(state);
    history->Record(state);
    Require(history->States() == expected.mid(qMax(0, expected.size() - ListHistory::Limit)),
            "what was undone goes, and of too many states the oldest; no other does");
    Require(history->Position() == history->States().size() - 1, "a new state is in force");
    Require(history->Target() == -1, "a new state ends the way to another");
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

/** Any changes, as the input says. */
void Change(ListHistory *history, InputReader *input)
{
    qint64 seconds = 1772355600;
    const int most = 4 * ListHistory::Limit;
    for (int changes = 0; changes < most && !input->AtEnd(); ++changes) {
        const std::uint8_t kind = input->Byte();
        const int place = int(kind >> 2) - 2;
        switch (kind & 3) {
        case 0: {
            ListState state;
            state.time = QDateTime::fromMSecsSinceEpoch(++seconds * 1000).toUTC();
            for (int i = kind >> 5; i > 0 && !input->AtEnd(); --i) {
                state.entries.append(input->Entry());
            }
            state.entries = ListEntries::Storable(state.entries);
            TryToRecord(history, state);
            break;
        }
        case 1:
            history->GoTo(place);
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
        Require(!file.Fault().Text().isEmpty(), "a fault is told in words");
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
