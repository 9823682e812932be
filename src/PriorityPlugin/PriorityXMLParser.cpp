#include "PriorityXMLParser.h"

#include "FunctonTrick.h"

#include <CommonUtils.h>
#include <ToolkitCompat.h>
#include <ZeltSdk.h>

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPair>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <QtDebug>

namespace
{

#define SOURCE_PATH "../../src/PriorityPlugin/PriorityXMLParser.cpp"
// For formats: Qt converts each text that is put into one, and not what stands in it already.
#define BUILD_TIME_AND_SOURCE __TIME__ ": " SOURCE_PATH ": "

const char sourcePath[] = SOURCE_PATH;

const int switchMissing = -1;
const int usualDocumentSize = 4096;

/**
 * The reader takes pieces of this size from a device and decodes each as a whole, so that a byte that is no
 * text costs the entries of its piece. What fits into one piece is handed over at once, which is faster.
 */
const qint64 readerPiece = 8192;

QString SourcePath()
{
    static const QString path = QLatin1String(sourcePath);
    return path;
}

void TraceOperation(const char *function, const char *operation, const PriorityList &entry)
{
    qDebug("%s : %s: %s: %s %s,%s", TraceLine::CurrentTime().constData(), sourcePath, function, operation,
           entry.name.toLocal8Bit().constData(), entry.type.toLocal8Bit().constData());
}

void TraceFileMissing(const QString &path)
{
    qDebug("File %s does not exist", path.toLocal8Bit().constData());
}

void TraceFileNotOpenable()
{
    qDebug("Error open file: ");
}

void TraceReadError(const char *function)
{
    qDebug("%s: %s: Read Error: n", sourcePath, function);
}

void TraceSwitch(const char *event)
{
    qDebug("%s : %s: %s: %s", TraceLine::CurrentTime().constData(), sourcePath, "GetEnable3GValue", event);
}

bool IsSameEntry(const PriorityList &left, const PriorityList &right)
{
    return left.name == right.name && left.type == right.type;
}

typedef QPair<QString, QString> EntryKey;

EntryKey KeyOf(const PriorityList &entry)
{
    return EntryKey(entry.name, entry.type);
}

/** Whether a unit is an XML character by itself. */
bool IsXmlCharacter(ushort unit)
{
    return unit >= 0x20 ? unit < 0xd800 || (unit >= 0xe000 && unit < 0xfffe)
                        : unit == '\t' || unit == '\n' || unit == '\r';
}

QString StorableText(const QString &text)
{
    QString storable = text;
    const ushort *units = text.utf16();
    const int size = text.size();
    for (int i = 0; i < size; ++i) {
        if (IsXmlCharacter(units[i])) {
            continue;
        }
        if (QChar(units[i]).isHighSurrogate() && i + 1 < size && QChar(units[i + 1]).isLowSurrogate()) {
            ++i;
        } else {
            storable[i] = QChar(QChar::ReplacementCharacter);
        }
    }
    return storable;
}

PriorityList StorableEntry(const PriorityList &entry)
{
    PriorityList storable;
    storable.name = StorableText(entry.name);
    storable.type = StorableText(entry.type);
    return storable;
}

QList<PriorityList> StorableEntries(const QList<PriorityList> &entries)
{
    QList<PriorityList> storable;
    storable.reserve(entries.size());
    for (int i = 0; i < entries.size(); ++i) {
        storable.append(StorableEntry(entries.at(i)));
    }
    return storable;
}

QByteArray PriorityDocument(const QList<PriorityList> &list)
{
    const QString item = QLatin1String("item");
    const QString name = QLatin1String("name");
    const QString type = QLatin1String("type");
    QByteArray document;
    document.reserve(usualDocumentSize);
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("zeltdoc"));
    writer.writeAttribute(type, QLatin1String("profile"));
    writer.writeStartElement(QLatin1String("profile"));
    for (int i = 0; i < list.size(); ++i) {
        writer.writeStartElement(item);
        writer.writeAttribute(name, StorableText(list.at(i).name));
        writer.writeAttribute(type, StorableText(list.at(i).type));
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeEndDocument();
    return document;
}

/** Never a pipe or a device, which would hold up the reader or have no end. */
bool OpenToRead(QFile &file, const QFileInfo &known, QIODevice::OpenMode mode)
{
    return known.isFile() && file.open(mode);
}

/** All of file, which may have grown since it was looked at. */
QByteArray ReadToItsEnd(QFile &file, const QFileInfo &known)
{
    QByteArray bytes = file.read(known.size() + 1);
    if (bytes.size() > known.size()) {
        bytes += file.readAll();
    }
    return bytes;
}

bool WriteToItsEnd(QFile &file, const QByteArray &bytes)
{
    const bool written = file.write(bytes) == bytes.size() && file.flush();
    file.close();
    return written && file.error() == QFile::NoError;
}

bool OpenEmpty(QFile &file)
{
    return file.open(QIODevice::ReadWrite | QIODevice::Text | QIODevice::Truncate | QIODevice::Unbuffered);
}

bool OpenAnew(QFile &file)
{
    // A directory without write permission keeps what stands in the file's place from being deleted.
    const QFileInfo inItsPlace(file);
    if (inItsPlace.exists() && !inItsPlace.isFile()) {
        return false;
    }
    return OpenEmpty(file);
}

/** What stands in a file, to be put back when its replacement can't be written. */
class PreviousContent
{
public:
    /** Opens file to read it, and closes it. */
    PreviousContent(QFile &file, const QFileInfo &known) : m_known(false)
    {
        if (OpenToRead(file, known, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            m_bytes = ReadToItsEnd(file, known);
            m_known = file.error() == QFile::NoError;
            file.close();
        }
    }

    void PutBack(QFile &file) const
    {
        if (!m_known) {
            file.remove();
        } else if (OpenAnew(file)) {
            WriteToItsEnd(file, m_bytes);
        }
    }

private:
    QByteArray m_bytes;
    bool m_known;
};

int ReadSwitch(const QString &path)
{
    const QFileInfo known(path);
    if (!known.exists()) {
        TraceFileMissing(path);
        return switchMissing;
    }
    QFile file(path);
    if (!OpenToRead(file, known, QIODevice::ReadOnly | QIODevice::Text)) {
        TraceFileNotOpenable();
        return switchMissing;
    }
    int value = switchMissing;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.hasError()) {
            TraceReadError("GetEnable3GValue");
            break;
        }
        if (reader.isStartElement() && reader.name() == QLatin1String("item") &&
            reader.attributes().value(QLatin1String("name")) == QLatin1String("enable3G")) {
            value = reader.attributes().value(QLatin1String("value")).toString().toInt();
        }
    }
    return value;
}

} // namespace

