#ifndef ACTIONBUTTON_H
#define ACTIONBUTTON_H

#include "TextButton.h"

class QAction;

/** A button that does what an action does, and shows its text, its tool tip and whether it can be done. The
 * action's shortcut works in the button's window too. */
class ActionButton : public TextButton
{
    Q_OBJECT

public:
    /** @param action  not owned; outlives the button. */
    ActionButton(const char *name, QAction *action, Look look = Plain);

private slots:
    void Follow();

private:
    QAction *const m_action;
};

#endif
