#ifndef ACCESSIBLEROWS_H
#define ACCESSIBLEROWS_H

#include <QObject>

/**
 * Tells screen readers of lists whose rows are widgets. Qt shows them a table's items only, and
 * plug-ins fill tables with widgets and hide the headers: each row is a cell without a name, then. While this
 * lives, such tables have their rows' widgets as cells, which are called by the accessible names that
 * plug-ins give them.
 */
class AccessibleRows : public QObject
{
    Q_OBJECT

public:
    explicit AccessibleRows(QObject *parent);
    ~AccessibleRows() override;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif
