#include "TraceCapture.h"

#include "TextPattern.h"

#include <QMutex>
#include <QMutexLocker>

namespace
{

QMutex linesLock;
QStringList capturedLines;

void Collect(QtMsgType, const QMessageLogContext &, const QString &text)
{
    QMutexLocker locker(&linesLock);
    capturedLines.append(text);
}

} // namespace

TraceCapture::TraceCapture()
{
    Clear();
    qInstallMessageHandler(Collect);
}

TraceCapture::~TraceCapture()
{
    qInstallMessageHandler(nullptr);
}

QStringList TraceCapture::Lines() const
{
    QMutexLocker locker(&linesLock);
    return capturedLines;
}

void TraceCapture::Clear()
{
    QMutexLocker locker(&linesLock);
    capturedLines.clear();
}

QStringList TraceCapture::Normalised() const
{
    QStringList lines = Lines();
    for (int i = 0; i < lines.size(); ++i) {
        const QString timed = TextPattern::Replaced(
            lines.at(i), QLatin1String("\\b\\d\\d:\\d\\d:\\d\\d:\\d\\d\\d\\b"), QLatin1String("TIME"));
        lines[i] =
            TextPattern::Replaced(timed, QLatin1String("\\b\\d\\d:\\d\\d:\\d\\d\\b"), QLatin1String("BUILD"));
    }
    return lines;
}
