#ifndef WORDLIST_H
#define WORDLIST_H

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/** The words of the program in a language, as docs/translating.md has them in its tables. */
class WordList
{
public:
    struct Word {
        /** What the tables call it, in English. */
        QString name;
        /** Parts of which every text about it has one. */
        QStringList parts;
        /** What is not to be written for it. */
        QStringList forbidden;
    };

    /** Ends the program when there is no table of the language. */
    explicit WordList(const QString &language);

    QList<Word> Words() const { return m_words; }
    Word Find(const QString &name) const;

    /** Whether a text has the word in it. */
    bool Has(const QString &text, const Word &word) const;

    /** Which of the forbidden words a text has in it; null when it has none. */
    static QString ForbiddenIn(const QString &text, const Word &word);

private:
    bool m_isEnglish;
    QList<Word> m_words;
};

#endif
