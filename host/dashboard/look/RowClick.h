#ifndef ROWCLICK_H
#define ROWCLICK_H

class QTableWidget;

/**
 * Clicks a row, scrolled into sight, as the user does: plug-ins follow the table's cellClicked, which comes
 * of a click and of nothing else. Does nothing where there is no such row or the user could not click it.
 */
void ClickRow(QTableWidget *table, int row);

#endif
