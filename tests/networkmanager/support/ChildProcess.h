#ifndef CHILDPROCESS_H
#define CHILDPROCESS_H

#include <QProcess>
#include <QStringList>

/** A program that ends with the test at the latest, however the test ends. */
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    ChildProcess();
    ~ChildProcess() override;

    /** What it prints goes to a file. False when it can't be started. */
    bool Begin(const QString &program, const QStringList &arguments, const QString &logFile);

    /** Ends it and waits for that. */
    void End();

    /** As a crash does. */
    void Kill();

    /** Keeps it from doing anything until Thaw. */
    void Freeze();
    void Thaw();

    static QString Find(const QString &program);

private:
    bool m_isFrozen;
};

#endif
