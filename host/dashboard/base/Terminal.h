#ifndef TERMINAL_H
#define TERMINAL_H

#include <QString>

namespace Terminal
{

/** Says in one line on the standard error output what is wrong; whatever problem holds, it stays one line. */
void Complain(const QString &problem);

} // namespace Terminal

#endif
