#ifndef FUNCTONTRICK_H
#define FUNCTONTRICK_H

#include <QString>

/**
 * Writes a trace line when it is created at the top of a function and another when the function returns, on
 * whatever path. All trace lines of the plug-in go through qDebug, always; what becomes of them is the host's
 * affair.
 */
class CFunctonTrick
{
public:
    /** detailFormat and what follows it make the entry line's detail text by the rules of printf; %s reads
     * UTF-8. */
    CFunctonTrick(QString sourcePath, QString functionName, const char *detailFormat, ...);
    ~CFunctonTrick();

private:
    Q_DISABLE_COPY(CFunctonTrick)

    QString m_functionName;
    QString m_sourcePath;
};

/**
 * The line formats that the modules share. Blanks before the first colon differ between families of lines,
 * and log readers match them as they are.
 */
namespace TraceLine
{

/** The current time of day as "hh:mm:ss:zzz", in the local 8-bit encoding as qDebug takes it. */
QByteArray CurrentTime();

void Called(const char *sourcePath, const char *function);
void InitCalled(const char *sourcePath, const char *function);
void Exited(const char *sourcePath, const char *function);
void ArgumentIsNull(const char *sourcePath, const char *function, int line);

} // namespace TraceLine

#endif
