#ifndef INOTIFY_H
#define INOTIFY_H

#include <QObject>

/**
 * The host's events to a plug-in's root object.
 *
 * Table: destructor, Notify.
 */
class INotify
{
public:
    virtual ~INotify() {}

    /**
     * Something happened in the host. Sent on the GUI thread, after Init.
     *
     * LanguageChangeEvent (ContractNumbers.h) is the language change: the host has switched the language that
     * Change::tr and Change::GetLangName answer for, before it sends the event. Every other event number, and
     * both further arguments, have meanings of the host's; a plug-in ignores what it doesn't know.
     *
     * @return 0.
     */
    virtual int Notify(unsigned int event, unsigned int first, unsigned int second) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.torvik.netquillforge.plugin.INotify")

#endif
