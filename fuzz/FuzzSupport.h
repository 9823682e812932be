#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include <ListDocument.h>

#include <PriorityList.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>

/** What the fuzz targets share: a stand-in host over a directory of its own, silent, made on first use. */
namespace FuzzSupport
{

/** Writes a file of the host's directory; its name is relative. */
void Write(const QString &name, const QByteArray &bytes);
QByteArray Read(const QString &name);
/** The whole path of a file of the host's directory. */
QString Path(const QString &name);

/** Ends the process as a crash does, so that the input is kept. */
void Require(bool holds, const char *what);

Model::Entry ModelEntry(const PriorityList &entry);
Model::Entries ModelEntries(const QList<PriorityList> &list);
QByteArray Bytes(const Model::Document &document);

/** How many lines the text of a file has; of nothing, one. */
qint64 LineCount(const QByteArray &bytes);

} // namespace FuzzSupport

/** Takes an input apart into texts of any code units. */
class InputReader
{
public:
    InputReader(const std::uint8_t *data, std::size_t size) : m_data(data), m_left(size) {}

    bool AtEnd() const { return m_left == 0; }
    std::uint8_t Byte();
    /** Of at most as many units as a byte says; often of plain letters. */
    QString Text();
    /** A name, and a type that is often Wi-Fi's. */
    PriorityList Entry();

private:
    const std::uint8_t *m_data;
    std::size_t m_left;
};

#endif
