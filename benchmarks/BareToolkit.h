#ifndef BARETOOLKIT_H
#define BARETOOLKIT_H

#include <PriorityList.h>

#include <QDialog>
#include <QIcon>
#include <QList>
#include <QListWidget>
#include <QPixmap>
#include <QStringList>
#include <QTableWidget>

/*
 * What the plug-in's work costs at least: the same result got from Qt by the shortest road, with no
 * trace, no checks and no care for what goes wrong. These are what the plug-in is measured against.
 */

/** Reads path, in the format of the priority file, to the end of *list. */
void BareRead(const QString &path, QList<PriorityList> *list);

/** Deletes path and writes list to it. */
void BareWrite(const QString &path, const QList<PriorityList> &list);

/** A table with one cell widget of two labels per row: the picture, and the name shortened to fit. */
class BareTable : public QTableWidget
{
public:
    explicit BareTable(QWidget *parent);

    /** Empties the table and fills it again. */
    void Rebuild(const QPixmap &icon, const QStringList &names);
};

/** A list of items with an icon and a name each. */
class BareList : public QListWidget
{
public:
    explicit BareList(QWidget *parent);

    /** Reads the icon from iconPath for each item. */
    void Rebuild(const QString &iconPath, const QStringList &names);
    void RebuildWithOneIcon(const QIcon &icon, const QStringList &names);
};

/** A dialog with a bare table and two buttons under it. */
class BareDialog : public QDialog
{
public:
    BareDialog(QWidget *parent, const QPixmap &icon, const QStringList &names);

    BareTable *Table() const { return m_table; }

private:
    BareTable *m_table;
};

#endif
