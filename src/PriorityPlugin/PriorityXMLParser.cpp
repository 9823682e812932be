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

const char sourcePath[] = "../../src/PriorityPlugin/PriorityXMLParser.cpp";
const char buildTime[] = __TIME__;

const int switchMissing = -1;

QString SourcePath()
{
    return QLatin1String(sourcePath);
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

bool IsXmlCharacter(ushort unit)
{
    return unit >= 0x20 ? unit < 0xfffe : unit == '\t' || unit == '\n' || unit == '\r';
}

QString StorableText(const QString &text)
{
    QString storable = text;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (text.at(i).category() == QChar::Other_Surrogate || !IsXmlCharacter(text.at(i).unicode())) {
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
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("zeltdoc"));
    writer.writeAttribute(QLatin1String("type"), QLatin1String("profile"));
    writer.writeStartElement(QLatin1String("profile"));
    for (int i = 0; i < list.size(); ++i) {
        const PriorityList entry = StorableEntry(list.at(i));
        writer.writeStartElement(QLatin1String("item"));
        writer.writeAttribute(QLatin1String("name"), entry.name);
        writer.writeAttribute(QLatin1String("type"), entry.type);
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
    explicit PreviousContent(const QFileInfo &known) : m_path(known.filePath()), m_known(false)
    {
        QFile file(m_path);
        if (OpenToRead(file, known, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            m_bytes = file.readAll();
            m_known = file.error() == QFile::NoError;
        }
    }

    void PutBack() const
    {
        QFile file(m_path);
        if (!m_known) {
            file.remove();
        } else if (OpenAnew(file)) {
            WriteToItsEnd(file, m_bytes);
        }
    }

private:
    QString m_path;
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
    qDebug("%s: %s: %s: Entered", buildTime, sourcePath, "GetInstance");
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
    qDebug("%s: %s: %s before calling ZELT_GetUserDataDirectory()", buildTime, sourcePath,
           "getUserDataDirectory");
    const long status = ZELT_GetUserDataDirectory(&path);
    qDebug("%s: %s: %s after calling ZELT_GetUserDataDirectory(), retVal=%ld", buildTime, sourcePath,
           "getUserDataDirectory", status);
    if (status == 0 && path) {
        directory = ToolkitCompat::FromUtf16(path);
    }
    delete[] path;
    return directory;
}

QString PriorityXMLParser::PriorityFilePath()
{
    return getUserDataDirectory() + QLatin1String("Priority.xml");
}

int PriorityXMLParser::GetPriorityList(QList<PriorityList> *out)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("GetPriorityList"), "");
    const QString path = PriorityFilePath();
    const QFileInfo known(path);
    if (!out || !known.exists()) {
        TraceFileMissing(path);
        return FileMissing;
    }
    QFile file(path);
    if (!OpenToRead(file, known, QIODevice::ReadOnly | QIODevice::Text)) {
        TraceFileNotOpenable();
        return FileNotOpenable;
    }
    QXmlStreamReader reader(&file);
    return ReadPriorityItem(reader, out);
}

int PriorityXMLParser::ReadPriorityItem(QXmlStreamReader &reader, QList<PriorityList> *out)
{
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.hasError()) {
            TraceReadError("ReadPriorityItem");
            return ReadError;
        }
        if (reader.isStartElement() && reader.name() == QLatin1String("item")) {
            const QXmlStreamAttributes attributes = reader.attributes();
            PriorityList entry;
            entry.name = attributes.value(QLatin1String("name")).toString();
            // Nearly all entries are of one type; they share its text.
            const bool likeTheLast =
                !out->isEmpty() && attributes.value(QLatin1String("type")) == out->last().type;
            entry.type = likeTheLast ? out->last().type : attributes.value(QLatin1String("type")).toString();
            out->append(entry);
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
    const PreviousContent previous(known);
    const bool removed = known.exists() && QFile::remove(path);
    QFile file(path);
    if (!(removed ? OpenEmpty(file) : OpenAnew(file))) {
        TraceFileNotOpenable();
        return FileNotOpenable;
    }
    if (!WriteToItsEnd(file, document)) {
        TraceFileNotOpenable();
        previous.PutBack();
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
