#ifndef SYSTEMCALLS_H
#define SYSTEMCALLS_H

#include <QString>
#include <QStringList>

/**
 * The system calls that libraries make to get at files and at the network pass through here, because the
 * executable exports functions of their names: they can be watched, made to fail, and something can be done
 * just before one.
 */
namespace SystemCalls
{

enum Call { Open, Read, Write, Unlink, Rename, Sync, CallCount };

/** Called before a file of the watched directory is opened. */
class Listener
{
public:
    virtual ~Listener() {}
    virtual void BeforeOpen(const QString &path, bool forWriting) = 0;
};

/** Calls on files below directory count and are recorded; null listener is none. Ends with Forget. */
void Watch(const QString &directory, Listener *listener = nullptr);
void Forget();

/** From now on the number-th call of its kind on the watched files fails, counted from 1. */
void MakeFail(Call call, int number, int error);
bool HasFailed();

/**
 * At the number-th call of any kind on the watched files the process is killed; when that call writes, after
 * so many of its bytes.
 */
void MakeDie(int number, int bytes);

/** What was opened since Watch, inside and outside of the directory; "socket" for a way to the network. */
QStringList Opened();

} // namespace SystemCalls

#endif
