#include "FuzzSupport.h"

#include <PriorityXMLParser.h>

// Any bytes as the priority file: they are read to their end or to an error, what was read can be saved, and
// the saved file gives the same list again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace FuzzSupport;
    Write("Priority.xml", QByteArray(reinterpret_cast<const char *>(data), int(size)));
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();

    QList<PriorityList> read;
    const int result = store->GetPriorityList(&read);
    Require(result == PriorityXMLParser::Success || result == PriorityXMLParser::ReadError,
            "reading succeeds or tells of an error");
    // Entities may make a document larger than its bytes are, but by no more than the parser's own limit.
    const int entityLimit = 8192;
    qint64 characters = 0;
    for (const PriorityList &entry : read) {
        characters += entry.name.size() + entry.type.size();
    }
    Require(characters <= qint64(size) * entityLimit, "what is read is bounded by the size of the file");

    Require(store->SavePriorityList(read) == PriorityXMLParser::Success, "what was read can be saved");
    const QByteArray saved = Read("Priority.xml");
    QList<PriorityList> again;
    Require(store->GetPriorityList(&again) == PriorityXMLParser::Success, "what was saved can be read");
    Require(again.size() == read.size(), "no entry is lost or doubled by saving");
    Require(store->SavePriorityList(again) == PriorityXMLParser::Success && Read("Priority.xml") == saved,
            "saving what was saved changes nothing");
    return 0;
}
