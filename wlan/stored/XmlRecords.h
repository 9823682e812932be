#ifndef XMLRECORDS_H
#define XMLRECORDS_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/** One record: its attributes by name. Attributes that the file doesn't have are missing. */
struct XmlRecord {
    QHash<QString, QString> values;
    /** Where in the file it stands, counted from one; 0 for a record that was not read. */
    qint64 line = 0;
};

/** The shape of a file of records: a root element with one empty element for each record. */
struct XmlRecordFormat {
    QString rootElement;
    QString recordElement;
    /** All attributes a record may have, in the order of writing. */
    QStringList attributes;
    /** An attribute that must be there and not be empty; empty when there is none such. */
    QString requiredAttribute;
};

/**
 * XML files of flat records, for any text.
 *
 * XML can't carry every text: control characters, lone surrogates and non-characters damage a file or come
 * back as something else. They are written as \uXXXX with four hexadecimal digits, and a backslash as two; a
 * backslash that begins neither of these stands for itself.
 *
 * The files are UTF-8. The reader refuses what the writer would lose on the way back: elements, attributes
 * and text that are not of the format, and document type declarations. Comments and processing instructions
 * are accepted and not kept.
 */
namespace XmlRecords
{

/** No file of ours comes near this; whatever is larger is not read into memory, and not written. */
const int largestFile = 16 * 1024 * 1024;

/** Appends the records of bytes to *records. The line of the first fault, behind which nothing was read, or
 * 0. */
qint64 Read(const QByteArray &bytes, const XmlRecordFormat &format, QList<XmlRecord> *records);

QByteArray Write(const XmlRecordFormat &format, const QList<XmlRecord> &records);

QString Escape(const QString &text);
QString Unescape(const QString &text);

} // namespace XmlRecords

#endif
