#include "FuzzSupport.h"

#include <PriorityXMLParser.h>

// Any names and types: the file is what the rules of its format say, and gives the entries back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace FuzzSupport;
    Write("Priority.xml", QByteArray());
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    QList<PriorityList> list;
    for (InputReader input(data, size); !input.AtEnd();) {
        PriorityList entry;
        entry.name = input.Text();
        entry.type = input.Text();
        list.append(entry);
    }
    const QList<PriorityList> given = list;
    const Model::Entries entries = ModelEntries(given);
    Require(store->SavePriorityList(list) == PriorityXMLParser::Success, "a list is saved");
    const Model::Document document = Model::ProductDocument(entries);
    Require(Read("Priority.xml") == Bytes(document), "the file is what its format says");
    QList<PriorityList> read;
    Require(store->GetPriorityList(&read) == PriorityXMLParser::Success, "what was saved can be read");
    Require(ModelEntries(read) == document.entries,
            "every entry comes back as it was stored, none is lost or doubled");

    if (!list.isEmpty()) {
        PriorityList last = given.last();
        const int index = store->MoveUp(last, &list);
        Require(index >= -1 && index < list.size(), "an entry is found again under the name it was saved by");
        store->AddTop(last, &list);
        Require(ModelEntry(list.first()) == Model::Storable(entries.back()),
                "the entry added stands at the top");
        Require(list.size() == given.size(), "an entry that is there already is not doubled");
    }
    return 0;
}
