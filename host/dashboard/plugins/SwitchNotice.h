#ifndef SWITCHNOTICE_H
#define SWITCHNOTICE_H

#include <QObject>
#include <QString>

/** Tells the user through the desktop's notifications when the list has switched to another network, while
 * the user wants that. Nothing waits for the desktop; where it has no notifications, nothing happens. */
class SwitchNotice : public QObject
{
    Q_OBJECT

public:
    /** The plug-ins are loaded. */
    SwitchNotice();

    /** The texts, in the current language. The title is plain text, the body markup. */
    static QString Title(const QString &name);
    static QString Body(const QString &former);

private slots:
    void Tell(const QString &name, const QString &former);

private:
    Q_DISABLE_COPY(SwitchNotice)
};

#endif