PriorityXMLParser *PriorityXMLParser::_pPriorityInstance_ = nullptr;
bool PriorityXMLParser::_bDestoryed_ = false;

PriorityXMLParser::PriorityXMLParser() = default;

PriorityXMLParser *PriorityXMLParser::GetInstance()
{
    qDebug(BUILD_TIME_AND_SOURCE "GetInstance: Entered");
    if (_bDestoryed_) {
        return nullptr;
    }
    if (!_pPriorityInstance_) {
        _pPriorityInstance_ = new PriorityXMLParser;
    }
    return _pPriorityInstance_;
}

void PriorityXMLParser::Destory()
{
    if (_pPriorityInstance_) {
        delete _pPriorityInstance_;
        _pPriorityInstance_ = nullptr;
        _bDestoryed_ = true;
    }
}

QString PriorityXMLParser::getUserDataDirectory()
{
    QString directory;
    unsigned short *path = nullptr;
    qDebug(BUILD_TIME_AND_SOURCE "getUserDataDirectory before calling ZELT_GetUserDataDirectory()");
    const long status = ZELT_GetUserDataDirectory(&path);
    qDebug(BUILD_TIME_AND_SOURCE "getUserDataDirectory after calling ZELT_GetUserDataDirectory(), retVal=%ld",
           status);
    if (status == 0 && path) {
        directory = ToolkitCompat::FromUtf16(path);
    }
    delete[] path;
    return directory;
}

QString PriorityXMLParser::PriorityFilePath()
{
    QString path = getUserDataDirectory();
    path += QLatin1String("Priority.xml");
    return path;
}

int PriorityXMLParser::GetPriorityList(QList<PriorityList> *out)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("GetPriorityList"), "");
    const QString path = PriorityFilePath();
    const QFileInfo known(path);
    // What is a file exists. Asked in this order, Qt looks at it once and not twice.
    if (!out || !(known.isFile() || known.exists())) {
        TraceFileMissing(path);
        return FileMissing;
    }
    QFile file(path);
    if (!OpenToRead(file, known, QIODevice::ReadOnly | QIODevice::Text | QIODevice::Unbuffered)) {
        TraceFileNotOpenable();
        return FileNotOpenable;
    }
    QXmlStreamReader reader;
    if (known.size() <= readerPiece) {
        reader.addData(ReadToItsEnd(file, known));
    } else {
        reader.setDevice(&file);
    }
    return ReadPriorityItem(reader, out);
}

int PriorityXMLParser::ReadPriorityItem(QXmlStreamReader &reader, QList<PriorityList> *out)
{
    // Nearly all entries are of one type; they share its text.
    QString lastType;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.hasError()) {
            TraceReadError("ReadPriorityItem");
            return ReadError;
        }
        if (reader.isStartElement() && reader.name() == QLatin1String("item")) {
            const QXmlStreamAttributes attributes = reader.attributes();
            const auto type = attributes.value(QLatin1String("type"));
            if (type != lastType) {
                lastType = type.toString();
            }
            out->append(PriorityList());
            out->last().name = attributes.value(QLatin1String("name")).toString();
            out->last().type = lastType;
        }
    }
    return Success;
}

