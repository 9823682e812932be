#ifndef EXTENDLINEEDIT_H
#define EXTENDLINEEDIT_H

#include "HostExport.h"

#include <QLineEdit>

/** A line edit in the dashboard's style; everything else is QLineEdit's. Core UI library, GUI thread. */
class HOST_EXPORT ExtendLineEdit : public QLineEdit
{
public:
    /** @param parent  owns the line edit; may be null. */
    explicit ExtendLineEdit(QWidget *parent);
};

#endif
