#include "AccessibleRows.h"

/* Lists whose rows are widgets are as the toolkit tells them. */

AccessibleRows::AccessibleRows(QObject *parent) : QObject(parent) {}

AccessibleRows::~AccessibleRows() {}

bool AccessibleRows::eventFilter(QObject *, QEvent *)
{
    return false;
}
