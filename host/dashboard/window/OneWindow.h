#ifndef ONEWINDOW_H
#define ONEWINDOW_H

#include <QObject>
#include <QString>
#include <QStringList>

class QWidget;

/**
 * One window for all starts of the program that would show the same: a later one hands its arguments over to
 * the first one, over the session bus, and ends. Where there is no session bus, or the program is built
 * without KDBusAddons, each start has a window of its own.
 */
class OneWindow : public QObject
{
    Q_OBJECT

public:
    /** Ends the program with status 0 when another one with this key has taken the arguments over.
     * @param key  what the window shows: starts with another key have windows of their own. */
    explicit OneWindow(const QString &key);

    /** Brings the window to the front, out of minimized as well; of its dialogs the one that is open. */
    static void Raise(QWidget *window);

signals:
    /** A later start has ended in favour of this one.
     * @param arguments  its own, without the program's name. */
    void StartedAgain(const QStringList &arguments);
};

#endif
