#include "FunctonTrick.h"

#include <ToolkitCompat.h>

#include <QDateTime>
#include <QtDebug>

#include <cstdarg>
#include <ctime>

namespace
{

const qint64 millisecondsPerSecond = 1000;
const int usualLineLength = 160;

/** Names of sources and functions are ASCII, which is the same in every encoding a line can be in; the
 * toolkit's conversion takes longer. */
void AppendLocal8Bit(QByteArray &line, const QString &text)
{
    const int before = line.size();
    line.resize(before + text.size());
    char *end = line.data() + before;
    ushort units = 0;
    for (int i = 0; i < text.size(); ++i) {
        units |= text.at(i).unicode();
        end[i] = char(text.at(i).unicode());
    }
    if (units > 0x7f) {
        line.truncate(before);
        line += text.toLocal8Bit();
    }
}

/** With the colon behind them. */
void AppendTwoDigits(QByteArray &time, int number)
{
    const char digits[] = {char('0' + number / 10), char('0' + number % 10), ':'};
    time.append(digits, sizeof digits);
}

/** What both lines begin with. One text for the whole line: Qt converts each that it is given. */
QByteArray LineStart(const QString &sourcePath, const QString &function)
{
    QByteArray line = TraceLine::CurrentTime();
    line += ": ";
    AppendLocal8Bit(line, sourcePath);
    line += ": ";
    AppendLocal8Bit(line, function);
    return line;
}

} // namespace

CFunctonTrick::CFunctonTrick(QString sourcePath, QString functionName, const char *detailFormat, ...)
    : m_functionName(functionName), m_sourcePath(sourcePath)
{
    QByteArray line = LineStart(m_sourcePath, m_functionName);
    line += ": Entered ";
    if (detailFormat && *detailFormat) {
        va_list arguments;
        va_start(arguments, detailFormat);
        line += ToolkitCompat::FormatText(detailFormat, arguments).toLocal8Bit();
        va_end(arguments);
    }
    qDebug("%s", line.constData());
}

CFunctonTrick::~CFunctonTrick()
{
    QByteArray line = LineStart(m_sourcePath, m_functionName);
    line += ": Exit";
    qDebug("%s", line.constData());
}

namespace TraceLine
{

/*
 * Asked of the C library, which keeps the time zone in mind: Qt looks at the time zone's file each
 * time it is asked for the time of day.
 */
QByteArray CurrentTime()
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const std::time_t second = std::time_t(now / millisecondsPerSecond);
    const int milliseconds = int(now % millisecondsPerSecond);
    std::tm local;
    localtime_r(&second, &local);
    QByteArray time;
    time.reserve(usualLineLength);
    AppendTwoDigits(time, local.tm_hour);
    AppendTwoDigits(time, local.tm_min);
    AppendTwoDigits(time, local.tm_sec);
    time += char('0' + milliseconds / 100);
    time += char('0' + milliseconds / 10 % 10);
    time += char('0' + milliseconds % 10);
    return time;
}

void Called(const char *sourcePath, const char *function)
{
    qDebug("%s: %s called", sourcePath, function);
}

void InitCalled(const char *sourcePath, const char *function)
{
    qDebug("%s: %s: called", sourcePath, function);
}

void Exited(const char *sourcePath, const char *function)
{
    qDebug("%s: %s exit", sourcePath, function);
}

void ArgumentIsNull(const char *sourcePath, const char *function, int line)
{
    qDebug("Arg is NULL: %s: %s: %s %d", CurrentTime().constData(), sourcePath, function, line);
}

} // namespace TraceLine
