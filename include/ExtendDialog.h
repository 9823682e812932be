#ifndef EXTENDDIALOG_H
#define EXTENDDIALOG_H

#include "HostExport.h"

#include <QDialog>

class QLabel;

/** Kinds of dialog frame. */
enum enWidgetType {
    /** The ordinary dialog: title bar with close button, the body below it. */
    enWidgetTypeDialog = 1
};

/**
 * The dashboard's dialog frame: title bar, close button, styling. A plug-in's dialog is a frame derived from
 * this one and a body widget inside it. Core UI library, GUI thread.
 *
 * The class adds no virtual operation to QDialog but its destructor, and one pointer to QDialog's size.
 * Plug-ins derive from it, so both are binary contract.
 */
class HOST_EXPORT ExtendDialog : public QDialog
{
public:
    /**
     * @param parent  owns the frame in the way of every QObject; may be null.
     * @param flags   further window flags; Qt::WindowCloseButtonHint gives the close button.
     * @param type    always enWidgetTypeDialog.
     */
    ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType type);
    ~ExtendDialog() override;

    /** Places body below the title bar and takes ownership of it. Call it once; null does nothing. */
    void AddMainWidget(QWidget *body);

    /** Sets the title shown in the frame's title bar, and the window's own. */
    void setWindowTitle(const QString &title);

private:
    Q_DISABLE_COPY(ExtendDialog)

    QLabel *m_titleLabel;
};

#endif
