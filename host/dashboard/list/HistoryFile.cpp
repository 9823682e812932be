#include "HistoryFile.h"

#include "DamagedFile.h"
#include "ListEdit.h"
#include <StrictXmlReader.h>

#include <PrivateFile.h>

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPair>
#include <QStringList>
#include <QXmlStreamWriter>

#include <sys/stat.h>

namespace
{

const char version[] = "2";
const char firstVersion[] = "1";
const char passedBy[] = "true";
const mode_t ownerOnlyDirectory = S_IRWXU;

/** The entries of all states, each once, with their places. */
class EntryTable
{
public:
    explicit EntryTable(const QList<ListState> &states)
    {
        for (int i = 0; i < states.size(); ++i) {
            AddOrder(states.at(i).entries);
        }
    }

    const QList<PriorityList> &Entries() const { return m_entries; }
    QByteArray Order(int state) const { return m_orders.at(state); }
    int Place(const PriorityList &entry) const { return m_places.value(qMakePair(entry.name, entry.type)); }

private:
    void AddOrder(const QList<PriorityList> &entries)
    {
        QByteArray order;
        for (int i = 0; i < entries.size(); ++i) {
            order += m_numbers.at(PlaceOf(entries.at(i)));
        }
        order.chop(1);
        m_orders.append(order);
    }

    int PlaceOf(const PriorityList &entry)
    {
        const QPair<QString, QString> key(entry.name, entry.type);
        const QHash<QPair<QString, QString>, int>::const_iterator known = m_places.constFind(key);
        if (known != m_places.constEnd()) {
            return known.value();
        }
        m_places.insert(key, m_entries.size());
        m_numbers.append(QByteArray::number(m_entries.size()) + ' ');
        m_entries.append(entry);
        return m_entries.size() - 1;
    }

    QList<PriorityList> m_entries;
    /** Their places as text: each stands in nearly every state. */
    QList<QByteArray> m_numbers;
    QList<QByteArray> m_orders;
    QHash<QPair<QString, QString>, int> m_places;
};

/** The number that text is, when it is one of 0 to count - 1; otherwise -1. */
int PlaceIn(const QString &text, int count)
{
    bool isNumber = false;
    const int place = text.toInt(&isNumber);
    return isNumber && place >= 0 && place < count ? place : -1;
}

QString TimeText(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODate);
}

/** The moment that TimeText gives back, in whole seconds; none for years that it can't tell. */
QDateTime TimeOf(const QString &text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return QDateTime::fromString(TimeText(time), Qt::ISODate);
}

QList<PriorityList> ReadEntries(StrictXmlReader *reader)
{
    QList<PriorityList> entries;
    if (reader->NextElement("entries")) {
        while (reader->NextElement("item")) {
            PriorityList entry;
            entry.name = reader->Value("name");
            entry.type = reader->Value("type");
            reader->Leave();
            entries.append(entry);
        }
    }
    return entries;
}

QDateTime ReadTime(StrictXmlReader *reader, const char *attribute)
{
    QDateTime time = TimeOf(reader->Value(attribute));
    if (!time.isValid()) {
        reader->Refuse(FileFault::WrongValue, QLatin1String(attribute));
    }
    return time;
}

QDateTime ReadTimeIfThere(StrictXmlReader *reader, const char *attribute)
{
    return reader->Has(attribute) ? ReadTime(reader, attribute) : QDateTime();
}

