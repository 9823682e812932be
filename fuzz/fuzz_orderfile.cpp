#include "FuzzSupport.h"

#include <ImportPlan.h>
#include <OrderFile.h>
#include <PriorityXMLParser.h>

#include <algorithm>

namespace
{

Model::Entries Sorted(Model::Entries entries)
{
    std::sort(entries.begin(), entries.end(), [](const Model::Entry &left, const Model::Entry &right) {
        return left.name != right.name ? left.name < right.name : left.type < right.type;
    });
    return entries;
}

void TryPlan(const QList<PriorityList> &before, const QList<PriorityList> &after)
{
    using namespace FuzzSupport;
    const ImportPlan plan = ImportPlan::Make(before, after, &before);
    Model::Entries taken;
    Model::Entries there;
    for (const ImportPlan::Row &row : plan.rows) {
        if (row.effect != ImportPlan::Removed) {
            taken.push_back(ModelEntry(row.entry));
        }
        if (row.effect != ImportPlan::Added) {
            there.push_back(ModelEntry(row.entry));
            Require(!row.isUnknown, "what is known is not called unknown");
        }
    }
    Require(taken == ModelEntries(after), "the plan shows the order that is to be");
    Require(Sorted(there) == Sorted(ModelEntries(before)), "each entry that is there stays, moves or goes");
    Require(plan.IsChange() == (ModelEntries(before) != ModelEntries(after)),
            "a plan without a change is the same list");
}

} // namespace

// The first byte says how much of the input is the order file; the rest is the list that it is to replace.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace FuzzSupport;
    if (size == 0) {
        return 0;
    }
    const std::size_t fileSize = (size - 1) * data[0] / 255;
    const QByteArray file(reinterpret_cast<const char *>(data + 1), int(fileSize));
    QList<PriorityList> before;
    for (InputReader input(data + 1 + fileSize, size - 1 - fileSize); !input.AtEnd();) {
        before.append(input.Entry());
    }

    QList<PriorityList> read = before;
    const FileFault fault = OrderFile::Parse(file, &read);
    if (fault.kind != FileFault::None) {
        Require(ModelEntries(read) == ModelEntries(before), "of a file with a fault nothing is taken");
        Require(fault.line >= 1 && fault.line <= LineCount(file), "a fault is on one of the file's lines");
        return 0;
    }
    const QList<PriorityList> after = read.mid(before.size());
    TryPlan(before, after);

    // The plug-in reads its file as text, without carriage returns, and leaves it to the writing to replace
    // what no file can carry.
    if (!file.contains('\r')) {
        PriorityXMLParser *store = PriorityXMLParser::GetInstance();
        Write("Priority.xml", file);
        QList<PriorityList> ofThePlugin;
        Require(store->GetPriorityList(&ofThePlugin) == PriorityXMLParser::Success,
                "a file without a fault is one that the plug-in reads");
        Require(Model::Storable(ModelEntries(ofThePlugin)) == ModelEntries(after),
                "the plug-in finds the same entries");
    }

    const QByteArray document = OrderFile::Document(after);
    Require(document == Bytes(Model::ProductDocument(ModelEntries(after))),
            "an order is written as the plug-in writes it");
    QList<PriorityList> again;
    Require(OrderFile::Parse(document, &again).kind == FileFault::None, "what was written can be read");
    Require(ModelEntries(again) == ModelEntries(after), "no entry is lost or doubled by writing");
    return 0;
}
