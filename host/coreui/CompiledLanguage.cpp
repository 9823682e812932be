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

/** Where the messages of the block begin; empty when they aren't whole. */
QSet<quint32> MessageStarts(const QByteArray &block)
{
    QSet<quint32> starts;
    Bytes messages(block);
    while (!messages.IsAtEnd()) {
        starts.insert(static_cast<quint32>(messages.Position()));
        for (quint8 tag = messages.Take8(); tag != EndTag; tag = messages.Take8()) {
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
            default:
                return QSet<quint32>();
            }
        }
    }
    return messages.HasFailed() ? QSet<quint32>() : starts;
}

} // namespace

bool IsIntactCompiledLanguage(const QByteArray &bytes)
{
    Bytes file(bytes);
    if (file.Take(sizeof signature) !=
        QByteArray(reinterpret_cast<const char *>(signature), sizeof signature)) {
        return false;
    }
    QByteArray offsetsBlock;
    QByteArray messagesBlock;
    while (!file.IsAtEnd()) {
        const quint8 tag = file.Take8();
        const QByteArray block = file.Take(file.Take32());
        switch (tag) {
        case OffsetsBlock:
            offsetsBlock = block;
            break;
        case MessagesBlock:
            messagesBlock = block;
            break;
        case NumerusBlock:
        case LanguageBlock:
            break;
        default:
            return false;
        }
    }
    const QSet<quint32> starts = MessageStarts(messagesBlock);
    Bytes offsets(offsetsBlock);
    while (!offsets.IsAtEnd()) {
        offsets.Take32(); // the hash of the id
        if (!starts.contains(offsets.Take32())) {
            return false;
        }
    }
    return !file.HasFailed() && !offsets.HasFailed() && !offsetsBlock.isEmpty();
}
