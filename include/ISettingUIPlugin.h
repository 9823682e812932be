#ifndef ISETTINGUIPLUGIN_H
#define ISETTINGUIPLUGIN_H

#include <QObject>
#include <QRect>
#include <QString>
#include <QWidget>

/**
 * A page of the host's settings dialog.
 *
 * Obtained with IBasePlugin::QueryInterface (SettingInterface or PriorityInterface) and qobject_cast. Valid
 * until IDestroyEvent::OnDestroy.
 *
 * Table: destructor, then the operations below in their order.
 *
 * What the host owes the page: before it deletes the dialog, or any widget between the dialog and the page,
 * it calls one of OnClickSettingOkButton, OnClickSettingCancelButton or HideSetting, which take the page out
 * of the dialog again. A page that is deleted along with a dialog is replaced by a fresh one at the next
 * ShowSettingDialog; that one shows the list and edits it, but it no longer follows what other plug-ins add
 * while it is open.
 */
class ISettingUIPlugin
{
public:
    virtual ~ISettingUIPlugin() {}

    /** The user confirmed the settings dialog: the page's state is stored and the page hidden. Always true.
     */
    virtual bool OnClickSettingOkButton() = 0;

    /** The user dismissed the settings dialog: the page is hidden. What it already stored stays stored.
     * Always true. */
    virtual bool OnClickSettingCancelButton() = 0;

    /**
     * Shows the page as a child of parent.
     *
     * @param parent  not owned; takes the page as its child until the page is hidden. Null: nothing is shown.
     * @param rect    where, in parent's coordinates and pixels. Only the top left corner counts: the page is
     * 420 x 374 each time it is shown. A host that resizes it afterwards cuts off what is in it or adds empty
     * room, as its content keeps that size.
     * @return false when there is no page any more, that is after OnDestroy; else true, with a null parent
     * too. The page freshly loads its content each time it is shown, and nothing in it is selected.
     */
    virtual bool ShowSettingDialog(QWidget *parent, QRect &rect) = 0;

    /** The page's title in the current language, for the settings dialog's list of pages. */
    virtual QString GetModuleName() = 0;

    /** Takes the page out of its parent and hides it; harmless when it isn't shown. Always true. */
    virtual bool HideSetting() = 0;

    /** Whether the page is to be offered at all. */
    virtual bool IsActiveSetting() = 0;
};

Q_DECLARE_INTERFACE(ISettingUIPlugin, "com.torvik.netquillforge.plugin.ISettingUIPlugin")

#endif
