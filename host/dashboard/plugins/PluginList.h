#ifndef PLUGINLIST_H
#define PLUGINLIST_H

#include <ListSource.h>

/** The list as the priority plug-in behind the host's container has it. */
class PluginList : public ListSource
{
public:
    ListReading Read() override;
    void FileReplaced() override;
};

#endif
