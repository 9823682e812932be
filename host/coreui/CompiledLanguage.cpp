#include "CompiledLanguage.h"

#include <QSet>
#include <QtEndian>

namespace
{

const unsigned char signature[] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                   0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};

enum BlockTag { OffsetsBlock = 0x42, MessagesBlock = 0x69, NumerusBlock = 0x88, LanguageBlock = 0xa7 };

enum MessageTag {
    EndTag = 1,
    SourceText16Tag = 2,
    TranslationTag = 3,
    Context16Tag = 4,
    HashTag = 5,
    SourceTextTag = 6,
    ContextTag = 7,
    CommentTag = 8
};

/** Takes numbers and runs of bytes off the front; nothing more once something was missing. */
class Bytes
{
public:
    explicit Bytes(const QByteArray &bytes) : m_bytes(bytes), m_position(0), m_failed(false) {}

    bool HasFailed() const { return m_failed; }
    bool IsAtEnd() const { return m_failed || m_position == m_bytes.size(); }

    /** Where the next byte is taken, or where it was that too little was left. */
    int Position() const { return m_position; }

    quint8 Take8() { return Has(1) ? static_cast<quint8>(m_bytes.at(m_position++)) : 0; }

    quint32 Take32()
    {
        if (!Has(4)) {
            return 0;
        }
        const uchar *number = reinterpret_cast<const uchar *>(m_bytes.constData()) + m_position;
        m_position += 4;
        return qFromBigEndian<quint32>(number);
    }

    QByteArray Take(quint32 length)
    {
        if (!Has(length)) {
            return QByteArray();
        }
        QByteArray run = m_bytes.mid(m_position, static_cast<int>(length));
        m_position += static_cast<int>(length);
        return run;
    }

private:
    bool Has(quint32 length)
    {
        m_failed = m_failed || length > static_cast<quint32>(m_bytes.size() - m_position);
        return !m_failed;
    }

    const QByteArray m_bytes;
    int m_position;
    bool m_failed;
};

const int undamaged = -1;

struct Block {
    Block() : position(0) {}

    QByteArray bytes;
    /** In the file. */
    int position;
};

int DamageOfSignature(const QByteArray &bytes)
{
    const int length = static_cast<int>(sizeof signature);
    for (int i = 0; i < length; ++i) {
        if (i >= bytes.size() || static_cast<unsigned char>(bytes.at(i)) != signature[i]) {
            return i;
        }
    }
    return undamaged;
}

/** Where the block's messages are damaged. @param starts  gets the places in the block where they begin. */
int DamageOfMessages(const QByteArray &block, QSet<quint32> *starts)
{
    Bytes messages(block);
    while (!messages.IsAtEnd()) {
        starts->insert(static_cast<quint32>(messages.Position()));
        quint8 tag = 0;
        while (!messages.HasFailed() && tag != EndTag) {
            const int position = messages.Position();
            tag = messages.Take8();
            switch (tag) {
            case TranslationTag:
            case SourceText16Tag:
            case Context16Tag:
            case SourceTextTag:
            case ContextTag:
            case CommentTag:
                messages.Take(messages.Take32());
                break;
            case HashTag:
                messages.Take32();
                break;
            case EndTag:
                break;
            default:
                return position;
            }
        }
    }
    return messages.HasFailed() ? messages.Position() : undamaged;
}

/** Where the block names a place at which no message begins. */
int DamageOfOffsets(const QByteArray &block, const QSet<quint32> &starts)
{
    Bytes offsets(block);
    while (!offsets.IsAtEnd()) {
        offsets.Take32(); // the hash of the id
        const int position = offsets.Position();
        if (!starts.contains(offsets.Take32()) || offsets.HasFailed()) {
            return position;
        }
    }
    return offsets.HasFailed() ? offsets.Position() : undamaged;
}

int Damage(const QByteArray &bytes)
{
    const int damageOfSignature = DamageOfSignature(bytes);
    if (damageOfSignature != undamaged) {
        return damageOfSignature;
    }
    Bytes file(bytes);
    file.Take(sizeof signature);
    Block offsets;
    Block messages;
    while (!file.IsAtEnd()) {
        const int tagPosition = file.Position();
        const quint8 tag = file.Take8();
        Block block;
        const quint32 length = file.Take32();
        block.position = file.Position();
        block.bytes = file.Take(length);
        switch (tag) {
        case OffsetsBlock:
            offsets = block;
            break;
        case MessagesBlock:
            messages = block;
            break;
        case NumerusBlock:
        case LanguageBlock:
            break;
        default:
            return tagPosition;
        }
    }
    if (file.HasFailed()) {
        return file.Position();
    }
    QSet<quint32> starts;
    const int damageOfMessages = DamageOfMessages(messages.bytes, &starts);
    if (damageOfMessages != undamaged) {
        return messages.position + damageOfMessages;
    }
    if (offsets.bytes.isEmpty() != messages.bytes.isEmpty()) {
        return bytes.size();
    }
    const int damageOfOffsets = DamageOfOffsets(offsets.bytes, starts);
    return damageOfOffsets == undamaged ? undamaged : offsets.position + damageOfOffsets;
}

} // namespace

int DamagedByte(const QByteArray &bytes)
{
    return Damage(bytes) + 1;
}
