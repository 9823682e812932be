#ifndef IUIPLUGIN_H
#define IUIPLUGIN_H

#include "IBasePlugin.h"

#include <QRect>
#include <QWidget>

/**
 * Root object of a plug-in that may have a window of its own in the dashboard.
 *
 * Table: that of IBasePlugin, then the operations below in their order. A plug-in without a window answers
 * with fixed values and ignores the arguments; settings pages are shown through ISettingUIPlugin instead.
 */
class IUIPlugin : public IBasePlugin
{
public:
    /** Shows the plug-in's window inside parent (not owned, may be null) at rect, in parent's coordinates. */
    virtual bool ShowWindow(QWidget *parent, QRect &rect) = 0;

    /** Shows the plug-in's window and waits for it; the window's result, 0 when there is none. */
    virtual int DoModal() = 0;

    virtual void Hide() = 0;

    /** Adjusts rect, in pixels, to the size that the plug-in's window wants. */
    virtual void FitSize(QRect &rect) = 0;

    /** Whether the plug-in has a window that could be shown now. */
    virtual bool IsReady() = 0;

    /**
     * Tells the name of the language ("en", "ar"). False for an empty name. What makes a plug-in translate
     * its visible texts anew is INotify::Notify with the language-change event, not this.
     */
    virtual bool ChangeLang(const QString &language) = 0;
};

Q_DECLARE_INTERFACE(IUIPlugin, "com.torvik.netquillforge.plugin.IUIPlugin")

#endif
