#include "MessagePage.h"

#include <ActionButton.h>
#include <DialogParts.h>

#include <QAction>
#include <QLabel>
#include <QVBoxLayout>

MessagePage::MessagePage()
    : m_title(DialogParts::Label("messageTitle")), m_text(DialogParts::Label("messageText")),
      m_buttons(new QHBoxLayout)
{
    setObjectName(QLatin1String("messagePage"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    QFont large = DialogParts::Scaled(m_title->font(), 1.2);
    large.setBold(true);
    m_title->setFont(large);
    m_title->setAlignment(Qt::AlignCenter);
    m_text->setAlignment(Qt::AlignCenter);
    m_buttons->setAlignment(Qt::AlignCenter);
    m_buttons->setSpacing(8);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(10);
    layout->addStretch();
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    layout->addLayout(m_buttons);
    layout->addStretch();
}

void MessagePage::Show(const QString &title, const QString &text, const QList<QAction *> &actions)
{
    m_title->setText(title);
    m_text->setText(text);
    // The buttons stay where the same can be done as before: one of them may have the focus.
    if (actions == m_actions) {
        return;
    }
    m_actions = actions;
    while (QLayoutItem *item = m_buttons->takeAt(0)) {
        // It may be the one that has just been pressed.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    for (QAction *action : actions) {
        const QByteArray name = "message_" + action->objectName().toLatin1();
        const TextButton::Look look = m_buttons->isEmpty() ? TextButton::Filled : TextButton::Plain;
        m_buttons->addWidget(new ActionButton(name.constData(), action, look));
    }
}
