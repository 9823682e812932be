#ifndef STRICTXMLREADER_H
#define STRICTXMLREADER_H

#include "FileFault.h"

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

/**
 * Reads files that are nothing but nested elements with attributes. Whatever else they hold is a fault, and
 * behind the first fault nothing is read. Comments and processing instructions are passed over.
 */
class StrictXmlReader
{
public:
    explicit StrictXmlReader(const QByteArray &bytes);

    /** Goes to the next element inside the one it is in; false at the end of that one, and at a fault. */
    bool NextElement();

    /** As NextElement, with any element but the named one as a fault. */
    bool NextElement(const char *name);

    /** Leaves an element that has none inside, or the document; anything more is a fault. */
    void Leave();

    QString Name() const;
    QXmlStreamAttributes Attributes() const { return m_reader.attributes(); }
    bool Has(const char *attribute) const;

    /** An attribute that the element must have. */
    QString Value(const char *attribute);

    qint64 Line() const { return m_reader.lineNumber(); }

    // Calls what was read last, or what stands on that line, a fault, unless there is one already.
    void Refuse(FileFault::Kind kind, const QString &detail);
    void RefuseLine(qint64 line, FileFault::Kind kind, const QString &detail);

    bool HasFault() const { return m_fault.kind != FileFault::None; }
    FileFault Fault() const { return m_fault; }

private:
    Q_DISABLE_COPY(StrictXmlReader)

    qint64 LineNotWellFormed() const;

    const QByteArray m_bytes;
    QXmlStreamReader m_reader;
    FileFault m_fault;
};

#endif
