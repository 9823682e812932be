#ifndef COMMONUTILS_H
#define COMMONUTILS_H

#include "HostExport.h"

#include <QMessageBox>
#include <QString>
#include <qnamespace.h>

class QDialog;
class QLabel;
class QWidget;

/** Common services of the dashboard for its plug-ins. Core UI library, GUI thread. */
class HOST_EXPORT CommonUtils
{
public:
    /**
     * The directory under which the plug-ins' folders lie, without a trailing separator: a plug-in finds its
     * resources in <this>/plugins/<its name>/. The same for the life of the process.
     */
    static QString GetPluginLibraryPath();

    /**
     * Sets label's text to text, shortened with an ellipsis where it doesn't fit label's width. Set the
     * label's width and font before. A null label does nothing. text may be a name of any length, megabytes
     * too: what can't be seen of it is not to be laid out.
     */
    static void ElidedText(QLabel *label, QString text, Qt::TextElideMode mode);

    /**
     * Shows a message and waits for the answer in a nested event loop: whatever the caller holds may have
     * changed when this returns, the caller itself may be gone.
     *
     * @param icon     QMessageBox::Question for a question, QMessageBox::Information for a notice.
     * @param parent   not owned, may be null.
     * @param title    already translated.
     * @param text     already translated.
     * @param button1, button2, button3  captions as resource ids ("IDS_OK"), translated here; an empty
     * caption is no button.
     * @param modal    whether the rest of the dashboard waits.
     * @param flags    window flags; Qt::WindowCloseButtonHint gives the close button.
     * @param dialog   when not null, receives the dialog while it is open and null afterwards.
     * @param detail   further text, shown below when not empty.
     * @param onTop    whether the message stays above the window it belongs to.
     * @return QMessageBox::Ok (1024) for the first button, QMessageBox::Cancel (4194304) for the second and
     * for a message closed without an answer, QMessageBox::Ignore (1048576) for the third.
     */
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                           QString button1, QString button2, QString button3, bool modal,
                           Qt::WindowFlags flags, QDialog **dialog, QString detail, bool onTop);
};

#endif
