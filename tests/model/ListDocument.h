#ifndef LISTDOCUMENT_H
#define LISTDOCUMENT_H

#include <cstddef>
#include <string>
#include <vector>

/**
 * The priority file by the rules of its format, in plain C++: neither the product's code nor Qt's
 * XML classes have a part in it, so that a fault of theirs can't hide itself.
 */
namespace Model
{

typedef std::u16string Text;

struct Entry {
    Text name;
    Text type;

    bool operator==(const Entry &other) const { return name == other.name && type == other.type; }
};

typedef std::vector<Entry> Entries;

/** A file's bytes together with what a reader must find in them. */
struct Document {
    std::string bytes;
    Entries entries;
    /** For each entry, how many bytes a reader needs to have seen of it. */
    std::vector<std::size_t> ends;
    /** How many bytes make it a whole document. */
    std::size_t soundSize;

    bool IsSound() const { return bytes.size() >= soundSize; }
};

/** What XML can't carry is replaced, as it will stand in the file. */
Text Storable(const Text &text);
Entry Storable(const Entry &entry);
Entries Storable(const Entries &entries);

/** As the product must write it, byte for byte. */
Document ProductDocument(const Entries &entries);

/** The same entries as another program may write them. */
Document ForeignDocument(const Entries &entries);

/** No document at all. */
Document Garbage(const std::string &bytes);

/** The first size bytes of document. */
Document Truncated(const Document &document, std::size_t size);

std::string Utf8(const Text &text);

} // namespace Model

#endif
