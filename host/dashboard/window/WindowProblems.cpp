#include "WindowProblems.h"

#include "ConnectionOrder.h"

#include <BidiText.h>
#include <DashboardLanguage.h>
#include <DashboardText.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <Overview.h>
#include <PluginHost.h>

#include <QAction>

namespace
{

Banner::Problem Make(Glyphs::Mark mark, const char *titleId, const QString &text)
{
    Banner::Problem problem;
    problem.mark = mark;
    problem.kind = titleId;
    problem.title = DashboardText(titleId);
    problem.text = text;
    return problem;
}

QString DamageText(const ListKeeper &keeper)
{
    QStringList sentences(DashboardText("IDS_LIST_DAMAGED"));
    const QString obstacle = ListKeeperText::Reason(keeper, keeper.WriteObstacle());
    sentences.append(obstacle.isNull() ? DashboardText("IDS_LIST_KEPT").arg(InOwnDirection(keeper.CopyPath()))
                                       : obstacle);
    if (obstacle.isNull() && keeper.CanBringBack()) {
        sentences.append(DashboardText("IDS_LIST_UNDO_DAMAGE"));
    }
    return DashboardJoined("IDS_SENTENCES", sentences);
}

} // namespace

Banner::Problem WindowProblems::OfOrder(const ConnectionOrder &order)
{
    Banner::Problem problem;
    problem.mark = Glyphs::MarkError;
    problem.kind = "order";
    problem.title = order.Failed();
    problem.text = order.Reason();
    return problem;
}

QList<Banner::Problem> WindowProblems::OfList(const Overview &overview, const ListKeeper &keeper,
                                              QAction *repair)
{
    QList<Banner::Problem> problems;
    if (keeper.IsDamaged()) {
        problems.append(Make(Glyphs::MarkError, "IDS_BANNER_LIST_DAMAGED", DamageText(keeper)));
        problems.last().remedy = keeper.WriteObstacle() == ListKeeper::NoObstacle ? repair : nullptr;
    } else if (overview.status == PriorityNotOpened) {
        problems.append(Make(Glyphs::MarkError, "IDS_NO_LIST_TITLE", DashboardText("IDS_LIST_NOT_OPENED")));
    }
    const QString history = ListKeeperText::Reason(keeper, keeper.HistoryProblem());
    if (!history.isNull()) {
        problems.append(Make(Glyphs::MarkWarning, "IDS_BANNER_HISTORY", history));
    }
    return problems;
}

QList<Banner::Problem> WindowProblems::OfInstallation(const Overview &overview, const PluginHost &plugins,
                                                      const QList<LanguageProblem> &languages)
{
    QList<Banner::Problem> problems;
    const QList<PluginHost::Plugin> all = plugins.Plugins();
    for (const PluginHost::Plugin &plugin : all) {
        if (plugin.state != PluginReady && !(overview.status < 0 && plugin.known.hasSettingsPage)) {
            problems.append(Make(Glyphs::MarkWarning, "IDS_BANNER_PLUGIN", PluginHost::ProblemText(plugin)));
        }
    }
    for (const LanguageProblem &problem : languages) {
        problems.append(
            Make(Glyphs::MarkWarning, "IDS_BANNER_LANGUAGE", DashboardLanguage::ProblemText(problem)));
    }
    return problems;
}
