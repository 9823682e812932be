#include "WordList.h"

#include <TextPattern.h>

#include <QFile>

namespace
{

/** Small letters without what is not spoken: marks of direction, of keys and of Arabic vowels. */
QString Spoken(const QString &text)
{
    QString spoken;
    for (const QChar character : text) {
        if (character == QChar(0xa0)) {
            spoken += QLatin1Char(' ');
        } else if (character != QLatin1Char('&') && character.category() != QChar::Other_Format &&
                   character.category() != QChar::Mark_NonSpacing) {
            spoken += character.toLower();
        }
    }
    // A name of its own.
    return spoken.remove(QLatin1String("networkmanager"));
}

QStringList Cells(const QString &line)
{
    QStringList cells = line.split(QLatin1Char('|'));
    for (QString &cell : cells) {
        cell = cell.trimmed();
    }
    return cells.mid(1, cells.size() - 2);
}

QStringList Between(const QString &mark, const QString &cell)
{
    return TextPattern::FindAll(cell, mark + QLatin1String("(.+?)") + mark);
}

/** English words begin where they are said to begin, and end there unless letters follow in the table. */
QStringList EnglishPatterns(const QString &cell)
{
    QStringList patterns;
    for (const QString &marked : TextPattern::FindAll(cell, QLatin1String("\\*\\*.+?\\*\\*\\w*"))) {
        const QStringList parts = marked.split(QLatin1String("**"));
        patterns.append(QLatin1String("\\b") + parts.at(1) +
                        QLatin1String(parts.at(2).isEmpty() ? "s?\\b" : ""));
    }
    return patterns;
}

} // namespace

WordList::WordList(const QString &language) : m_isEnglish(language == QLatin1String("en"))
{
    QFile file(QLatin1String(SOURCE_DIRECTORY "/docs/translating.md"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("the list of words can't be read");
    }
    int column = -1;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QStringList cells = Cells(line);
        if (cells.isEmpty()) {
            column = -1;
        } else if (cells.first() == QLatin1String("word")) {
            column = cells.indexOf(language);
        } else if (column >= 0 && !cells.first().startsWith(QLatin1Char('-'))) {
            const QString cell = cells.value(column);
            Word word;
            word.name = cells.first();
            word.parts = m_isEnglish ? EnglishPatterns(cell) : Between(QLatin1String("\\*\\*"), cell);
            word.forbidden = Between(QLatin1String("~~"), cell);
            m_words.append(word);
        }
    }
    if (m_words.isEmpty()) {
        qFatal("there is no table of words of the language %s", qPrintable(language));
    }
}

WordList::Word WordList::Find(const QString &name) const
{
    for (const Word &word : m_words) {
        if (word.name == name) {
            return word;
        }
    }
    qFatal("there is no word %s", qPrintable(name));
    return Word();
}

bool WordList::Has(const QString &text, const Word &word) const
{
    const QString spoken = Spoken(text);
    for (const QString &part : word.parts) {
        if (m_isEnglish ? TextPattern::IsIn(spoken, part) : spoken.contains(Spoken(part))) {
            return true;
        }
    }
    return false;
}

QString WordList::ForbiddenIn(const QString &text, const Word &word)
{
    const QString spoken = Spoken(text);
    for (const QString &forbidden : word.forbidden) {
        if (spoken.contains(Spoken(forbidden))) {
            return forbidden;
        }
    }
    return QString();
}
