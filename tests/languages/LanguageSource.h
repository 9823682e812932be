#ifndef LANGUAGESOURCE_H
#define LANGUAGESOURCE_H

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/** A language file as its translators see it (.ts). */
class LanguageSource
{
public:
    struct Message {
        /** "context/id" */
        QString key;
        /** One, or as many as the language has plural forms. */
        QStringList texts;
        bool isCounted;
        bool isFinished;
        qint64 line;
    };

    /** Ends the program when there is no such file or it is not well-formed. */
    explicit LanguageSource(const QString &language);

    /** The languages that there are files for, and the directory of these. */
    static QStringList Languages();
    static QString Directory();

    /** As the file says it itself. */
    QString Language() const { return m_language; }
    QList<Message> Messages() const { return m_messages; }

    /** By key; the last of several with the same. */
    QMap<QString, Message> ByKey() const;

    /** Where a message stands, for the one who has to look at it. */
    QString Place(const Message &message) const;

private:
    QString m_fileName;
    QString m_language;
    QList<Message> m_messages;
};

#endif
