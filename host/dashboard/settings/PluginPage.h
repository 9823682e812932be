#ifndef PLUGINPAGE_H
#define PLUGINPAGE_H

#include "SettingsPage.h"

#include <PluginHost.h>

class ISettingUIPlugin;

/** A plug-in's page in the settings dialog, or what stands in its place when the plug-in gives none. */
class PluginPage : public SettingsPage
{
public:
    /** @param page  the plug-in's, not owned; may be null. */
    PluginPage(const PluginHost::Plugin &plugin, ISettingUIPlugin *page);

    /** The page that plug-in has, or null when it has none to offer and none is to be expected of it. */
    static PluginPage *Make(const PluginHost::Plugin &plugin, PluginHost *host);

    QString Title() const override;
    bool Show(QWidget *place) override;
    QString ProblemText() const override;
    /** The page of a list that can't be read in full hears of Cancel in place of OK. */
    void Close(Answer answer) override;
    void Retranslate() override;

private:
    const PluginHost::Plugin m_plugin;
    ISettingUIPlugin *const m_page;
};

#endif
