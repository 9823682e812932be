#include "ListDocument.h"

namespace
{

const char16_t replacement = 0xfffd;

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xd800 && unit <= 0xdbff;
}

bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xdc00 && unit <= 0xdfff;
}

bool IsXmlCharacter(char16_t unit)
{
    return unit == u'\t' || unit == u'\n' || unit == u'\r' || (unit >= 0x20 && unit <= 0xfffd);
}

std::string Escaped(const Model::Text &text)
{
    const std::string plain = Model::Utf8(text);
    std::string escaped;
    for (const char character : plain) {
        switch (character) {
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '&':
            escaped += "&amp;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\t':
            escaped += "&#9;";
            break;
        case '\n':
            escaped += "&#10;";
            break;
        case '\r':
            escaped += "&#13;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

} // namespace

std::string Model::Utf8(const Text &text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            code = 0x10000 + ((char32_t(text[i]) - 0xd800) << 10) + (char32_t(text[i + 1]) - 0xdc00);
            ++i;
        }
        if (code < 0x80) {
            bytes += char(code);
        } else if (code < 0x800) {
            bytes += char(0xc0 | (code >> 6));
            bytes += char(0x80 | (code & 0x3f));
        } else if (code < 0x10000) {
            bytes += char(0xe0 | (code >> 12));
            bytes += char(0x80 | ((code >> 6) & 0x3f));
            bytes += char(0x80 | (code & 0x3f));
        } else {
            bytes += char(0xf0 | (code >> 18));
            bytes += char(0x80 | ((code >> 12) & 0x3f));
            bytes += char(0x80 | ((code >> 6) & 0x3f));
            bytes += char(0x80 | (code & 0x3f));
        }
    }
    return bytes;
}

Model::Text Model::Storable(const Text &text)
{
    Text storable;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
        if (isPair) {
            storable += text[i];
            storable += text[++i];
        } else if (IsHighSurrogate(text[i]) || IsLowSurrogate(text[i]) || !IsXmlCharacter(text[i])) {
            storable += replacement;
        } else {
            storable += text[i];
        }
    }
    return storable;
}

Model::Entry Model::Storable(const Entry &entry)
{
    return Entry{Storable(entry.name), Storable(entry.type)};
}

Model::Entries Model::Storable(const Entries &entries)
{
    Entries storable;
    for (const Entry &entry : entries) {
        storable.push_back(Storable(entry));
    }
    return storable;
}

Model::Document Model::ProductDocument(const Entries &entries)
{
    Document document;
    document.entries = Storable(entries);
    document.bytes = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<zeltdoc type=\"profile\">\n";
    if (entries.empty()) {
        document.bytes += "    <profile/>\n";
    } else {
        document.bytes += "    <profile>\n";
        for (const Entry &entry : document.entries) {
            document.bytes +=
                "        <item name=\"" + Escaped(entry.name) + "\" type=\"" + Escaped(entry.type) + "\"/>";
            document.ends.push_back(document.bytes.size());
            document.bytes += '\n';
        }
        document.bytes += "    </profile>\n";
    }
    document.bytes += "</zeltdoc>";
    document.soundSize = document.bytes.size();
    document.bytes += '\n';
    return document;
}

Model::Document Model::ForeignDocument(const Entries &entries)
{
    Document document;
    document.bytes = "<!-- of another program -->\n<list version='2'><item-count/>";
    for (const Entry &entry : entries) {
        document.bytes += "<group><item note='&#x41;' ";
        if (!entry.type.empty()) {
            document.bytes += "type=\"" + Escaped(entry.type) + "\" ";
        }
        document.bytes += "name=\"" + Escaped(entry.name) + "\">";
        document.ends.push_back(document.bytes.size());
        document.entries.push_back(entry);
        document.bytes += "of no account</item></group>\r\n";
    }
    document.bytes += "</list>";
    document.soundSize = document.bytes.size();
    return document;
}

Model::Document Model::Garbage(const std::string &bytes)
{
    Document document;
    document.bytes = bytes;
    document.soundSize = bytes.size() + 1;
    return document;
}

Model::Document Model::Truncated(const Document &document, std::size_t size)
{
    Document truncated;
    truncated.bytes = document.bytes.substr(0, size);
    truncated.soundSize = document.soundSize;
    for (std::size_t i = 0; i < document.entries.size() && document.ends[i] <= size; ++i) {
        truncated.entries.push_back(document.entries[i]);
        truncated.ends.push_back(document.ends[i]);
    }
    return truncated;
}
