#ifndef WINDOWPROBLEMS_H
#define WINDOWPROBLEMS_H

#include <Banner.h>
#include <HostControl.h>

class ConnectionOrder;
class ListKeeper;
class PluginHost;
struct Overview;

/** What is wrong with what the main window shows, in words. */
namespace WindowProblems
{

Banner::Problem OfOrder(const ConnectionOrder &order);

/** Of the list and of the file with the earlier lists. @param repair  what asks the user about a damaged
 * list. */
QList<Banner::Problem> OfList(const Overview &overview, const ListKeeper &keeper, QAction *repair);

/** Of plug-ins and files with languages. Without a list, the problem of its plug-in stands in the list's
 * place. */
QList<Banner::Problem> OfInstallation(const Overview &overview, const PluginHost &plugins,
                                      const QList<LanguageProblem> &languages);

} // namespace WindowProblems

#endif
