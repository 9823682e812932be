#ifndef TOURPROGRAM_H
#define TOURPROGRAM_H

#include "TourDirectory.h"

#include <QApplication>
#include <QString>
#include <QStringList>

#include <memory>

class DashboardLanguage;
class MainWindow;
class PluginHost;
class Tour;
class TraceLog;

/** A program that takes the tour: the dashboard's window with plug-ins, a language and data of its own. */
class TourProgram
{
public:
    struct Options {
        QString directory;
        QString language;
        /** As the dashboard's option; empty for that of the build tree. */
        QString pluginDirectory;
    };

    /** No arguments: there is a directory to be named. What is wrong with them is said, and the program ends.
     */
    static Options Read(int argc, char **argv);

    /** Makes the directory and the application. What is in the way is said, and the program ends. */
    TourProgram(int *argc, char **argv, const Options &options);
    ~TourProgram();

    /** Loads the plug-ins and opens the window; fonts are chosen before. */
    void Open();

    MainWindow *Window() const { return m_window.get(); }
    Tour *TheTour() const { return m_tour.get(); }

    /** Takes the tour; returns the program's exit status. */
    int Run();

private:
    Q_DISABLE_COPY(TourProgram)

    const Options m_options;
    TourDirectory m_directory;
    std::unique_ptr<TraceLog> m_log;
    std::unique_ptr<QApplication> m_application;
    std::unique_ptr<PluginHost> m_plugins;
    std::unique_ptr<DashboardLanguage> m_language;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Tour> m_tour;
};

#endif
