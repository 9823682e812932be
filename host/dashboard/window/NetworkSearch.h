#ifndef NETWORKSEARCH_H
#define NETWORKSEARCH_H

#include <QLineEdit>

class NetworkList;
class QAction;

/** Finds the networks of the list by a part of their names. It is there where the list is long, and wherever
 * it is asked for. */
class NetworkSearch : public QLineEdit
{
    Q_OBJECT

public:
    /** @param list  not owned; outlives this. */
    explicit NetworkSearch(NetworkList *list);

    // Not owned by whoever gets them.
    QAction *StartAction() const { return m_start; }
    QAction *ClearAction() const { return m_clear; }

    /** Whether it was asked for, and not left since. */
    bool IsWanted() const { return m_isWanted || !text().isEmpty(); }

    /** Shows the field where it helps. */
    void Follow();
    void Retranslate();

signals:
    /** What is found, or whether the field is wanted, is another. */
    void Changed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Start();
    void Leave();
    void Find();

    NetworkList *const m_list;
    QAction *const m_start;
    QAction *const m_clear;
    bool m_isWanted = false;
};

#endif
