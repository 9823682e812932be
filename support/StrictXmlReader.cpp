#include "StrictXmlReader.h"

namespace
{

bool IsUtf8(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

/** The first line that isn't UTF-8; 0 when all are. */
qint64 LineNotUtf8(const QByteArray &bytes)
{
    const QByteArray byteOrderMark("\xef\xbb\xbf");
    const QList<QByteArray> lines =
        bytes.mid(bytes.startsWith(byteOrderMark) ? byteOrderMark.size() : 0).split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (!IsUtf8(lines.at(i))) {
            return i + 1;
        }
    }
    return 0;
}

} // namespace

StrictXmlReader::StrictXmlReader(const QByteArray &bytes) : m_bytes(bytes), m_reader(bytes) {}

bool StrictXmlReader::NextElement()
{
    while (!HasFault() && !m_reader.atEnd()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
            return false;
        case QXmlStreamReader::DTD:
            Refuse(FileFault::Declaration, QString());
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            if (!m_reader.isWhitespace()) {
                Refuse(FileFault::UnexpectedText, QString());
            }
            break;
        case QXmlStreamReader::Invalid:
            RefuseLine(LineNotWellFormed(), FileFault::NotWellFormed, QString());
            break;
        default:
            break;
        }
    }
    return false;
}

bool StrictXmlReader::NextElement(const char *name)
{
    if (!NextElement()) {
        return false;
    }
    if (Name() != QLatin1String(name)) {
        Refuse(FileFault::UnexpectedElement, Name());
    }
    return !HasFault();
}

void StrictXmlReader::Leave()
{
    if (NextElement()) {
        Refuse(FileFault::UnexpectedElement, Name());
    }
}

QString StrictXmlReader::Name() const
{
    return m_reader.qualifiedName().toString();
}

bool StrictXmlReader::Has(const char *attribute) const
{
    return m_reader.attributes().hasAttribute(QLatin1String(attribute));
}

QString StrictXmlReader::Value(const char *attribute)
{
    if (!Has(attribute)) {
        Refuse(FileFault::MissingAttribute, QLatin1String(attribute));
    }
    return m_reader.attributes().value(QLatin1String(attribute)).toString();
}

void StrictXmlReader::Refuse(FileFault::Kind kind, const QString &detail)
{
    RefuseLine(Line(), kind, detail);
}

void StrictXmlReader::RefuseLine(qint64 line, FileFault::Kind kind, const QString &detail)
{
    if (!HasFault()) {
        m_fault.kind = kind;
        m_fault.line = line;
        m_fault.detail = detail;
    }
}

qint64 StrictXmlReader::LineNotWellFormed() const
{
    // Bytes of another encoding are noticed by Qt before it begins to count lines.
    const qint64 line = Line() == 1 ? LineNotUtf8(m_bytes) : 0;
    return line > 0 ? line : Line();
}
