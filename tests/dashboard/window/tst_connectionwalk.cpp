#include "ConnectedWindow.h"
#include "Lists.h"

#include <Glyphs.h>
#include <NetworkDelegate.h>

#include <QPushButton>
#include <QtTest>

#include <cstdio>
#include <random>

namespace
{

const char *const names[] = {"Home", "Office", "Café", "Attic", "Cable", "Work", "Phone"};
const char *const types[] = {"1", "1", "1", "2", "0"};
const char *const inUseWords = "In use now";

} // namespace

/**
 * A random walk over what connections can be told: the window never calls in use what is not. As long as
 * PRIORITY_STATES says.
 */
class ConnectionWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void WindowNamesInUseWhatCarriesTheTraffic();

private:
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned int>(count)); }
    QString Name() { return QString::fromUtf8(names[Below(7)]); }
    QString Type() { return QLatin1String(types[Below(5)]); }
    void Change(ConnectedWindow *world);
    void Activate(Connections *told);
    /** What is wrong about the window; empty when nothing is. */
    static QString Wrong(const ConnectedWindow &world);

    std::mt19937 m_random;
};

void ConnectionWalkTest::Activate(Connections *told)
{
    told->active.clear();
    bool isCarried = Below(4) == 0;
    for (int i = Below(4); i > 0; --i) {
        ActiveConnection connection = ConnectionOf(Name(), Below(7), false, Type());
        connection.isVpn = connection.type == QLatin1String("0") && Below(2) == 0;
        connection.signal = Below(102) - 1;
        if (!isCarried && !connection.isVpn) {
            isCarried = connection.carriesTraffic = true;
        }
        told->active.append(connection);
    }
}

void ConnectionWalkTest::Change(ConnectedWindow *world)
{
    Connections &told = world->connections->told;
    switch (Below(9)) {
    case 0:
        world->priority->list.clear();
        for (int i = Below(7); i > 0; --i) {
            PriorityList entry;
            entry.name = Name();
            entry.type = Type();
            world->priority->list.append(entry);
        }
        world->window->Refresh();
        break;
    case 1:
        told.profiles.clear();
        for (int i = Below(9); i > 0; --i) {
            told.profiles.append(SavedProfile(Name(), Below(14), Below(3) == 0 ? "2" : "1"));
            told.profiles.last().failure = Below(14);
            told.profiles.last().connectsByItself = Below(2) == 0;
        }
        break;
    case 2:
        told.state.source = Below(3) == 0 ? Below(4) : int(ConnectionState::SourceKnown);
        break;
    case 3:
        told.state.mayConnect = Below(2) == 0;
        break;
    case 4:
        told.state.sourceName = QLatin1String(Below(3) == 0 ? "stored" : "networkmanager");
        break;
    case 5:
        told.state.connectivity = Below(6);
        break;
    default:
        Activate(&told);
        break;
    }
}

QString ConnectionWalkTest::Wrong(const ConnectedWindow &world)
{
    const Connections &told = world.connections->told;
    const ActiveConnection *inUse = nullptr;
    for (const ActiveConnection &connection : told.active) {
        if (told.state.source == ConnectionState::SourceKnown && connection.carriesTraffic) {
            inUse = &connection;
        }
    }
    const QString words = QLatin1String(inUseWords);
    QString headline = inUse ? words + ": " + inUse->name : QString();
    if (inUse && told.state.connectivity == ConnectionState::ConnectivityPortal) {
        headline += ", sign-in needed";
    } else if (inUse && told.state.connectivity == ConnectionState::ConnectivityLimited) {
        headline += ", no internet";
    }
    if (inUse && told.state.sourceName == QLatin1String("stored")) {
        headline += " (practice)";
    }
    const QString shown = world.Text("headlineLabel");
    if (inUse ? shown != headline : shown.contains(words)) {
        return "the head: " + shown;
    }
    for (const QWidget *widget : world.window->findChildren<QWidget *>()) {
        const QStringList texts = {widget->accessibleName(), widget->accessibleDescription(),
                                   widget->toolTip(), widget->property("text").toString()};
        for (const QString &text : texts) {
            if (text.contains(words) && text != headline) {
                return widget->objectName() + ": " + text;
            }
        }
    }
    const NetworkList *list = world.List();
    bool isTaken = false;
    for (int i = 0; list->isVisible() && i < list->Listed().size(); ++i) {
        const PriorityList &entry = world.priority->list.at(i);
        const bool isIt = inUse && !isTaken && inUse->type != QLatin1String("0") &&
                          inUse->type == entry.type && inUse->name == entry.name;
        isTaken = isTaken || isIt;
        const QListWidgetItem *item = list->item(i);
        const QString spoken = item->data(Qt::AccessibleTextRole).toString();
        const QString reason = item->data(Qt::AccessibleDescriptionRole).toString() + item->toolTip() +
                               item->data(NetworkDelegate::DetailTextRole).toString();
        const bool isMarked = item->data(NetworkDelegate::MarkRole).toInt() == Glyphs::MarkInUse;
        if (isMarked != isIt || world.State(i).startsWith(words) != isIt || spoken.contains(words) != isIt ||
            reason.contains(words)) {
            return QString("row %1: %2; %3; %4").arg(i).arg(world.State(i), spoken, reason);
        }
    }
    return QString();
}

void ConnectionWalkTest::WindowNamesInUseWhatCarriesTheTraffic()
{
    const int asked = qgetenv("PRIORITY_STATES").toInt();
    const int steps = asked > 0 ? asked : 2000;
    const QByteArray given = qgetenv("PRIORITY_WALK_SEED");
    const unsigned int seed = given.isEmpty() ? std::random_device()() : given.toUInt();
    std::printf("PRIORITY_WALK_SEED=%u, %d states\n", seed, steps);
    m_random.seed(seed);
    ConnectedWindow world;
    world.Open();
    int inUse = 0;
    int rowsInUse = 0;
    for (int i = 0; i < steps; ++i) {
        Change(&world);
        world.Follow();
        const QString wrong = Wrong(world);
        QVERIFY2(wrong.isEmpty(), qPrintable(QString("step %1: %2").arg(i).arg(wrong)));
        inUse += world.Text("headlineLabel").startsWith(inUseWords) ? 1 : 0;
        for (int row = 0; world.List()->isVisible() && row < world.List()->Listed().size(); ++row) {
            rowsInUse += world.State(row).startsWith(inUseWords) ? 1 : 0;
        }
    }
    // A walk that comes by nothing proves nothing.
    QVERIFY(inUse > steps / 10 && inUse < steps && rowsInUse > steps / 100);
}

QTEST_MAIN(ConnectionWalkTest)
#include "tst_connectionwalk.moc"
