#include "XmlRecords.h"

#include <StrictXmlReader.h>

#include <QXmlStreamWriter>

namespace
{

const int hexDigits = 4;
const int escapeLength = 2 + hexDigits;

void AppendEscape(QString *escaped, ushort unit)
{
    *escaped += QLatin1String("\\u");
    *escaped += QString::fromLatin1("%1").arg(unit, hexDigits, 16, QLatin1Char('0')).toUpper();
}

bool IsNonCharacter(uint code)
{
    return (code & 0xfffeU) == 0xfffeU || (code >= 0xfdd0U && code <= 0xfdefU);
}

bool IsControl(ushort unit)
{
    return unit < 0x20U || (unit >= 0x7fU && unit < 0xa0U);
}

/** The code unit of the escape that begins at position, or -1 when none begins there. */
int EscapedUnit(const QString &text, int position)
{
    if (text.size() - position < escapeLength || text.at(position + 1) != QLatin1Char('u')) {
        return -1;
    }
    int unit = 0;
    for (int i = position + 2; i < position + escapeLength; ++i) {
        const ushort digit = text.at(i).unicode();
        int value = 0;
        if (digit >= '0' && digit <= '9') {
            value = digit - '0';
        } else if (digit >= 'A' && digit <= 'F') {
            value = digit - 'A' + 10;
        } else if (digit >= 'a' && digit <= 'f') {
            value = digit - 'a' + 10;
        } else {
            return -1;
        }
        unit = unit * 16 + value;
    }
    return unit;
}

/** Refuses an element that has an attribute that the format doesn't know, or lacks the one it asks for. */
XmlRecord ReadRecord(StrictXmlReader *reader, const XmlRecordFormat &format)
{
    XmlRecord record;
    record.line = reader->Line();
    const QXmlStreamAttributes attributes = reader->Attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QString name = attribute.qualifiedName().toString();
        if (!format.attributes.contains(name)) {
            reader->Refuse(FileFault::WrongValue, name);
        }
        record.values.insert(name, XmlRecords::Unescape(attribute.value().toString()));
    }
    const QString &required = format.requiredAttribute;
    if (!required.isEmpty() && record.values.value(required).isEmpty()) {
        reader->Refuse(FileFault::MissingAttribute, required);
    }
    return record;
}

bool IsUtf8(const QByteArray &bytes)
{
    // A byte order mark is not among what the decoder gives back.
    const QByteArray byteOrderMark("\xef\xbb\xbf");
    const QByteArray text = bytes.mid(bytes.startsWith(byteOrderMark) ? byteOrderMark.size() : 0);
    return QString::fromUtf8(text).toUtf8() == text;
}

/** The length of the lines before the first that isn't UTF-8, with the number of that line or 0. */
int SoundLength(const QByteArray &bytes, qint64 *unsoundLine)
{
    qint64 line = 1;
    for (int begin = 0; begin < bytes.size(); ++line) {
        const int lineEnd = bytes.indexOf('\n', begin);
        const int end = lineEnd < 0 ? bytes.size() : lineEnd + 1;
        if (!IsUtf8(QByteArray::fromRawData(bytes.constData() + begin, end - begin))) {
            *unsoundLine = line;
            return begin;
        }
        begin = end;
    }
    *unsoundLine = 0;
    return bytes.size();
}

qint64 ReadSound(const QByteArray &bytes, const XmlRecordFormat &format, QList<XmlRecord> *records)
{
    StrictXmlReader reader(bytes);
    if (reader.NextElement(format.rootElement.toLatin1().constData()) && !reader.Attributes().isEmpty()) {
        reader.Refuse(FileFault::WrongValue, format.rootElement);
    }
    while (reader.NextElement(format.recordElement.toLatin1().constData())) {
        const XmlRecord record = ReadRecord(&reader, format);
        if (!reader.HasFault()) {
            records->append(record);
        }
        reader.Leave();
    }
    reader.Leave();
    return reader.Fault().line;
}

} // namespace

QString XmlRecords::Escape(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            const QChar low = text.at(++i);
            if (IsNonCharacter(QChar::surrogateToUcs4(unit, low))) {
                AppendEscape(&escaped, unit.unicode());
                AppendEscape(&escaped, low.unicode());
            } else {
                escaped += unit;
                escaped += low;
            }
        } else if (unit == QLatin1Char('\\')) {
            escaped += QLatin1String("\\\\");
        } else if (IsControl(unit.unicode()) || IsNonCharacter(unit.unicode()) || unit.isHighSurrogate() ||
                   unit.isLowSurrogate()) {
            AppendEscape(&escaped, unit.unicode());
        } else {
            escaped += unit;
        }
    }
    return escaped;
}

QString XmlRecords::Unescape(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('\\')) {
            plain += text.at(i);
            continue;
        }
        const int unit = EscapedUnit(text, i);
        if (unit >= 0) {
            plain += QChar(static_cast<ushort>(unit));
            i += escapeLength - 1;
            continue;
        }
        plain += text.at(i);
        if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\\')) {
            ++i;
        }
    }
    return plain;
}

qint64 XmlRecords::Read(const QByteArray &bytes, const XmlRecordFormat &format, QList<XmlRecord> *records)
{
    // The stream reader decodes ahead and would lose, for one wrong byte, all records before it.
    qint64 unsoundLine = 0;
    const int length = SoundLength(bytes, &unsoundLine);
    const qint64 fault = ReadSound(QByteArray::fromRawData(bytes.constData(), length), format, records);
    if (unsoundLine == 0) {
        return fault;
    }
    return fault == 0 ? unsoundLine : qMin(fault, unsoundLine);
}

QByteArray XmlRecords::Write(const XmlRecordFormat &format, const QList<XmlRecord> &records)
{
    // Room for the longest form of every character: an array that grows leaves copies of the keys behind.
    const int longestForm = 6;
    const int overhead = 256;
    qint64 size = overhead;
    for (int i = 0; i < records.size(); ++i) {
        size += overhead;
        for (int j = 0; j < format.attributes.size(); ++j) {
            const QString &name = format.attributes.at(j);
            size += static_cast<qint64>(longestForm) *
                    (name.size() + 1 + records.at(i).values.value(name).size());
        }
    }
    QByteArray bytes;
    bytes.reserve(static_cast<int>(qMin<qint64>(size, largestFile)));

    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(format.rootElement);
    for (int i = 0; i < records.size(); ++i) {
        writer.writeEmptyElement(format.recordElement);
        for (int j = 0; j < format.attributes.size(); ++j) {
            const QString &name = format.attributes.at(j);
            writer.writeAttribute(name, Escape(records.at(i).values.value(name)));
        }
    }
    writer.writeEndDocument();
    return bytes;
}
