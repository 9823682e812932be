#ifndef APPEARANCE_H
#define APPEARANCE_H

#include <QPalette>

/** The colours of all windows: those of the desktop, or light or dark ones of the dashboard's own. */
namespace Appearance
{

enum Choice { System, Light, Dark };

/** What the user chose last. */
Choice Stored();
void Store(Choice choice);

/** Gives the windows these colours; call it once the QApplication stands. */
void Apply(Choice choice);

/** The dashboard's own colours. */
QPalette Colours(bool isDark);

} // namespace Appearance

#endif