int PriorityXMLParser::SavePriorityList(QList<PriorityList> &list)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("SavePriorityList"), "");
    const QString path = PriorityFilePath();
    const QByteArray document = PriorityDocument(list);
    const QFileInfo known(path);
    QFile file(path);
    const PreviousContent previous(file, known);
    const bool removed = known.exists() && file.remove();
    if (!(removed ? OpenEmpty(file) : OpenAnew(file))) {
        TraceFileNotOpenable();
        return FileNotOpenable;
    }
    if (!WriteToItsEnd(file, document)) {
        TraceFileNotOpenable();
        previous.PutBack(file);
        return FileNotOpenable;
    }
    return Success;
}

int PriorityXMLParser::FindIndex(QList<PriorityList> &list, PriorityList &entry)
{
    for (int i = 0; i < list.size(); ++i) {
        if (IsSameEntry(list.at(i), entry)) {
            return i;
        }
    }
    return -1;
}

void PriorityXMLParser::DeleteIfExist(QList<PriorityList> &list, PriorityList &entry)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("DeleteIfExist"), "");
    const int index = FindIndex(list, entry);
    if (index >= 0) {
        list.removeAt(index);
    }
}

void PriorityXMLParser::DeleteIfExist(QList<PriorityList> &list, QList<PriorityList> &removeList)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("DeleteIfExist"), "DELETE-LIST");
    QHash<EntryKey, int> toDelete;
    for (int i = 0; i < removeList.size(); ++i) {
        const CFunctonTrick each(SourcePath(), QLatin1String("DeleteIfExist"), "");
        ++toDelete[KeyOf(removeList.at(i))];
    }
    QList<PriorityList> kept;
    kept.reserve(list.size());
    for (int i = 0; i < list.size(); ++i) {
        const QHash<EntryKey, int>::iterator left = toDelete.find(KeyOf(list.at(i)));
        if (left != toDelete.end() && *left > 0) {
            --*left;
        } else {
            kept.append(list.at(i));
        }
    }
    list = kept;
}

int PriorityXMLParser::ReadForChange(QList<PriorityList> *list)
{
    list->clear();
    const int result = GetPriorityList(list);
    *list = StorableEntries(*list);
    return result;
}

int PriorityXMLParser::AddTop(PriorityList &entry, QList<PriorityList> *list)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("AddTop"), "");
    qDebug("%s : %s: %s, name:%s,type:%s", TraceLine::CurrentTime().constData(), sourcePath, "AddTop",
           entry.name.toLocal8Bit().constData(), entry.type.toLocal8Bit().constData());
    PriorityList added = StorableEntry(entry);
    QList<PriorityList> discarded;
    QList<PriorityList> &working = list ? *list : discarded;
    if (ReadForChange(&working) == Success) {
        DeleteIfExist(working, added);
    }
    working.prepend(added);
    SavePriorityList(working);
    return 0;
}

int PriorityXMLParser::AddTail(PriorityList &entry, QList<PriorityList> *list)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("AddTail"), "");
    TraceOperation("AddTail", "AddTail", entry);
    PriorityList added = StorableEntry(entry);
    QList<PriorityList> discarded;
    QList<PriorityList> &working = list ? *list : discarded;
    if (ReadForChange(&working) == Success) {
        DeleteIfExist(working, added);
    }
    working.append(added);
    SavePriorityList(working);
    return working.size() - 1;
}

int PriorityXMLParser::MoveUp(PriorityList &entry, QList<PriorityList> *list)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("MoveUp"), "");
    TraceOperation("MoveUp", "MoveUp", entry);
    PriorityList moved = StorableEntry(entry);
    QList<PriorityList> discarded;
    QList<PriorityList> &working = list ? *list : discarded;
    if (ReadForChange(&working) != Success) {
        return -2;
    }
    const int index = FindIndex(working, moved);
    if (index > 0) {
        working.move(index, index - 1);
    }
    SavePriorityList(working);
    return index - 1;
}

int PriorityXMLParser::MoveDown(PriorityList &entry, QList<PriorityList> *list)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("MoveDown"), "");
    TraceOperation("MoveDown", "MoveDown", entry);
    PriorityList moved = StorableEntry(entry);
    QList<PriorityList> discarded;
    QList<PriorityList> &working = list ? *list : discarded;
    if (ReadForChange(&working) != Success) {
        return 0;
    }
    const int index = FindIndex(working, moved);
    if (index >= 0 && index < working.size() - 1) {
        working.move(index, index + 1);
    }
    SavePriorityList(working);
    return index + 1;
}

int PriorityXMLParser::AddList(QList<PriorityList> &entries, int, QList<PriorityList> *list)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("AddList"), "");
    QList<PriorityList> added = StorableEntries(entries);
    QList<PriorityList> discarded;
    QList<PriorityList> &working = list ? *list : discarded;
    if (ReadForChange(&working) == Success) {
        DeleteIfExist(working, added);
    }
    working += added;
    SavePriorityList(working);
    return added.isEmpty() ? -1 : FindIndex(working, added.first());
}

int PriorityXMLParser::GetEnable3GValue()
{
    TraceSwitch("Entered");
    const int value =
        ReadSwitch(CommonUtils::GetPluginLibraryPath() + QLatin1String("/plugins/PriorityPlugin/config.xml"));
    TraceSwitch("Exit");
    return value;
}
