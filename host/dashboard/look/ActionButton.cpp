#include "ActionButton.h"

#include <QAction>

ActionButton::ActionButton(const char *name, QAction *action, Look look)
    : TextButton(name, look), m_action(action)
{
    addAction(action);
    connect(this, SIGNAL(clicked()), action, SLOT(trigger()));
    connect(action, SIGNAL(changed()), this, SLOT(Follow()));
    Follow();
}

void ActionButton::Follow()
{
    // Without the mnemonic: that one belongs to the menu.
    setText(m_action->iconText());
    setToolTip(m_action->toolTip());
    setAccessibleDescription(m_action->whatsThis());
    setEnabled(m_action->isEnabled());
}
