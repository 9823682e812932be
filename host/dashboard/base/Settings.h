#ifndef SETTINGS_H
#define SETTINGS_H

#include <QString>
#include <QVariant>

/** What the dashboard remembers of its user's choices, in the file "dashboard.ini" of the user data
 * directory. */
class Settings
{
public:
    static QVariant Read(const QString &key);

    /** A value that can't be kept is lost when the program ends, and that is told in the trace. */
    static void Write(const QString &key, const QVariant &value);
};

#endif