void ReadState(StrictXmlReader *reader, const QList<PriorityList> &table, QList<ListState> *states)
{
    ListState state;
    state.time = ReadTime(reader, "time");
    state.backTo = ReadTimeIfThere(reader, "back");
    state.isPassedBy = reader->Has("passed");
    if (state.isPassedBy && reader->Value("passed") != QLatin1String(passedBy)) {
        reader->Refuse(FileFault::WrongValue, QLatin1String("passed"));
    }
    const QString order = reader->Value("order");
    const QStringList places = order.isEmpty() ? QStringList() : order.split(QLatin1Char(' '));
    for (int i = 0; i < places.size() && !reader->HasFault(); ++i) {
        const int place = PlaceIn(places.at(i), table.size());
        if (place < 0) {
            reader->Refuse(FileFault::WrongValue, QLatin1String("order"));
        } else {
            state.entries.append(table.at(place));
        }
    }
    if (reader->Has("moved")) {
        const int place = PlaceIn(reader->Value("moved"), table.size());
        state.moved = place < 0 ? -1 : ListEdit::PlaceOf(table.at(place), state.entries);
        if (state.moved < 0) {
            reader->Refuse(FileFault::WrongValue, QLatin1String("moved"));
        }
    }
    if (states->size() == ListHistory::Most) {
        reader->Refuse(FileFault::TooMany, reader->Name());
    }
    reader->Leave();
    states->append(state);
}

} // namespace

bool HistoryFile::Stamp::operator==(const Stamp &other) const
{
    return device == other.device && node == other.node && size == other.size && seconds == other.seconds &&
           nanoseconds == other.nanoseconds;
}

HistoryFile::HistoryFile(const QString &userData)
    : m_directory(userData.isEmpty() ? QString() : userData + QLatin1String("history")), m_wasLoaded(false),
      m_trouble(NoTrouble)
{
}

QString HistoryFile::Path() const
{
    return m_directory + QLatin1String("/states.xml");
}

bool HistoryFile::Prepare() const
{
    const QByteArray directory = QFile::encodeName(m_directory);
    struct stat status;
    return !m_directory.isEmpty() && (mkdir(directory.constData(), ownerOnlyDirectory) == 0 ||
                                      (stat(directory.constData(), &status) == 0 && S_ISDIR(status.st_mode)));
}

HistoryFile::Stamp HistoryFile::StampOnDisk() const
{
    Stamp stamp;
    struct stat status;
    if (!m_directory.isEmpty() && lstat(QFile::encodeName(Path()).constData(), &status) == 0) {
        stamp.device = status.st_dev;
        stamp.node = status.st_ino;
        stamp.size = status.st_size;
        stamp.seconds = status.st_mtim.tv_sec;
        stamp.nanoseconds = status.st_mtim.tv_nsec;
    }
    return stamp;
}

bool HistoryFile::HasChanged() const
{
    return !m_wasLoaded || !(StampOnDisk() == m_stamp);
}

bool HistoryFile::Load(ListHistory *history)
{
    if (!HasChanged()) {
        return m_trouble != Damaged && m_trouble != NotReadable;
    }
    const Stamp stamp = StampOnDisk();
    QByteArray bytes;
    unsigned int permissions = 0;
    ListHistory loaded;
    m_fault = FileFault();
    m_trouble = NoTrouble;
    const bool canBeThere = !m_directory.isEmpty() && QFileInfo(m_directory).isDir();
    switch (canBeThere ? PrivateFile::Read(Path(), &bytes, largestFile, &permissions)
                       : PrivateFile::OutcomeMissing) {
    case PrivateFile::OutcomeMissing:
        break;
    case PrivateFile::OutcomeDone:
        m_fault = Parse(bytes, &loaded);
        m_trouble = m_fault.kind == FileFault::None ? NoTrouble : Damaged;
        break;
    default:
        m_trouble = NotReadable;
        break;
    }
    m_stamp = stamp;
    m_wasLoaded = true;
    if (m_trouble != NoTrouble) {
        return false;
    }
    *history = loaded;
    return true;
}

bool HistoryFile::Save(ListHistory *history)
{
    QByteArray document = Document(*history);
    while (document.size() > largestFile && history->Shorten()) {
        document = Document(*history);
    }
    const bool isSaved = !m_directory.isEmpty() && document.size() <= largestFile &&
                         PrivateFile::Replace(Path(), document) == PrivateFile::OutcomeDone;
    m_trouble = isSaved ? NoTrouble : NotWritable;
    m_stamp = StampOnDisk();
    m_wasLoaded = true;
    return isSaved;
}

