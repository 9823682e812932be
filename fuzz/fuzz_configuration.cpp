#include "FuzzSupport.h"

#include <PriorityXMLParser.h>

// Any bytes as the configuration file: they give a number, twice the same, and the file is left alone.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace FuzzSupport;
    const QString name = "plugins/PriorityPlugin/config.xml";
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    Write(name, bytes);
    PriorityXMLParser *store = PriorityXMLParser::GetInstance();
    const int value = store->GetEnable3GValue();
    Require(store->GetEnable3GValue() == value, "reading twice gives the same");
    Require(Read(name) == bytes, "reading changes nothing");
    return 0;
}
