#include "FuzzSupport.h"

#include <ListDocument.h>

#include <PriorityXMLParser.h>

namespace
{

Model::Text Units(const QString &text)
{
    Model::Text units;
    for (const QChar unit : text) {
        units += char16_t(unit.unicode());
    }
    return units;
}

QString Texts(const Model::Text &units)
{
    return QString(reinterpret_cast<const QChar *>(units.data()), int(units.size()));
}

void RequireSame(const QList<PriorityList> &found, const Model::Entries &expected)
{
    FuzzSupport::Require(found.size() == int(expected.size()), "no entry is lost or doubled");
    for (int i = 0; i < found.size(); ++i) {
        const Model::Entry &entry = expected[std::size_t(i)];
        FuzzSupport::Require(found.at(i).name == Texts(entry.name), "a name comes back as it was stored");
        FuzzSupport::Require(found.at(i).type == Texts(entry.type), "a type comes back as it was stored");
    }
}

} // namespace

// Any names and types: the file is what the rules of its format say, and gives the entries back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace FuzzSupport;
    Write("Priority.xml", QByteArray());
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    QList<PriorityList> list;
    Model::Entries entries;
    for (InputReader input(data, size); !input.AtEnd();) {
        PriorityList entry;
        entry.name = input.Text();
        entry.type = input.Text();
        list.append(entry);
        entries.push_back(Model::Entry{Units(entry.name), Units(entry.type)});
    }
    const QList<PriorityList> given = list;
    Require(store->SavePriorityList(list) == PriorityXMLParser::Success, "a list is saved");
    const Model::Document document = Model::ProductDocument(entries);
    Require(Read("Priority.xml") == QByteArray(document.bytes.data(), int(document.bytes.size())),
            "the file is what its format says");
    QList<PriorityList> read;
    Require(store->GetPriorityList(&read) == PriorityXMLParser::Success, "what was saved can be read");
    RequireSame(read, document.entries);

    if (!list.isEmpty()) {
        PriorityList last = given.last();
        const int index = store->MoveUp(last, &list);
        Require(index >= -1 && index < list.size(), "an entry is found again under the name it was saved by");
        store->AddTop(last, &list);
        const Model::Entry top = Model::Storable(entries.back());
        Require(list.first().name == Texts(top.name) && list.first().type == Texts(top.type),
                "the entry added stands at the top");
        Require(list.size() == given.size(), "an entry that is there already is not doubled");
    }
    return 0;
}
