#include "Tour.h"

#include "UserActions.h"

#include <Change.h>
#include <DashboardText.h>
#include <HostControl.h>
#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>
#include <ListEntries.h>
#include <NetworkList.h>
#include <OrderFile.h>
#include <OverviewText.h>
#include <PluginObjects.h>
#include <UserData.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

#include <cstdio>
#include <utility>

#include <csignal>
#include <unistd.h>

namespace
{

const unsigned int longestTourSeconds = 120;

// Some effects need a moment, such as that of a changed file on the main window.
const int effectMilliseconds = 2000;
const int layoutMilliseconds = 50;

const int answerMilliseconds = 50;
const int answerTries = 100;

const int importNameColumn = 1;

void GiveUp(int)
{
    const char message[] = "tour: gave up, it took too long\n";
    const ssize_t written = write(STDOUT_FILENO, message, sizeof(message) - 1);
    _exit(written < 0 ? Tour::exitHung + 1 : Tour::exitHung);
}

void Print(const QString &line)
{
    std::printf("%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

bool IsReadOnly(const PriorityList &entry)
{
    WLANProfile profile;
    if (IWLANUIPlugin *wlan = PluginObjects::Wlan()) {
        wlan->GetProfileByName(entry.name, &profile);
    }
    return ListEntries::IsWifi(entry) && profile.readOnly == QLatin1String("true");
}

/** The list as the file has it, read without any help of the plug-in that wrote it. */
QList<PriorityList> ReadFile()
{
    QList<PriorityList> list;
    QFile file(UserData::FilePath(QLatin1String("Priority.xml")));
    if (file.open(QIODevice::ReadOnly)) {
        OrderFile::Parse(file.readAll(), &list);
    }
    return list;
}

QStringList NamesOf(const QList<PriorityList> &list)
{
    QStringList names;
    for (const PriorityList &entry : list) {
        names.append(entry.name);
    }
    return names;
}

QString NameIn(const QTableWidget *table, int row, int column)
{
    if (const QWidget *cell = table->cellWidget(row, column)) {
        return cell->accessibleName();
    }
    const QTableWidgetItem *item = table->item(row, column);
    return item ? item->text() : QString();
}

QStringList NamesOf(const QTableWidget *table, int column = 0)
{
    QStringList names;
    for (int i = 0; i < table->rowCount(); ++i) {
        names.append(NameIn(table, i, column));
    }
    return names;
}

QStringList NamesOf(const QListWidget *list)
{
    QStringList names;
    for (int i = 0; i < list->count(); ++i) {
        names.append(list->item(i)->text());
    }
    return names;
}

PriorityList Entry(const QString &name, const QString &type)
{
    PriorityList entry;
    entry.name = name;
    entry.type = type;
    return entry;
}

QString PluginText(const char *id)
{
    return Change::tr(QLatin1String(id), QLatin1String("PriorityPlugin"));
}

QStringList NetworksInRange()
{
    QStringList names;
    QList<WlanAvilableNetworkInfo> networks;
    if (IWLANUIPlugin *wlan = PluginObjects::Wlan()) {
        wlan->GetAvailableNetworks(&networks);
    }
    for (const WlanAvilableNetworkInfo &network : std::as_const(networks)) {
        names.append(network.networkName);
    }
    return names;
}

QStringList RememberedNames()
{
    QStringList names;
    QList<RememberedList> remembered;
    if (IWLANUIPlugin *wlan = PluginObjects::Wlan()) {
        wlan->GetRememberedList(&remembered);
    }
    for (const RememberedList &network : std::as_const(remembered)) {
        names.append(network.name);
    }
    return names;
}

/** window with the dialogs that are open before it, each in the middle. */
QPixmap Composed(QWidget *window)
{
    QList<QWidget *> layers;
    for (QWidget *top = QApplication::activeModalWidget(); top && top != window;
         top = top->parentWidget() ? top->parentWidget()->window() : nullptr) {
        layers.prepend(top);
    }
    QSize size = window->size();
    for (const QWidget *layer : std::as_const(layers)) {
        size = size.expandedTo(layer->size() + QSize(2, 2));
    }
    QPixmap picture(size * window->devicePixelRatioF());
    picture.setDevicePixelRatio(window->devicePixelRatioF());
    picture.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&picture);
    const auto middle = [size](const QWidget *layer) {
        const QSize rest = (size - layer->size()) / 2;
        return QRect(QPoint(rest.width(), rest.height()), layer->size());
    };
    painter.drawPixmap(middle(window).topLeft(), window->grab());
    int darkness = 60;
    for (QWidget *layer : std::as_const(layers)) {
        painter.fillRect(QRect(QPoint(), size), QColor(0, 0, 0, darkness));
        painter.fillRect(middle(layer).adjusted(-1, -1, 1, 1),
                         QApplication::palette().color(QPalette::Shadow));
        painter.drawPixmap(middle(layer).topLeft(), layer->grab());
        darkness = 25;
    }
    return picture;
}

} // namespace

Tour::Tour(QWidget *window, const TourDirectory &directory) : m_window(window), m_directory(directory) {}

bool Tour::Run()
{
    // Not a timer of Qt's: a tour that hangs may hang outside of any event loop.
    std::signal(SIGALRM, GiveUp);
    alarm(longestTourSeconds);
    Begin();
    MoveEntries();
    DeleteEntries();
    AddEntries();
    CreateNetwork();
    RefuseRepeatedNetwork();
    FollowOthers();
    SwitchLanguage();
    CloseAndReopenSettings();
    Connect();
    Restore();
    ExportAndImport();
    SwitchLanguageByMenu();
    alarm(0);
    Print(QString::fromLatin1("tour: %1 steps, %2 failed").arg(m_steps).arg(m_failedSteps));
    return m_failedSteps == 0;
}

void Tour::Step(const char *name, const char *what, const Deed &act, const Deed &check)
{
    m_stepName = QLatin1String(name);
    m_failures.clear();
    ++m_steps;
    act();
    // Layouts follow with the next turns of the event loop.
    QTest::qWait(layoutMilliseconds);
    // What couldn't be done has no effect to wait for.
    if (m_failures.isEmpty()) {
        const bool hasEffect = QTest::qWaitFor(
            [&] {
                m_failures.clear();
                ExpectListEverywhere();
                if (check) {
                    check();
                }
                return m_failures.isEmpty();
            },
            effectMilliseconds);
        Q_UNUSED(hasEffect);
    }
    SavePicture(m_stepName);
    Report(what);
}

void Tour::Report(const char *what)
{
    Print(QString::fromLatin1("step %1: %2").arg(m_steps).arg(QLatin1String(what)));
    const QList<PriorityList> list = ReadFile();
    int place = 0;
    for (const PriorityList &entry : list) {
        Print(QString::fromLatin1("  %1. %2 (%3)")
                  .arg(++place, 2)
                  .arg(entry.name.simplified(),
                       QLatin1String(ListEntries::IsWifi(entry) ? "Wi-Fi" : "mobile broadband")));
    }
    if (list.isEmpty()) {
        Print(QLatin1String("  (the list is empty)"));
    }
    for (const QString &failure : std::as_const(m_failures)) {
        Print(QLatin1String("FAILED: ") + failure);
    }
    if (!m_failures.isEmpty()) {
        ++m_failedSteps;
        // The next step is judged by its own effect.
        m_expected = list;
    }
}

void Tour::SavePicture(const QString &name)
{
    const QString fileName = QString::fromLatin1("%1-%2.png").arg(m_steps, 2, 10, QLatin1Char('0')).arg(name);
    const QString path = m_directory.Claim(fileName);
    if (path.isEmpty() || !Composed(m_window).save(path, "PNG")) {
        Fail(QString::fromLatin1("the picture %1 can't be saved").arg(fileName));
    }
    emit PictureTaken(name);
}

void Tour::Begin()
{
    Step(
        "empty", "the dashboard opens; there is no list yet",
        [this] { m_languageBefore = Change::GetLangName(); },
        [this] {
            ExpectOpen("messageText", true);
            Expect(PluginObjects::Priority() != nullptr, "the plug-in with the priority list is there");
            Expect(PluginObjects::Wlan() != nullptr, "the Wi-Fi plug-in is there");
        });
    Step("filled", "another plug-in adds networks that are saved; the list would choose the first in range",
         [this] { Seed(); });
    Step("switch", "Switch connects the one that the list would choose", [this] {
        m_inUse = m_expected.value(0).name;
        Click("switchButton");
    });
}

void Tour::Seed()
{
    IPriorityPlugin *priority = PluginObjects::Priority();
    if (!priority || !PluginObjects::RememberedNetworks(&m_expected)) {
        Fail(QLatin1String("a plug-in is missing"));
        return;
    }
    // One is kept back, so that there is one to add later.
    for (int i = m_expected.size() - 1; i >= 0 && m_notListed.isEmpty(); --i) {
        if (ListEntries::IsWifi(m_expected.at(i)) && !IsReadOnly(m_expected.at(i))) {
            m_notListed.append(m_expected.takeAt(i));
        }
    }
    if (m_expected.size() < 4) {
        Fail(QLatin1String("the Wi-Fi plug-in remembers too few networks for a tour"));
        return;
    }
    QList<PriorityList> allButTheFirst = m_expected.mid(1);
    priority->AddPriorityList(allButTheFirst);
    priority->AddTopPriority(m_expected.first());
}

void Tour::MoveEntries()
{
    const Deed isMovedDown = [this] {
        ExpectSelected(2);
    };
    const Deed isMovedUp = [this] {
        ExpectSelected(1);
    };
    Step(
        "settings", "the Settings button opens the page with the list", [this] { Click("settingsButton"); },
        [this] {
            ExpectOpen("priorityTable", true);
            ExpectButtons(false, false, false);
        });
    Step(
        "select", "a click selects the second network", [this] { ClickRow(m_expected.value(1)); },
        [this] {
            ExpectButtons(true, true, true);
            ExpectSelected(1);
        });
    Step(
        "down-button", "the Down button moves it down",
        [this] {
            MoveExpected(1, 2);
            Click("downButton");
        },
        isMovedDown);
    Step(
        "up-button", "the Up button moves it up again",
        [this] {
            MoveExpected(2, 1);
            Click("upButton");
        },
        isMovedUp);
    Step(
        "down-key", "the down arrow key moves it down",
        [this] {
            ClickRow(m_expected.value(1));
            MoveExpected(1, 2);
            Press(Qt::Key_Down, "priorityTable");
        },
        isMovedDown);
    Step(
        "up-key", "the up arrow key moves it up again",
        [this] {
            MoveExpected(2, 1);
            Press(Qt::Key_Up, "priorityTable");
        },
        isMovedUp);
}

void Tour::DeleteEntries()
{
    const Deed isNothingSelected = [this] {
        ExpectSelected(-1);
        ExpectButtons(false, false, false);
    };
    Step(
        "delete-cancel", "Remove, then Cancel in the question: nothing is removed",
        [this] {
            ClickRow(m_expected.value(1));
            ClickAndAnswer("deleteButton", "messageButton2", "IDS_WARNING_DELETE");
        },
        isNothingSelected);
    Step(
        "delete-ok", "Remove, then Remove in the question: the network is gone",
        [this] {
            ClickRow(m_expected.value(1));
            m_listBefore = m_expected;
            if (m_expected.size() > 1) {
                m_notListed.prepend(m_expected.takeAt(1));
            }
            ClickAndAnswer("deleteButton", "messageButton1", "IDS_WARNING_DELETE");
        },
        isNothingSelected);
    Step(
        "settings-undo", "Undo brings it back; the open page follows",
        [this] {
            SwapWithListBefore();
            Click("settingsUndoButton");
        },
        [this] { ExpectUndoAndRedo(true, true); });
    Step(
        "settings-redo", "Redo removes it again",
        [this] {
            SwapWithListBefore();
            Click("settingsRedoButton");
        },
        [this] { ExpectUndoAndRedo(true, false); });
}

void Tour::AddEntries()
{
    const Deed isOffered = [this] {
        ExpectOpen("rememberTable", true);
        const QTableWidget *table = FindOf<QTableWidget>("rememberTable");
        ExpectNames("the dialog", table ? NamesOf(table) : QStringList(), NamesOf(m_notListed));
    };
    Step(
        "add-dialog", "Add offers the saved networks that are not in the list",
        [this] { Click("addButton"); }, isOffered);
    IPriorityPlugin *priority = PluginObjects::Priority();
    if (!priority || m_notListed.size() != 2) {
        m_notListed = QList<PriorityList>() << PriorityList() << PriorityList();
    }
    Step(
        "add-elsewhere", "both are ticked; meanwhile another plug-in puts the first of them at the top",
        [this, priority] {
            Tick(m_notListed.first());
            Tick(m_notListed.last());
            m_expected.prepend(m_notListed.first());
            if (priority) {
                priority->AddTopPriority(m_notListed.first());
            }
        },
        [this, isOffered] {
            isOffered();
            const QTableWidget *table = FindOf<QTableWidget>("rememberTable");
            for (int row = 0; table && row < table->rowCount(); ++row) {
                const QCheckBox *box =
                    table->cellWidget(row, 0)->findChild<QCheckBox *>(QLatin1String("rowCheckBox"));
                Expect(box && box->isChecked(), "both stay ticked");
            }
        });
    Step(
        "add-ok", "OK puts both at the end of the list, and none stands in it twice",
        [this] {
            if (!m_expected.isEmpty()) {
                m_expected.removeFirst();
            }
            m_expected += m_notListed;
            m_notListed.clear();
            Click("addOkButton");
        },
        [this] {
            ExpectSelected(m_expected.size() - 2);
            ExpectButtons(true, true, true);
        });
}

void Tour::CreateNetwork()
{
    m_new = Entry(QLatin1String("Summer house"), QLatin1String("1"));
    const Deed isRefused = [this] {
        ExpectOpen("newDialog", true);
        Expect(!RememberedNames().contains(m_new.name), "the Wi-Fi plug-in hasn't heard of the network");
    };
    Step(
        "new-dialog", "New asks for a network that is not saved yet", [this] { Click("newButton"); },
        [this] {
            ExpectOpen("networkNameBox", true);
            const QComboBox *names = FindOf<QComboBox>("networkNameBox");
            Expect(names && names->count() > 0, "networks in range are offered");
        });
    Step(
        "new-wrong-key", "a key that is too short is refused",
        [this] {
            EnterNew(m_new.name, "sand", "sand");
            ClickAndAnswer("newOkButton", "messageButton1", "IDS_ERROR_KEY_WRONG_LENGTH_128");
        },
        isRefused);
    Step(
        "new-different-keys", "two keys that are not the same are refused",
        [this] {
            Fill("keyEdit", QLatin1String("sea-and-sand"));
            Fill("confirmKeyEdit", QLatin1String("sea-and-land"));
            ClickAndAnswer("newOkButton", "messageButton1", "IDS_ERROR_KEY_DIFFERENT");
        },
        isRefused);
    Step(
        "new-ok", "with a right key the network is saved and put at the end of the list",
        [this] {
            Fill("keyEdit", QLatin1String("sea-and-sand"));
            Fill("confirmKeyEdit", QLatin1String("sea-and-sand"));
            m_expected.append(m_new);
            Click("newOkButton");
        },
        [this] {
            ExpectOpen("newDialog", false);
            ExpectSelected(m_expected.size() - 1);
            ExpectButtons(true, false, true);
            ExpectNewNetworkRemembered();
        });
}

void Tour::RefuseRepeatedNetwork()
{
    Step(
        "new-repeated", "New once more with the same name: it is refused, the list has it already",
        [this] {
            Click("newButton");
            EnterNew(m_new.name, "sea-and-sand", "sea-and-sand");
            ClickAndAnswer("newOkButton", "messageButton1", "IDS_PROFILE_NAME_REPEAT");
        },
        [this] { ExpectOpen("newDialog", true); });
    Step(
        "new-cancel", "Cancel closes the dialog; the list is as before", [this] { Click("newCancelButton"); },
        [this] { ExpectOpen("newDialog", false); });
}

void Tour::FollowOthers()
{
    Step(
        "read-only", "a network that is read-only can be moved but not removed",
        [this] {
            for (int i = 1; i < m_expected.size() - 1; ++i) {
                if (IsReadOnly(m_expected.at(i))) {
                    ClickRow(m_expected.at(i));
                    return;
                }
            }
            Fail(QLatin1String("no network in the middle of the list is read-only"));
        },
        [this] {
            ExpectSelected(PlaceOf(m_selected));
            ExpectButtons(true, true, false);
        });
    Step("added-elsewhere", "another plug-in puts a network at the top; the open page follows", [this] {
        const PriorityList entry = Entry(QLatin1String("Library"), QLatin1String("1"));
        m_expected.prepend(entry);
        if (IPriorityPlugin *priority = PluginObjects::Priority()) {
            priority->AddTopPriority(entry);
        }
    });
}

void Tour::SwitchLanguage()
{
    Step(
        "arabic", "the language is switched to Arabic while the page is open",
        [this] { ChooseLanguage(QLatin1String("ar")); },
        [this] {
            ExpectLanguage(QLatin1String("ar"), "upButton", PluginText("IDS_PROFILE_UP"));
            Expect(QApplication::layoutDirection() == Qt::RightToLeft, "the windows read from right to left");
        });
    Step(
        "language-back", "the language is switched back", [this] { ChooseLanguage(m_languageBefore); },
        [this] { ExpectLanguage(m_languageBefore, "upButton", PluginText("IDS_PROFILE_UP")); });
}

void Tour::CloseAndReopenSettings()
{
    const Deed isClosed = [this] {
        ExpectOpen("settingsDialog", false);
    };
    Step(
        "ok", "OK closes the settings; the main window shows the list", [this] { Click("settingsOkButton"); },
        isClosed);
    Step(
        "reopened", "the settings are opened again; the list was kept", [this] { Click("settingsButton"); },
        [this] {
            ExpectOpen("priorityTable", true);
            ExpectButtons(false, false, false);
        });
    Step(
        "cancel", "Cancel closes the settings; what was changed stays",
        [this] { Click("settingsCancelButton"); }, isClosed);
}

void Tour::Connect()
{
    Step(
        "connect-dialog", "the Connect button lists the networks in range",
        [this] { Click("connectButton"); },
        [this] {
            ExpectOpen("connectList", true);
            if (const QListWidget *list = FindOf<QListWidget>("connectList")) {
                Expect(list->hasFocus(), "the networks can be chosen by key");
                QStringList shown = NamesOf(list);
                shown.removeAll(DashboardText("IDS_CONNECT_LISTED"));
                shown.removeAll(DashboardText("IDS_CONNECT_OTHERS"));
                QStringList inRange = NetworksInRange();
                shown.sort();
                inRange.sort();
                ExpectNames("the dialog", shown, inRange);
            }
        });
    m_selected = Entry(QLatin1String("Neighbour"), QLatin1String("1"));
    Step(
        "connect-key", "one is chosen that asks for a key, and gets it",
        [this] {
            if (QListWidget *list = FindOf<QListWidget>("connectList")) {
                FailIf(UserActions::ClickRow(list, static_cast<int>(NamesOf(list).indexOf(m_selected.name))));
            }
            QTest::qWait(layoutMilliseconds);
            Fill("connectKeyEdit", QLatin1String("sea-and-sand"));
        },
        [this] {
            const QWidget *ok = Find("connectOkButton");
            Expect(ok && ok->isEnabled(), "it can be connected");
        });
    Step(
        "connect-ok", "once it is connected the dialog closes, and it stands at the end of the list",
        [this] {
            m_listBefore = m_expected;
            m_expected.append(m_selected);
            m_inUse = m_selected.name;
            Click("connectOkButton");
        },
        [this] { ExpectOpen("connectDialog", false); });
    Step(
        "undo", "the Undo button takes that back",
        [this] {
            SwapWithListBefore();
            Click("undoButton");
        },
        [this] { ExpectUndoAndRedo(true, true); });
    Step(
        "redo", "Redo, in the Edit menu, puts it there again",
        [this] {
            SwapWithListBefore();
            Choose("editMenu", "redoAction");
        },
        [this] { ExpectUndoAndRedo(true, false); });
}

void Tour::Restore()
{
    const auto isPreviewed = [this] {
        const QListWidget *preview = FindOf<QListWidget>("restorePreview");
        return preview && NamesOf(preview) == NamesOf(m_expected);
    };
    Step(
        "restore-dialog", "Earlier lists, in the Edit menu, shows them, with what changed and when",
        [this] { Choose("editMenu", "restoreAction"); },
        [this, isPreviewed] {
            ExpectOpen("restoreList", true);
            if (const QTableWidget *table = FindOf<QTableWidget>("restoreList")) {
                Expect(table->rowCount() > 2, "earlier lists can be chosen");
                Expect(table->hasFocus(), "they can be chosen by key");
                Expect(isPreviewed(), "the list as it is now is chosen first");
            }
        });
    Step(
        "restore-ok", "the one before is chosen by key and restored; that is a change like any other",
        [this, isPreviewed] {
            SwapWithListBefore();
            Press(Qt::Key_Down, "restoreList");
            Expect(isPreviewed(), "the chosen list is shown");
            Press(Qt::Key_Return, "restoreList");
        },
        [this] { ExpectUndoAndRedo(true, false); });
}

void Tour::ExportAndImport()
{
    Step(
        "export", "Export in the Edit menu writes the list to a file, without any keys",
        [this] {
            Choose("editMenu", "exportAction");
            EnterFile("exportFileDialog", OrderPath());
        },
        [this] { ExpectExport(); });
    Step(
        "import-dialog", "the Undo button takes the restoring back; Import tells what that file would do",
        [this] {
            SwapWithListBefore();
            Click("undoButton");
            Choose("editMenu", "importAction");
            EnterFile("importFileDialog", OrderPath());
        },
        [this] {
            ExpectOpen("importList", true);
            const QTableWidget *table = FindOf<QTableWidget>("importList");
            const QWidget *button = Find("importOkButton");
            if (table && button) {
                Expect(button->isEnabled(), "there is something to import");
                ExpectNames("the dialog", NamesOf(table, importNameColumn).mid(0, m_listBefore.size()),
                            NamesOf(m_listBefore));
            }
        });
    Step(
        "import-ok", "Import, by key: the list is that of the file",
        [this] {
            SwapWithListBefore();
            Press(Qt::Key_Return, "importOkButton");
        },
        [this] {
            ExpectOpen("importDialog", false);
            ExpectUndoAndRedo(true, false);
        });
}

void Tour::SwitchLanguageByMenu()
{
    Step(
        "window-arabic", "the Language menu turns the main window to Arabic",
        [this] { Choose("languageMenu", "languageAction_ar"); },
        [this] {
            ExpectLanguage(QLatin1String("ar"), "settingsButton", DashboardText("IDS_BUTTON_SETTINGS"));
            const QWidget *button = Find("settingsButton");
            const QWidget *headline = Find("headlineLabel");
            if (button && headline) {
                Expect(button->mapTo(m_window, QPoint()).x() < headline->mapTo(m_window, QPoint()).x(),
                       "the window reads from right to left");
            }
        });
    Step(
        "window-back", "and back",
        [this] {
            const QByteArray action = "languageAction_" + m_languageBefore.toLatin1();
            Choose("languageMenu", action.constData());
        },
        [this] { ExpectLanguage(m_languageBefore, "settingsButton", DashboardText("IDS_BUTTON_SETTINGS")); });
}

void Tour::Fail(const QString &problem)
{
    m_failures.append(problem);
}

void Tour::FailIf(const QString &problem)
{
    if (!problem.isNull()) {
        Fail(problem);
    }
}

void Tour::Expect(bool condition, const char *rule)
{
    if (!condition) {
        Fail(QString::fromLatin1("it should be so that %1").arg(QLatin1String(rule)));
    }
}

template <class Widget> Widget *Tour::FindOf(const char *name)
{
    Widget *widget = m_window->findChild<Widget *>(QLatin1String(name));
    if (!widget) {
        Fail(QString::fromLatin1("there is no %1").arg(QLatin1String(name)));
    }
    return widget;
}

void Tour::Click(const char *name)
{
    if (QWidget *widget = Find(name)) {
        FailIf(UserActions::Click(widget));
    }
}

void Tour::ClickRow(const PriorityList &entry)
{
    m_selected = entry;
    if (QTableWidget *table = FindOf<QTableWidget>("priorityTable")) {
        FailIf(UserActions::ClickRow(table, PlaceOf(entry)));
    }
}

void Tour::Press(int key, const char *name)
{
    if (QWidget *widget = Find(name)) {
        FailIf(UserActions::PressKey(key, widget));
    }
}

void Tour::Choose(const char *menu, const char *action)
{
    QMenu *found = FindOf<QMenu>(menu);
    QAction *chosen = m_window->findChild<QAction *>(QLatin1String(action));
    if (found && chosen) {
        FailIf(UserActions::ChooseFromMenu(found, chosen));
    } else {
        Fail(QString::fromLatin1("there is no %1 in %2").arg(QLatin1String(action), QLatin1String(menu)));
    }
}

void Tour::EnterFile(const char *dialog, const QString &path)
{
    const QWidget *files = Find(dialog);
    QLineEdit *name = files ? files->findChild<QLineEdit *>(QLatin1String("fileNameEdit")) : nullptr;
    if (!name) {
        Fail(QLatin1String("no file can be entered"));
        return;
    }
    FailIf(UserActions::Click(name));
    FailIf(UserActions::PressKey(Qt::Key_A, name, Qt::ControlModifier));
    FailIf(UserActions::TypeText(path, name));
    FailIf(UserActions::PressKey(Qt::Key_Return, name));
}

void Tour::ClickAndAnswer(const char *name, const char *answer, const char *textId)
{
    // The click returns when the question is answered, so the answer is arranged first.
    m_answerTriesLeft = answerTries;
    AnswerQuestion(QLatin1String(answer), PluginText(textId));
    Click(name);
    if (m_answerTriesLeft > 0) {
        m_answerTriesLeft = 0;
        Fail(QLatin1String("no question was asked"));
    }
}

void Tour::AnswerQuestion(const QString &answer, const QString &expected)
{
    const QPointer<QWidget> question = QApplication::activeModalWidget();
    if (!question || question->objectName() != QLatin1String("messageBox")) {
        if (m_answerTriesLeft-- > 0) {
            QTimer::singleShot(answerMilliseconds, this,
                               [this, answer, expected] { AnswerQuestion(answer, expected); });
        }
        return;
    }
    if (m_answerTriesLeft <= 0) {
        return;
    }
    m_answerTriesLeft = 0;
    SavePicture(m_stepName + QLatin1String("-question"));
    const QLabel *text = question->findChild<QLabel *>(QLatin1String("messageText"));
    if (!text || text->text() != expected) {
        Fail(QString::fromLatin1("the question should be: %1").arg(expected));
    }
    QWidget *button = question->findChild<QWidget *>(answer);
    FailIf(button ? UserActions::Click(button) : QString::fromLatin1("the question has no %1").arg(answer));
    if (question && question->isVisible()) {
        Fail(QLatin1String("the question stays open"));
        question->close();
    }
}

void Tour::ChooseItem(const char *name, int item)
{
    QComboBox *box = FindOf<QComboBox>(name);
    if (!box) {
        return;
    }
    box->setFocus(Qt::TabFocusReason);
    const int key = item < box->currentIndex() ? Qt::Key_Up : Qt::Key_Down;
    for (int i = box->count(); i > 0 && box->currentIndex() != item; --i) {
        FailIf(UserActions::PressKey(key, box));
    }
}

void Tour::Tick(const PriorityList &entry)
{
    const QTableWidget *table = FindOf<QTableWidget>("rememberTable");
    const int row = table ? NamesOf(table).indexOf(entry.name) : -1;
    QWidget *checkBox =
        row >= 0 ? table->cellWidget(row, 0)->findChild<QWidget *>(QLatin1String("rowCheckBox")) : nullptr;
    FailIf(checkBox ? UserActions::Click(checkBox)
                    : QString::fromLatin1("%1 can't be ticked").arg(entry.name));
}

void Tour::Fill(const char *name, const QString &text)
{
    if (QWidget *field = Find(name)) {
        FailIf(UserActions::Click(field));
        FailIf(UserActions::PressKey(Qt::Key_A, field, Qt::ControlModifier));
        FailIf(UserActions::TypeText(text, field));
    }
}

void Tour::ChooseLanguage(const QString &language)
{
    SelectPage(0);
    ChooseItem("languageBox", HostControl::LanguageNames().indexOf(language));
    SelectPage(2);
}

void Tour::EnterNew(const QString &name, const char *key, const char *confirmation)
{
    Fill("networkNameBox", name);
    if (const QComboBox *box = FindOf<QComboBox>("authenticationBox")) {
        ChooseItem("authenticationBox", box->findText(QLatin1String("WPA2PSK")));
    }
    Fill("keyEdit", QLatin1String(key));
    Fill("confirmKeyEdit", QLatin1String(confirmation));
}

void Tour::SelectPage(int row)
{
    QListWidget *pages = FindOf<QListWidget>("pageList");
    if (!pages) {
        return;
    }
    pages->setFocus(Qt::TabFocusReason);
    const int key = row < pages->currentRow() ? Qt::Key_Up : Qt::Key_Down;
    for (int i = pages->count(); i > 0 && pages->currentRow() != row; --i) {
        FailIf(UserActions::PressKey(key, pages));
    }
}

int Tour::PlaceOf(const PriorityList &entry) const
{
    for (int i = 0; i < m_expected.size(); ++i) {
        if (ListEntries::IsSame(m_expected.at(i), entry)) {
            return i;
        }
    }
    return -1;
}

void Tour::MoveExpected(int from, int to)
{
    if (from >= 0 && from < m_expected.size() && to >= 0 && to < m_expected.size()) {
        m_expected.move(from, to);
    } else {
        Fail(QLatin1String("there is no such place in the list"));
    }
}

void Tour::SwapWithListBefore()
{
    m_expected.swap(m_listBefore);
}

void Tour::ExpectOpen(const char *name, bool isOpen)
{
    const QWidget *widget = m_window->findChild<QWidget *>(QLatin1String(name));
    if ((widget && widget->isVisible()) != isOpen) {
        Fail(QString::fromLatin1("%1 should be %2")
                 .arg(QLatin1String(name), QLatin1String(isOpen ? "there" : "closed")));
    }
}

void Tour::ExpectButtons(bool up, bool down, bool remove)
{
    const QWidget *upButton = Find("upButton");
    const QWidget *downButton = Find("downButton");
    const QWidget *deleteButton = Find("deleteButton");
    if (upButton && downButton && deleteButton) {
        Expect(upButton->isEnabled() == up, "the Up button is enabled when the network can go up");
        Expect(downButton->isEnabled() == down, "the Down button is enabled when the network can go down");
        Expect(deleteButton->isEnabled() == remove,
               "the Delete button is enabled when the network can be deleted");
    }
}

void Tour::ExpectSelected(int row)
{
    const QTableWidget *table = FindOf<QTableWidget>("priorityTable");
    if (table) {
        Expect(table->currentRow() == row, "the right row is selected");
    }
}

void Tour::ExpectUndoAndRedo(bool undo, bool redo)
{
    const QWidget *undoButton = Find("undoButton");
    const QAction *redoAction = m_window->findChild<QAction *>(QLatin1String("redoAction"));
    if (undoButton && redoAction) {
        Expect(undoButton->isEnabled() == undo, "the Undo button is enabled when there is something to undo");
        Expect(redoAction->isEnabled() == redo, "Redo can be chosen when something was undone");
    }
}

void Tour::ExpectNames(const char *what, const QStringList &found, const QStringList &expected)
{
    if (found != expected) {
        Fail(QString::fromLatin1("%1 holds [%2] and should hold [%3]")
                 .arg(QLatin1String(what), found.join(QLatin1String(", ")),
                      expected.join(QLatin1String(", "))));
    }
}

void Tour::ExpectLanguage(const QString &language, const char *buttonName, const QString &text)
{
    Expect(Change::GetLangName() == language, "the language is the one chosen");
    const QPushButton *button = FindOf<QPushButton>(buttonName);
    if (button) {
        Expect(button->isVisible(), "what is to speak the language can be seen");
        Expect(button->text() == text, "what can be seen speaks the language");
    }
}

void Tour::ExpectListEverywhere()
{
    const QList<PriorityList> list = ReadFile();
    const QStringList expected = NamesOf(m_expected);
    if (!ListEntries::IsSame(list, m_expected)) {
        ExpectNames("Priority.xml", NamesOf(list), expected);
        Expect(NamesOf(list) != expected, "each entry in Priority.xml is of its kind");
    }
    const QTableWidget *table = m_window->findChild<QTableWidget *>(QLatin1String("priorityTable"));
    if (table && table->isVisible()) {
        ExpectNames("the page", NamesOf(table), expected);
    }
    const NetworkList *overview = m_window->findChild<NetworkList *>();
    const bool isShown = overview && overview->isVisible();
    ExpectNames("the main window",
                isShown ? NamesOf(overview).mid(0, overview->Listed().size()) : QStringList(), expected);
    ExpectHeadline();
}

void Tour::ExpectHeadline()
{
    const QStringList inRange = NetworksInRange();
    const QStringList saved = RememberedNames();
    QString choice;
    for (const PriorityList &entry : std::as_const(m_expected)) {
        if (saved.contains(entry.name) && (!ListEntries::IsWifi(entry) || inRange.contains(entry.name))) {
            choice = entry.name;
            break;
        }
    }
    const QLabel *headline = m_window->findChild<QLabel *>(QLatin1String("headlineLabel"));
    const QString inUse = m_inUse.isEmpty()
                              ? DashboardText("IDS_HEAD_NONE")
                              : DashboardText("IDS_HEAD_IN_USE").arg(OverviewText::Name(m_inUse));
    Expect(headline && headline->text().contains(inUse), "the main window tells what is in use");
    const QLabel *explanation = m_window->findChild<QLabel *>(QLatin1String("explanationLabel"));
    const QString told = !choice.isEmpty() && choice == m_inUse ? DashboardText("IDS_HEAD_FIRST") : choice;
    if (!explanation || !explanation->text().contains(told)) {
        Fail(QString::fromLatin1("the main window should tell that the list would choose %1").arg(choice));
    }
}

void Tour::ExpectNewNetworkRemembered()
{
    WLANProfile profile;
    if (IWLANUIPlugin *wlan = PluginObjects::Wlan()) {
        wlan->GetProfileByName(m_new.name, &profile);
    }
    Expect(RememberedNames().contains(m_new.name), "the Wi-Fi plug-in remembers the new network");
    Expect(profile.authentication == QLatin1String("WPA2PSK") &&
               profile.encryption == QLatin1String("CCMP") &&
               profile.keyMaterial == QLatin1String("sea-and-sand"),
           "the new network is remembered as it was entered");
}

void Tour::ExpectExport()
{
    QFile file(OrderPath());
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QList<PriorityList> exported;
    Expect(OrderFile::Parse(bytes, &exported).kind == FileFault::None, "the file can be read");
    ExpectNames("the file", NamesOf(exported), NamesOf(m_expected));
    Expect(ListEntries::IsSame(exported, m_expected), "the file has the list");
    Expect(!bytes.contains("sea-and-sand"), "no key is in the file");
}

QString Tour::OrderPath() const
{
    return m_directory.DataPath() + QLatin1String("/order.xml");
}
