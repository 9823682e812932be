#ifndef MESSAGEPAGE_H
#define MESSAGEPAGE_H

#include <QList>
#include <QWidget>

class QAction;
class QHBoxLayout;
class QLabel;

/** Stands in the list's place while there is no list to show: why, and what can be done about it. */
class MessagePage : public QWidget
{
    Q_OBJECT

public:
    MessagePage();

    /** @param actions  one button each, the one that helps most first; not owned, and outlive the page. */
    void Show(const QString &title, const QString &text, const QList<QAction *> &actions);

private:
    QList<QAction *> m_actions;
    QLabel *m_title;
    QLabel *m_text;
    QHBoxLayout *m_buttons;
};

#endif
