#ifndef DIALOGPARTS_H
#define DIALOGPARTS_H

#include <QFont>
#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

/** What the dashboard's dialogs are made of. Whoever gets a part puts it into a layout. */
namespace DialogParts
{

/** A size in pixels that suits fonts of the usual size, for the size of the application's font when that is
 * larger. */
int ForFont(int pixels);

/** A font of another size; one whose size is given in pixels stays as it is. */
QFont Scaled(const QFont &font, qreal factor);

/** Where lines begin in a widget, for a text that stays there in whichever direction it reads itself. */
Qt::Alignment Beginning(const QWidget *widget);

/** Plain text over as many lines as it needs. */
QLabel *Label(const char *name);

/** A label to stand in place of a list that has nothing to show. */
QLabel *EmptyLabel(const char *name);

/** A list with columns, of which whole rows are chosen, one at a time; its rows can't be edited. */
QTableWidget *Table(const char *name, int columns);

/** @param side  where a column's texts begin when the language reads from left to right. */
void SetHeader(QTableWidget *table, int column, const QString &text, Qt::Alignment side);

/** Puts text into a cell, with a tool tip that has all of it; line breaks become blanks. */
void SetCell(QTableWidget *table, int row, int column, const QString &text);

/** The two buttons at the end of a dialog. Once it is in the dialog, accept can be made what Return presses.
 */
QWidget *ButtonBar(const char *name, QPushButton *accept, QPushButton *reject);

/** Tells a problem, and waits until the user has seen it; null is none. */
void Tell(const QString &problem);

} // namespace DialogParts

#endif
