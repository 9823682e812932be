#ifndef FILEFAULTTEXT_H
#define FILEFAULTTEXT_H

#include <FileFault.h>

#include <QString>

/** A fault in the current language, with the line: "line 3: <b> doesn't belong there". */
QString FileFaultText(const FileFault &fault);

#endif
