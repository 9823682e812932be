#include "OrderFile.h"

#include "ListEntries.h"
#include <StrictXmlReader.h>

#include <QFile>
#include <QSaveFile>
#include <QXmlStreamWriter>

namespace
{

void ReadItem(StrictXmlReader *reader, QList<PriorityList> *entries)
{
    PriorityList entry;
    entry.name = reader->Value("name");
    entry.type = reader->Value("type");
    reader->Leave();
    entries->append(entry);
}

} // namespace

QByteArray OrderFile::Document(const QList<PriorityList> &entries)
{
    const QList<PriorityList> storable = ListEntries::Storable(entries);
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("zeltdoc"));
    writer.writeAttribute(QLatin1String("type"), QLatin1String("profile"));
    writer.writeStartElement(QLatin1String("profile"));
    for (int i = 0; i < storable.size(); ++i) {
        writer.writeEmptyElement(QLatin1String("item"));
        writer.writeAttribute(QLatin1String("name"), storable.at(i).name);
        writer.writeAttribute(QLatin1String("type"), storable.at(i).type);
    }
    writer.writeEndDocument();
    return document;
}

bool OrderFile::Write(const QString &path, const QList<PriorityList> &entries)
{
    const QByteArray document = Document(entries);
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
           file.write(document) == document.size() && file.commit();
}

FileFault OrderFile::Parse(const QByteArray &bytes, QList<PriorityList> *entries)
{
    QList<PriorityList> found;
    StrictXmlReader reader(bytes);
    if (reader.NextElement("zeltdoc")) {
        while (reader.NextElement()) {
            if (reader.Name() == QLatin1String("profile")) {
                while (reader.NextElement("item")) {
                    ReadItem(&reader, &found);
                }
            } else if (reader.Name() == QLatin1String("item")) {
                ReadItem(&reader, &found);
            } else {
                reader.Refuse(FileFault::UnexpectedElement, reader.Name());
            }
        }
        reader.Leave();
    }
    if (!reader.HasFault()) {
        *entries += ListEntries::Storable(found);
    }
    return reader.Fault();
}
