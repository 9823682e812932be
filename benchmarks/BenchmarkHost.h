#ifndef BENCHMARKHOST_H
#define BENCHMARKHOST_H

#include "RememberedNetworks.h"

#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>
#include <PluginHost.h>

#include <QScopedPointer>
#include <QTableWidget>
#include <QWidget>

/**
 * The plug-in as the dashboard has it: loaded by the dashboard's own loader, served by the reference host
 * libraries, its page in a window. The WLAN plug-in is an object of this program.
 */
class BenchmarkHost : public PluginHost
{
public:
    /** @param libraryPath  the directory with plugins/PriorityPlugin in it. */
    explicit BenchmarkHost(const QString &libraryPath);
    ~BenchmarkHost() override;

    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override;

    QObject *Service();
    IPriorityPlugin *Priority();
    ISettingUIPlugin *Setting();

    void ShowPage();
    void HidePage();
    QWidget *Window() { return &m_window; }
    QWidget *Page() { return m_window.findChild<QWidget *>(QLatin1String("priorityPage")); }
    QTableWidget *Table() { return m_window.findChild<QTableWidget *>(QLatin1String("priorityTable")); }

    RememberedNetworks wlan;

private:
    QWidget m_window;
};

#endif
