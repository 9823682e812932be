#ifndef IBASEINTERFACE_H
#define IBASEINTERFACE_H

/**
 * What every plug-in's root object can be asked, whatever kind of plug-in it is.
 *
 * Table: destructor, Release, GetLastError. The order is binary contract; nothing may be inserted.
 *
 * Thread: the host's GUI thread, as for every interface in this directory.
 * Ownership: an interface pointer is never owned through the interface; the object behind it belongs to
 * whoever the interface was obtained from.
 */
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    /** The caller will not use the interface any more. A plug-in may do nothing; it need not delete itself.
     */
    virtual void Release() = 0;

    /** Code of the last failure, 0 when there was none or when the plug-in keeps no such code. */
    virtual int GetLastError() = 0;
};

#endif
