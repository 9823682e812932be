#include "OneLine.h"

#include <QByteArray>

namespace
{

QString EscapedControl(QChar character)
{
    switch (character.unicode()) {
    case '\t':
        return QLatin1String("\\t");
    case '\n':
        return QLatin1String("\\n");
    case '\r':
        return QLatin1String("\\r");
    default:
        break;
    }
    QString escaped;
    const QByteArray bytes = QString(character).toUtf8();
    for (int i = 0; i < bytes.size(); ++i) {
        const int width = 3;
        const int octal = 8;
        escaped += QLatin1String("\\0") + QString::fromLatin1("%1").arg(static_cast<uchar>(bytes.at(i)),
                                                                        width, octal, QLatin1Char('0'));
    }
    return escaped;
}

/** Category "other, control"; and what ends lines and paragraphs in Unicode's own way. */
bool IsControl(QChar character)
{
    return character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph;
}

QString WithoutControls(const QString &text, const QString &backslash)
{
    QString line;
    line.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (IsControl(character)) {
            line += EscapedControl(character);
        } else if (character == QLatin1Char('\\')) {
            line += backslash;
        } else {
            line += character;
        }
    }
    return line;
}

} // namespace

QString OneLine::Escaped(const QString &text)
{
    return WithoutControls(text, QLatin1String("\\\\"));
}

QString OneLine::Shown(const QString &text)
{
    return WithoutControls(text, QLatin1String("\\"));
}
