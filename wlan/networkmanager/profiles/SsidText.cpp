#include "SsidText.h"

namespace
{

const int escapeLength = 4;
const unsigned char continuationMask = 0xc0;
const unsigned char continuationMark = 0x80;
const int continuationBits = 6;

/** The value of an upper-case hexadecimal digit, or -1. */
int DigitValue(ushort digit)
{
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

/** The byte that the escape at position stands for, or -1 when none begins there. */
template <typename Text> int EscapedByte(const Text &text, int position)
{
    if (text.size() - position < escapeLength || text.at(position) != '\\' || text.at(position + 1) != 'x') {
        return -1;
    }
    const int high = DigitValue(text.at(position + 2));
    const int low = DigitValue(text.at(position + 3));
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

/** The code units of a text as numbers. */
class Units
{
public:
    explicit Units(const QString &text) : m_text(text) {}
    int size() const { return m_text.size(); }
    ushort at(int position) const { return m_text.at(position).unicode(); }

private:
    const QString &m_text;
};

void AppendEscape(QString *text, unsigned char byte)
{
    *text += QString::fromLatin1("\\x%1").arg(QString::number(byte, 16).toUpper(), 2, QLatin1Char('0'));
}

/** How many bytes the UTF-8 sequence has that begins with this byte; 0 when none does. */
int SequenceLength(unsigned char first)
{
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xc2 && first < 0xe0) {
        return 2;
    }
    if (first >= 0xe0 && first < 0xf0) {
        return 3;
    }
    return first >= 0xf0 && first < 0xf5 ? 4 : 0;
}

/** The code point of the UTF-8 sequence of length bytes at position, or -1 when there is no such sequence. */
int CodePoint(const QByteArray &bytes, int position, int length)
{
    static const int smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (length == 0 || position + length > bytes.size()) {
        return -1;
    }
    const unsigned char first = static_cast<unsigned char>(bytes.at(position));
    int code = length == 1 ? first : first & (0x7f >> length);
    for (int i = position + 1; i < position + length; ++i) {
        const unsigned char next = static_cast<unsigned char>(bytes.at(i));
        if ((next & continuationMask) != continuationMark) {
            return -1;
        }
        code = (code << continuationBits) | (next & ~continuationMask);
    }
    return code < smallest[length] ? -1 : code;
}

/** Whether every program keeps the character as it is, those that write it into an XML file included. */
bool IsSafe(int code)
{
    const bool isControl = code < 0x20 || (code >= 0x7f && code < 0xa0);
    const bool isSurrogate = code >= 0xd800 && code < 0xe000;
    const bool isNonCharacter = (code & 0xfffe) == 0xfffe || (code >= 0xfdd0 && code <= 0xfdef);
    return !isControl && !isSurrogate && !isNonCharacter && code <= 0x10ffff;
}

} // namespace

QString SsidText::FromBytes(const QByteArray &ssid)
{
    QString text;
    int position = 0;
    while (position < ssid.size()) {
        const unsigned char byte = static_cast<unsigned char>(ssid.at(position));
        const int length = SequenceLength(byte);
        if (!IsSafe(CodePoint(ssid, position, length)) || EscapedByte(ssid, position) >= 0) {
            AppendEscape(&text, byte);
            ++position;
        } else {
            text += QString::fromUtf8(ssid.constData() + position, length);
            position += length;
        }
    }
    return text;
}

QByteArray SsidText::ToBytes(const QString &text)
{
    const Units units(text);
    QByteArray bytes;
    int literalBegin = 0;
    int position = 0;
    while (position < text.size()) {
        const int byte = EscapedByte(units, position);
        if (byte < 0) {
            ++position;
            continue;
        }
        bytes += text.mid(literalBegin, position - literalBegin).toUtf8();
        bytes += static_cast<char>(byte);
        position += escapeLength;
        literalBegin = position;
    }
    bytes += text.mid(literalBegin).toUtf8();
    return FromBytes(bytes) == text ? bytes : text.toUtf8();
}