QString HistoryFile::SetAside()
{
    QString path = DamagedFile::FreePath(Path());
    // Unlike the system's, this renaming puts nothing in the place of another file.
    if (path.isNull() || !QFile::rename(Path(), path)) {
        return QString();
    }
    m_wasLoaded = false;
    return path;
}

QByteArray HistoryFile::Document(const ListHistory &history)
{
    const QList<ListState> &states = history.States();
    const EntryTable table(states);
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("listhistory"));
    writer.writeAttribute(QLatin1String("version"), QLatin1String(version));
    writer.writeAttribute(QLatin1String("current"), QString::number(history.Position()));
    if (history.CameBack().isValid()) {
        writer.writeAttribute(QLatin1String("since"), TimeText(history.CameBack()));
    }
    if (history.Target() >= 0) {
        writer.writeAttribute(QLatin1String("target"), QString::number(history.Target()));
    }
    writer.writeStartElement(QLatin1String("entries"));
    for (int i = 0; i < table.Entries().size(); ++i) {
        writer.writeEmptyElement(QLatin1String("item"));
        writer.writeAttribute(QLatin1String("name"), table.Entries().at(i).name);
        writer.writeAttribute(QLatin1String("type"), table.Entries().at(i).type);
    }
    writer.writeEndElement();
    writer.writeStartElement(QLatin1String("states"));
    for (int i = 0; i < states.size(); ++i) {
        const ListState &state = states.at(i);
        writer.writeEmptyElement(QLatin1String("state"));
        writer.writeAttribute(QLatin1String("time"), TimeText(state.time));
        if (state.backTo.isValid()) {
            writer.writeAttribute(QLatin1String("back"), TimeText(state.backTo));
        }
        if (state.isPassedBy) {
            writer.writeAttribute(QLatin1String("passed"), QLatin1String(passedBy));
        }
        if (state.moved >= 0) {
            writer.writeAttribute(QLatin1String("moved"),
                                  QString::number(table.Place(state.entries.at(state.moved))));
        }
        writer.writeAttribute(QLatin1String("order"), QString::fromLatin1(table.Order(i)));
    }
    writer.writeEndDocument();
    return document;
}

FileFault HistoryFile::Parse(const QByteArray &bytes, ListHistory *history)
{
    StrictXmlReader reader(bytes);
    QList<ListState> states;
    int position = -1;
    int target = -1;
    QDateTime since;
    if (reader.NextElement("listhistory")) {
        const QString found = reader.Value("version");
        if (found != QLatin1String(version) && found != QLatin1String(firstVersion)) {
            reader.Refuse(FileFault::WrongValue, QLatin1String("version"));
        }
        const qint64 line = reader.Line();
        position = PlaceIn(reader.Value("current"), ListHistory::Most);
        since = ReadTimeIfThere(&reader, "since");
        const bool hasTarget = reader.Has("target");
        target = hasTarget ? PlaceIn(reader.Value("target"), ListHistory::Most) : -1;
        const QList<PriorityList> table = ReadEntries(&reader);
        if (reader.NextElement("states")) {
            while (reader.NextElement("state")) {
                ReadState(&reader, table, &states);
            }
        }
        if (position < 0 || position >= states.size() || states.at(position).isPassedBy) {
            reader.RefuseLine(line, FileFault::WrongValue, QLatin1String("current"));
        }
        if (hasTarget && (target < 0 || target >= states.size() || states.at(target).isPassedBy)) {
            reader.RefuseLine(line, FileFault::WrongValue, QLatin1String("target"));
        }
        reader.Leave();
        reader.Leave();
    }
    if (!reader.HasFault()) {
        *history = ListHistory(states, position, since);
        history->SetTarget(target);
    }
    return reader.Fault();
}
