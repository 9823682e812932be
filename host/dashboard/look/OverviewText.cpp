#include "OverviewText.h"

#include "ListChangeText.h"

#include <DashboardText.h>
#include <SignalStrength.h>

namespace
{

const char *ReasonInUseId(const Overview::Entry &entry)
{
    return entry.IsWifi() ? "IDS_HEAD_IN_USE_WIFI" : "IDS_HEAD_IN_USE_MOBILE";
}

/** What would be used if it were in range; empty when nothing would. */
QString SkippedText(const Overview &overview)
{
    QList<PriorityList> skipped;
    for (int i = 0; i < overview.entries.size() && !overview.entries.at(i).isInUse; ++i) {
        skipped.append(overview.entries.at(i).entry);
    }
    return skipped.isEmpty() ? QString()
                             : DashboardText("IDS_HEAD_SKIPPED").arg(ListChangeText::Names(skipped));
}

QString NothingInUseText(const Overview &overview)
{
    if (overview.status < 0) {
        return DashboardText("IDS_HEAD_NO_PRIORITY_PLUGIN");
    }
    if (!overview.IsListWhole()) {
        return DashboardText("IDS_HEAD_UNREADABLE");
    }
    if (overview.entries.isEmpty()) {
        return DashboardText("IDS_HEAD_EMPTY");
    }
    if (!overview.isRangeKnown) {
        return DashboardText("IDS_HEAD_RANGE_UNKNOWN");
    }
    QStringList sentences(DashboardText("IDS_HEAD_NOTHING_IN_RANGE"));
    if (!overview.signalOf.isEmpty()) {
        sentences.append(DashboardText("IDS_HEAD_CONNECT_HINT"));
    }
    return DashboardJoined("IDS_SENTENCES", sentences);
}

} // namespace

QString OverviewText::Signal(int percent)
{
    return percent == SignalStrength::unknown
               ? QString()
               : DashboardText("IDS_CONNECT_PERCENT").arg(DashboardNumber(percent));
}

QString OverviewText::Headline(const Overview &overview)
{
    if (const Overview::Entry *inUse = overview.InUse()) {
        return DashboardText("IDS_HEAD_IN_USE").arg(ListChangeText::Name(inUse->entry));
    }
    const bool isNone = overview.IsListWhole() && (overview.entries.isEmpty() || overview.isRangeKnown);
    return DashboardText(isNone ? "IDS_HEAD_NONE" : "IDS_HEAD_UNKNOWN");
}

QString OverviewText::Explanation(const Overview &overview)
{
    const Overview::Entry *inUse = overview.InUse();
    return inUse ? DashboardJoined("IDS_SENTENCES", QStringList() << DashboardText(ReasonInUseId(*inUse))
                                                                  << SkippedText(overview))
                 : NothingInUseText(overview);
}

QString OverviewText::Kind(const Overview::Entry &entry)
{
    return DashboardText(entry.IsWifi() ? "IDS_KIND_WIFI" : "IDS_KIND_MOBILE");
}

QString OverviewText::State(const Overview::Entry &entry)
{
    if (entry.range == Overview::RangeUnknown) {
        return DashboardText("IDS_STATE_UNKNOWN");
    }
    if (entry.range == Overview::OutOfRange) {
        return DashboardText("IDS_STATE_OUT_OF_RANGE");
    }
    if (!entry.IsWifi() && !entry.isInUse) {
        return DashboardText("IDS_STATE_FALLBACK");
    }
    const QString state = DashboardText(entry.isInUse ? "IDS_STATE_IN_USE" : "IDS_STATE_IN_RANGE");
    const QString signal = Signal(entry.signal);
    return signal.isEmpty() ? state : state + QString::fromUtf8(" · ") + signal;
}

QString OverviewText::Reason(const Overview &overview, int place)
{
    const Overview::Entry &entry = overview.entries.at(place);
    if (entry.isInUse) {
        return DashboardText(ReasonInUseId(entry));
    }
    if (entry.range == Overview::RangeUnknown) {
        return DashboardText("IDS_HEAD_RANGE_UNKNOWN");
    }
    if (entry.range == Overview::OutOfRange) {
        return DashboardText("IDS_WHY_OUT_OF_RANGE");
    }
    const Overview::Entry *inUse = overview.InUse();
    return inUse ? DashboardText("IDS_WHY_LOWER").arg(ListChangeText::Name(inUse->entry))
                 : DashboardText("IDS_WHY_UNDECIDED");
}
