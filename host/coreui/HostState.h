#ifndef HOSTSTATE_H
#define HOSTSTATE_H

#include "LanguageFiles.h"

#include <QString>

class IPluginContainer;

/** What the host application has set through HostControl. */
struct HostState {
    IPluginContainer *pluginContainer = nullptr;

    /** A null text while the application has set none. */
    QString pluginLibraryPath;

    LanguageFiles languages;

    static HostState &Instance();
};

#endif
