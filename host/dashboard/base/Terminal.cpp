#include "Terminal.h"

#include "OneLine.h"

#include <cstdio>

void Terminal::Complain(const QString &problem)
{
    std::fprintf(stderr, "priority-dashboard: %s\n",
                 OneLine::Shown(problem.trimmed()).toLocal8Bit().constData());
}
