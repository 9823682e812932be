#include "LanguageSource.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

LanguageSource::LanguageSource(const QString &language) : m_fileName(language + QLatin1String(".ts"))
{
    QFile file(Directory() + QLatin1Char('/') + m_fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("there is no %s", m_fileName.toLocal8Bit().constData());
    }
    QXmlStreamReader reader(&file);
    QString context;
    Message message;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement && reader.name() == QLatin1String("message")) {
            m_messages.append(message);
        }
        if (token != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("TS")) {
            m_language = reader.attributes().value(QLatin1String("language")).toString();
        } else if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("message")) {
            message = Message();
            message.line = reader.lineNumber();
            message.isCounted = !reader.attributes().value(QLatin1String("numerus")).isEmpty();
        } else if (reader.name() == QLatin1String("source")) {
            message.key = context + QLatin1Char('/') + reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            message.isFinished = reader.attributes().value(QLatin1String("type")).isEmpty();
            if (!message.isCounted) {
                message.texts.append(reader.readElementText());
            }
        } else if (reader.name() == QLatin1String("numerusform")) {
            message.texts.append(reader.readElementText());
        }
    }
    if (reader.hasError()) {
        qFatal("%s:%d: %s", m_fileName.toLocal8Bit().constData(), static_cast<int>(reader.lineNumber()),
               reader.errorString().toLocal8Bit().constData());
    }
}

QString LanguageSource::Directory()
{
    return QLatin1String(SOURCE_DIRECTORY "/host/languages");
}

QStringList LanguageSource::Languages()
{
    QStringList languages = QDir(Directory()).entryList(QStringList(QLatin1String("*.ts")));
    for (int i = 0; i < languages.size(); ++i) {
        languages[i].chop(3);
    }
    return languages;
}

QMap<QString, LanguageSource::Message> LanguageSource::ByKey() const
{
    QMap<QString, Message> messages;
    foreach (const Message &message, m_messages) {
        messages.insert(message.key, message);
    }
    return messages;
}

QString LanguageSource::Place(const Message &message) const
{
    return QString::fromLatin1("%1:%2: %3").arg(m_fileName).arg(message.line).arg(message.key);
}
