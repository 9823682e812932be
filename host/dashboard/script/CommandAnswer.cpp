#include "CommandAnswer.h"

#include <OneLine.h>
#include <Terminal.h>

#include <QJsonDocument>

#include <cstdio>

namespace
{

const QChar tab = QLatin1Char('\t');

} // namespace

QString CommandAnswer::Line(const QString &first, const QString &second)
{
    return first + tab + second + QLatin1Char('\n');
}

QString CommandAnswer::Fields(const PriorityList &entry)
{
    return OneLine::Escaped(entry.type) + tab + OneLine::Escaped(entry.name);
}

QJsonObject CommandAnswer::Json(const PriorityList &entry)
{
    return {{QLatin1String("type"), entry.type}, {QLatin1String("name"), entry.name}};
}

CommandStatus CommandAnswer::Print(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const std::size_t size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        return Fail(CommandNotWritten, QLatin1String("the standard output can't be written"));
    }
    return CommandDone;
}

CommandStatus CommandAnswer::Print(const QJsonObject &object)
{
    return Print(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + QLatin1Char('\n'));
}

CommandStatus CommandAnswer::Fail(CommandStatus status, const QString &problem)
{
    Terminal::Complain(problem);
    return status;
}
