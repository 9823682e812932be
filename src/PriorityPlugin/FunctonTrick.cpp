#include "FunctonTrick.h"

#include <ToolkitCompat.h>

#include <QTime>
#include <QtDebug>

#include <cstdarg>

CFunctonTrick::CFunctonTrick(QString sourcePath, QString functionName, const char *detailFormat, ...)
    : m_functionName(functionName), m_sourcePath(sourcePath)
{
    va_list arguments;
    va_start(arguments, detailFormat);
    const QString detail = ToolkitCompat::FormatText(detailFormat, arguments);
    va_end(arguments);

    qDebug("%s: %s: %s: Entered %s", TraceLine::CurrentTime().constData(),
           m_sourcePath.toLocal8Bit().constData(), m_functionName.toLocal8Bit().constData(),
           detail.toLocal8Bit().constData());
}

CFunctonTrick::~CFunctonTrick()
{
    qDebug("%s: %s: %s: Exit", TraceLine::CurrentTime().constData(), m_sourcePath.toLocal8Bit().constData(),
           m_functionName.toLocal8Bit().constData());
}

namespace TraceLine
{

QByteArray CurrentTime()
{
    return QTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz")).toLocal8Bit();
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
