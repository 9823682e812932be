#ifndef PAGEKEYS_H
#define PAGEKEYS_H

#include <QObject>

class QKeyEvent;
class QTableWidget;
class QWidget;

/**
 * Keys in the lists of settings pages. A plug-in may keep every key that its list gets to itself; so that the
 * keyboard gets on and off such a list, the dialog takes its own keys before: Tab, Return and Escape do what
 * they do everywhere, and Ctrl with an arrow chooses a row, as a click does.
 */
class PageKeys : public QObject
{
    Q_OBJECT

public:
    /** @param pages  in which the lists are, in dialog, which owns this. */
    PageKeys(QWidget *dialog, QWidget *pages);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool Take(QTableWidget *list, QKeyEvent *key);

    QWidget *m_dialog;
    QWidget *m_pages;
};

#endif
