#include "Tour.h"

#include "UserActions.h"

#include <Change.h>
#include <DashboardText.h>
#include <HostControl.h>
#include <IPriorityPlugin.h>
#include <IWLANUIPlugin.h>
#include <ListEntries.h>
#include <OrderFile.h>
#include <PluginObjects.h>
#include <ToolkitCompat.h>
#include <UserData.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QXmlStreamReader>

#include <cstdio>

#include <csignal>
#include <unistd.h>

namespace
{

const unsigned int longestTourSeconds = 120;
const int exitHung = 3;

// Some effects need a moment, such as that of a changed file on the main window.
const int checkMilliseconds = 50;
const int checkTries = 40;
const int answerTries = 100;

const int importNameColumn = 1;

void GiveUp(int)
{
    const char message[] = "tour: gave up, it took too long\n";
    const ssize_t written = write(STDOUT_FILENO, message, sizeof(message) - 1);
    _exit(written < 0 ? exitHung + 1 : exitHung);
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
    if (!file.open(QIODevice::ReadOnly)) {
        return list;
    }
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("item")) {
            PriorityList entry;
            entry.name = reader.attributes().value(QLatin1String("name")).toString();
            entry.type = reader.attributes().value(QLatin1String("type")).toString();
            list.append(entry);
        }
    }
    return list;
}

QStringList NamesOf(const QList<PriorityList> &list)
{
    QStringList names;
    for (int i = 0; i < list.size(); ++i) {
        names.append(list.at(i).name);
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

QString Differs(const char *what, const QStringList &found, const QStringList &expected)
{
    return QString::fromLatin1("%1 holds [%2] and should hold [%3]")
        .arg(QLatin1String(what), found.join(QLatin1String(", ")), expected.join(QLatin1String(", ")));
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
    for (int i = 0; i < networks.size(); ++i) {
        names.append(networks.at(i).networkName);
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
    for (int i = 0; i < remembered.size(); ++i) {
        names.append(remembered.at(i).name);
    }
    return names;
}

int LanguagePlace(const QString &language)
{
    return HostControl::LanguageNames().indexOf(language);
}

/** window with the dialogs that are open before it, each in the middle. */
QImage Composed(QWidget *window)
{
    QList<QWidget *> layers;
    for (QWidget *top = QApplication::activeModalWidget(); top && top != window;
         top = top->parentWidget() ? top->parentWidget()->window() : nullptr) {
        layers.prepend(top);
    }
    layers.prepend(window);
    QSize size = window->size();
    for (int i = 1; i < layers.size(); ++i) {
        size = size.expandedTo(layers.at(i)->size() + QSize(2, 2));
    }
    QImage picture = ToolkitCompat::ImageFor(window, size);
    picture.fill(QApplication::palette().color(QPalette::Window).rgb());
    QPainter painter(&picture);
    for (int i = 0; i < layers.size(); ++i) {
        QImage layer = ToolkitCompat::ImageFor(window, layers.at(i)->size());
        layers.at(i)->render(&layer);
        const QSize rest = (size - layers.at(i)->size()) / 2;
        const QRect place(QPoint(rest.width(), rest.height()), layers.at(i)->size());
        if (i > 0) {
            painter.fillRect(QRect(QPoint(), size), QColor(0, 0, 0, i == 1 ? 60 : 25));
            painter.fillRect(place.adjusted(-1, -1, 1, 1), QApplication::palette().color(QPalette::Shadow));
        }
        painter.drawImage(place.topLeft(), layer);
    }
    return picture;
}

} // namespace

const Tour::Step Tour::steps[] = {
    {"empty", "the dashboard opens; there is no list yet", &Tour::ActStart, &Tour::CheckStart},
    {"filled", "another plug-in adds networks that are saved; the first in range is in use", &Tour::ActSeed,
     nullptr},
    {"settings", "the Settings button opens the page with the list", &Tour::ActOpen, &Tour::CheckOpen},
    {"select", "a click selects the second network", &Tour::ActSelect, &Tour::CheckSelect},
    {"down-button", "the Down button moves it down", &Tour::ActDownButton, &Tour::CheckMovedDown},
    {"up-button", "the Up button moves it up again", &Tour::ActUpButton, &Tour::CheckMovedUp},
    {"down-key", "the down arrow key moves it down", &Tour::ActDownKey, &Tour::CheckMovedDown},
    {"up-key", "the up arrow key moves it up again", &Tour::ActUpKey, &Tour::CheckMovedUp},
    {"delete-cancel", "Remove, then Cancel in the question: nothing is removed", &Tour::ActDeleteCancel,
     &Tour::CheckNothingSelected},
    {"delete-ok", "Remove, then Remove in the question: the network is gone", &Tour::ActDeleteOk,
     &Tour::CheckNothingSelected},
    {"settings-undo", "Undo brings it back; the open page follows", &Tour::ActSettingsUndo,
     &Tour::CheckUndone},
    {"settings-redo", "Redo removes it again", &Tour::ActSettingsRedo, &Tour::CheckNothingToRedo},
    {"add-dialog", "Add offers the saved networks that are not in the list", &Tour::ActAddDialog,
     &Tour::CheckAddDialog},
    {"add-elsewhere", "both are ticked; meanwhile another plug-in puts the first of them at the top",
     &Tour::ActAddElsewhere, &Tour::CheckAddElsewhere},
    {"add-ok", "OK puts both at the end of the list, and none stands in it twice", &Tour::ActAddOk,
     &Tour::CheckAdded},
    {"new-dialog", "New asks for a network that is not saved yet", &Tour::ActNewDialog,
     &Tour::CheckNewDialog},
    {"new-wrong-key", "a key that is too short is refused", &Tour::ActNewShortKey, &Tour::CheckNewRefused},
    {"new-different-keys", "two keys that are not the same are refused", &Tour::ActNewDifferentKeys,
     &Tour::CheckNewRefused},
    {"new-ok", "with a right key the network is saved and put at the end of the list", &Tour::ActNewOk,
     &Tour::CheckNew},
    {"new-repeated", "New once more with the same name: it is refused, the list has it already",
     &Tour::ActNewRepeated, &Tour::CheckNewStillOpen},
    {"new-cancel", "Cancel closes the dialog; the list is as before", &Tour::ActNewCancel,
     &Tour::CheckNewClosed},
    {"read-only", "a network that is read-only can be moved but not removed", &Tour::ActReadOnly,
     &Tour::CheckReadOnly},
    {"added-elsewhere", "another plug-in puts a network at the top; the open page follows",
     &Tour::ActForeignTop, nullptr},
    {"arabic", "the language is switched to Arabic while the page is open", &Tour::ActArabic,
     &Tour::CheckArabic},
    {"language-back", "the language is switched back", &Tour::ActBack, &Tour::CheckBack},
    {"ok", "OK closes the settings; the main window shows the list", &Tour::ActConfirm, &Tour::CheckClosed},
    {"reopened", "the settings are opened again; the list was kept", &Tour::ActReopen, &Tour::CheckOpen},
    {"cancel", "Cancel closes the settings; what was changed stays", &Tour::ActDismiss, &Tour::CheckClosed},
    {"connect-dialog", "the Connect button lists the networks in range", &Tour::ActConnectDialog,
     &Tour::CheckConnectDialog},
    {"connect-ok", "one is chosen; to be connected puts it at the top of the list", &Tour::ActConnectOk,
     &Tour::CheckConnected},
    {"undo", "the Undo button takes that back", &Tour::ActUndo, &Tour::CheckUndone},
    {"redo", "the Redo button puts it at the top again", &Tour::ActRedo, &Tour::CheckNothingToRedo},
    {"restore-dialog", "the button Earlier lists shows them, with what changed and when",
     &Tour::ActRestoreDialog, &Tour::CheckRestoreDialog},
    {"restore-ok", "the one before is chosen by key and restored; that is a change like any other",
     &Tour::ActRestoreOk, &Tour::CheckNothingToRedo},
    {"export", "Export in the Edit menu writes the list to a file, without any keys", &Tour::ActExport,
     &Tour::CheckExported},
    {"import-dialog", "the Undo button takes the restoring back; Import tells what that file would do",
     &Tour::ActImportDialog, &Tour::CheckImportDialog},
    {"import-ok", "Import, by key: the list is that of the file", &Tour::ActImportOk, &Tour::CheckImported},
    {"window-arabic", "the Language menu turns the main window to Arabic", &Tour::ActWindowArabic,
     &Tour::CheckWindowArabic},
    {"window-back", "and back", &Tour::ActWindowBack, &Tour::CheckWindowBack},
};

const int Tour::stepCount = sizeof(Tour::steps) / sizeof(Tour::steps[0]);

Tour::Tour(QWidget *window, const TourDirectory &directory)
    : m_window(window), m_directory(directory), m_step(0), m_failedSteps(0), m_checksLeft(0),
      m_answerTriesLeft(0)
{
}

void Tour::Start()
{
    // Not a timer of the toolkit's: a tour that hangs may hang outside of any event loop.
    std::signal(SIGALRM, GiveUp);
    alarm(longestTourSeconds);
    QTimer::singleShot(0, this, SLOT(Act()));
}

void Tour::Act()
{
    if (m_step == stepCount) {
        Finish();
        return;
    }
    m_failures.clear();
    (this->*steps[m_step].act)();
    // What couldn't be done has no effect to wait for.
    m_checksLeft = m_failures.isEmpty() ? checkTries : 0;
    QTimer::singleShot(checkMilliseconds, this, SLOT(Check()));
}

void Tour::Check()
{
    const QStringList failuresOfAct = m_failures;
    if (failuresOfAct.isEmpty()) {
        ExpectListEverywhere();
        if (steps[m_step].check) {
            (this->*steps[m_step].check)();
        }
        if (!m_failures.isEmpty() && m_checksLeft-- > 0) {
            m_failures.clear();
            QTimer::singleShot(checkMilliseconds, this, SLOT(Check()));
            return;
        }
    }
    Report();
    ++m_step;
    QTimer::singleShot(0, this, SLOT(Act()));
}

void Tour::Report()
{
    const Step &step = steps[m_step];
    SavePicture(QLatin1String(step.name));
    Print(QString::fromLatin1("step %1: %2").arg(m_step + 1).arg(QLatin1String(step.what)));
    const QList<PriorityList> list = ReadFile();
    for (int i = 0; i < list.size(); ++i) {
        Print(QString::fromLatin1("  %1. %2 (%3)")
                  .arg(i + 1, 2)
                  .arg(list.at(i).name.simplified(),
                       QLatin1String(ListEntries::IsWifi(list.at(i)) ? "Wi-Fi" : "mobile broadband")));
    }
    if (list.isEmpty()) {
        Print(QLatin1String("  (the list is empty)"));
    }
    for (int i = 0; i < m_failures.size(); ++i) {
        Print(QLatin1String("FAILED: ") + m_failures.at(i));
    }
    if (!m_failures.isEmpty()) {
        ++m_failedSteps;
        // The next step is judged by its own effect.
        m_expected = list;
    }
}

void Tour::SavePicture(const QString &name)
{
    const QString fileName =
        QString::fromLatin1("%1-%2.png").arg(m_step + 1, 2, 10, QLatin1Char('0')).arg(name);
    const QString path = m_directory.Claim(fileName);
    if (path.isEmpty() || !Composed(m_window).save(path, "PNG")) {
        Fail(QString::fromLatin1("the picture %1 can't be saved").arg(fileName));
    }
    emit PictureTaken(name);
}

void Tour::Finish()
{
    alarm(0);
    Print(QString::fromLatin1("tour: %1 steps, %2 failed").arg(stepCount).arg(m_failedSteps));
    QApplication::exit(m_failedSteps == 0 ? 0 : 1);
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

QWidget *Tour::Find(const char *name)
{
    return FindOf<QWidget>(name);
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

void Tour::PressInList(int key)
{
    if (QWidget *table = Find("priorityTable")) {
        FailIf(UserActions::PressKey(key, table));
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
    m_answer = QLatin1String(answer);
    m_question = PluginText(textId);
    m_answerTriesLeft = answerTries;
    QTimer::singleShot(0, this, SLOT(AnswerQuestion()));
    Click(name);
    if (m_answerTriesLeft > 0) {
        m_answerTriesLeft = 0;
        Fail(QLatin1String("no question was asked"));
    }
}

void Tour::AnswerQuestion()
{
    if (m_answerTriesLeft <= 0) {
        return;
    }
    const QPointer<QWidget> question = QApplication::activeModalWidget();
    if (!question || question->objectName() != QLatin1String("messageBox")) {
        if (--m_answerTriesLeft > 0) {
            QTimer::singleShot(checkMilliseconds, this, SLOT(AnswerQuestion()));
        }
        return;
    }
    m_answerTriesLeft = 0;
    SavePicture(QLatin1String(steps[m_step].name) + QLatin1String("-question"));
    const QLabel *text = question->findChild<QLabel *>(QLatin1String("messageText"));
    if (!text || text->text() != m_question) {
        Fail(QString::fromLatin1("the question should be: %1").arg(m_question));
    }
    QWidget *button = question->findChild<QWidget *>(m_answer);
    FailIf(button ? UserActions::Click(button) : QString::fromLatin1("the question has no %1").arg(m_answer));
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

void Tour::EnterNew(const QString &name)
{
    Fill("networkNameBox", name);
    if (const QComboBox *box = FindOf<QComboBox>("authenticationBox")) {
        ChooseItem("authenticationBox", box->findText(QLatin1String("WPA2PSK")));
    }
}

void Tour::EnterKeys(const char *key, const char *confirmation)
{
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

void Tour::ExpectListEverywhere()
{
    FailIf(WrongAboutList());
}

QString Tour::WrongAboutList() const
{
    const QList<PriorityList> list = ReadFile();
    const QStringList expected = NamesOf(m_expected);
    if (!ListEntries::IsSame(list, m_expected)) {
        return Differs("Priority.xml", NamesOf(list), expected);
    }
    const QTableWidget *table = m_window->findChild<QTableWidget *>(QLatin1String("priorityTable"));
    if (table && table->isVisible() && NamesOf(table) != expected) {
        return Differs("the page", NamesOf(table), expected);
    }
    const QListWidget *overview = m_window->findChild<QListWidget *>(QLatin1String("overviewList"));
    const QStringList shown = overview && overview->isVisible() ? NamesOf(overview) : QStringList();
    return shown == expected ? WrongAboutHeadline() : Differs("the main window", shown, expected);
}

QString Tour::WrongAboutHeadline() const
{
    const QStringList inRange = NetworksInRange();
    QString inUse = DashboardText("IDS_HEAD_NONE");
    for (int i = m_expected.size() - 1; i >= 0; --i) {
        if (!ListEntries::IsWifi(m_expected.at(i)) || inRange.contains(m_expected.at(i).name)) {
            inUse = m_expected.at(i).name;
        }
    }
    const QLabel *headline = m_window->findChild<QLabel *>(QLatin1String("headlineLabel"));
    return headline && headline->text().contains(inUse)
               ? QString()
               : QString::fromLatin1("the main window should tell: %1").arg(inUse);
}

QString Tour::OrderPath() const
{
    return m_directory.DataPath() + QLatin1String("/order.xml");
}

void Tour::ActStart()
{
    m_languageBefore = Change::GetLangName();
}

void Tour::CheckStart()
{
    const QWidget *message = Find("messageText");
    if (message) {
        Expect(message->isVisible(), "a hint stands in place of the empty list");
    }
    Expect(PluginObjects::Priority() != nullptr, "the plug-in with the priority list is there");
    Expect(PluginObjects::Wlan() != nullptr, "the Wi-Fi plug-in is there");
}

void Tour::ActSeed()
{
    IPriorityPlugin *priority = PluginObjects::Priority();
    IWLANUIPlugin *wlan = PluginObjects::Wlan();
    if (!priority || !wlan) {
        Fail(QLatin1String("a plug-in is missing"));
        return;
    }
    QList<RememberedList> remembered;
    wlan->GetRememberedList(&remembered);
    for (int i = 0; i < remembered.size(); ++i) {
        m_expected.append(Entry(remembered.at(i).name, remembered.at(i).type));
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

void Tour::ActOpen()
{
    Click("settingsButton");
}

void Tour::CheckOpen()
{
    const QWidget *table = Find("priorityTable");
    if (table) {
        Expect(table->isVisible(), "the page is shown");
    }
    ExpectButtons(false, false, false);
}

void Tour::ActSelect()
{
    ClickRow(m_expected.value(1));
}

void Tour::CheckSelect()
{
    ExpectButtons(true, true, true);
    ExpectSelected(1);
}

void Tour::ActDownButton()
{
    MoveExpected(1, 2);
    Click("downButton");
}

void Tour::CheckMovedDown()
{
    ExpectSelected(2);
}

void Tour::ActUpButton()
{
    MoveExpected(2, 1);
    Click("upButton");
}

void Tour::CheckMovedUp()
{
    ExpectSelected(1);
}

void Tour::ActDownKey()
{
    ClickRow(m_expected.value(1));
    MoveExpected(1, 2);
    PressInList(Qt::Key_Down);
}

void Tour::ActUpKey()
{
    MoveExpected(2, 1);
    PressInList(Qt::Key_Up);
}

void Tour::ActDeleteCancel()
{
    ClickRow(m_expected.value(1));
    ClickAndAnswer("deleteButton", "messageButton2", "IDS_WARNING_DELETE");
}

void Tour::CheckNothingSelected()
{
    ExpectSelected(-1);
    ExpectButtons(false, false, false);
}

void Tour::ActDeleteOk()
{
    ClickRow(m_expected.value(1));
    m_listBefore = m_expected;
    if (m_expected.size() > 1) {
        m_notListed.prepend(m_expected.takeAt(1));
    }
    ClickAndAnswer("deleteButton", "messageButton1", "IDS_WARNING_DELETE");
}

void Tour::SwapWithListBefore()
{
    const QList<PriorityList> list = m_expected;
    m_expected = m_listBefore;
    m_listBefore = list;
}

void Tour::ActSettingsUndo()
{
    SwapWithListBefore();
    Click("settingsUndoButton");
}

void Tour::ActSettingsRedo()
{
    SwapWithListBefore();
    Click("settingsRedoButton");
}

void Tour::ExpectUndoAndRedo(bool undo, bool redo)
{
    const QWidget *undoButton = Find("undoButton");
    const QWidget *redoButton = Find("redoButton");
    if (undoButton && redoButton) {
        Expect(undoButton->isEnabled() == undo, "the Undo button is enabled when there is something to undo");
        Expect(redoButton->isEnabled() == redo, "the Redo button is enabled when something was undone");
    }
}

void Tour::CheckUndone()
{
    ExpectUndoAndRedo(true, true);
}

void Tour::CheckNothingToRedo()
{
    ExpectUndoAndRedo(true, false);
}

void Tour::ActAddDialog()
{
    Click("addButton");
}

void Tour::CheckAddDialog()
{
    const QTableWidget *table = FindOf<QTableWidget>("rememberTable");
    if (table) {
        Expect(table->isVisible(), "the dialog is open");
        const QStringList expected = NamesOf(m_notListed);
        if (NamesOf(table) != expected) {
            Fail(Differs("the dialog", NamesOf(table), expected));
        }
    }
}

void Tour::ActAddElsewhere()
{
    IPriorityPlugin *priority = PluginObjects::Priority();
    if (!priority || m_notListed.size() != 2) {
        Fail(QLatin1String("there are no two networks left to add"));
        return;
    }
    Tick(m_notListed.first());
    Tick(m_notListed.last());
    m_expected.prepend(m_notListed.first());
    priority->AddTopPriority(m_notListed.first());
}

void Tour::CheckAddElsewhere()
{
    CheckAddDialog();
    const QTableWidget *table = FindOf<QTableWidget>("rememberTable");
    for (int row = 0; table && row < table->rowCount(); ++row) {
        const QCheckBox *box =
            table->cellWidget(row, 0)->findChild<QCheckBox *>(QLatin1String("rowCheckBox"));
        Expect(box && box->isChecked(), "both stay ticked");
    }
}

void Tour::ActAddOk()
{
    if (m_notListed.size() != 2 || m_expected.isEmpty()) {
        Fail(QLatin1String("there are no two networks left to add"));
        return;
    }
    m_expected.removeFirst();
    m_expected += m_notListed;
    m_notListed.clear();
    Click("addOkButton");
}

void Tour::CheckAdded()
{
    ExpectSelected(m_expected.size() - 2);
    ExpectButtons(true, true, true);
}

void Tour::ActNewDialog()
{
    Click("newButton");
}

void Tour::CheckNewDialog()
{
    const QComboBox *names = FindOf<QComboBox>("networkNameBox");
    if (names) {
        Expect(names->isVisible(), "the dialog is open");
        Expect(names->count() > 0, "networks in range are offered");
    }
}

void Tour::ActNewShortKey()
{
    m_new = Entry(QLatin1String("Summer house"), QLatin1String("1"));
    EnterNew(m_new.name);
    EnterKeys("sand", "sand");
    ClickAndAnswer("newOkButton", "messageButton1", "IDS_ERROR_KEY_WRONG_LENGTH_128");
}

void Tour::ActNewDifferentKeys()
{
    EnterKeys("sea-and-sand", "sea-and-land");
    ClickAndAnswer("newOkButton", "messageButton1", "IDS_ERROR_KEY_DIFFERENT");
}

void Tour::CheckNewStillOpen()
{
    const QWidget *dialog = Find("newDialog");
    if (dialog) {
        Expect(dialog->isVisible(), "the dialog is still open");
    }
}

void Tour::CheckNewRefused()
{
    CheckNewStillOpen();
    Expect(!RememberedNames().contains(m_new.name), "the Wi-Fi plug-in hasn't heard of the network");
}

void Tour::ActNewOk()
{
    EnterKeys("sea-and-sand", "sea-and-sand");
    m_expected.append(m_new);
    Click("newOkButton");
}

void Tour::CheckNew()
{
    CheckNewClosed();
    ExpectSelected(m_expected.size() - 1);
    ExpectButtons(true, false, true);
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

void Tour::ActNewRepeated()
{
    Click("newButton");
    EnterNew(m_new.name);
    EnterKeys("sea-and-sand", "sea-and-sand");
    ClickAndAnswer("newOkButton", "messageButton1", "IDS_PROFILE_NAME_REPEAT");
}

void Tour::ActNewCancel()
{
    Click("newCancelButton");
}

void Tour::CheckNewClosed()
{
    const QWidget *dialog = m_window->findChild<QWidget *>(QLatin1String("newDialog"));
    Expect(!dialog || !dialog->isVisible(), "the dialog is closed");
}

void Tour::ActReadOnly()
{
    for (int i = 1; i < m_expected.size() - 1; ++i) {
        if (IsReadOnly(m_expected.at(i))) {
            ClickRow(m_expected.at(i));
            return;
        }
    }
    Fail(QLatin1String("no network in the middle of the list is read-only"));
}

void Tour::CheckReadOnly()
{
    ExpectSelected(PlaceOf(m_selected));
    ExpectButtons(true, true, false);
}

void Tour::ActForeignTop()
{
    IPriorityPlugin *priority = PluginObjects::Priority();
    if (!priority) {
        Fail(QLatin1String("the plug-in with the priority list is missing"));
        return;
    }
    const PriorityList entry = Entry(QLatin1String("Library"), QLatin1String("1"));
    m_expected.prepend(entry);
    priority->AddTopPriority(entry);
}

void Tour::ActArabic()
{
    SelectPage(0);
    ChooseItem("languageBox", LanguagePlace(QLatin1String("ar")));
    SelectPage(1);
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

void Tour::CheckArabic()
{
    ExpectLanguage(QLatin1String("ar"), "upButton", PluginText("IDS_PROFILE_UP"));
    Expect(QApplication::layoutDirection() == Qt::RightToLeft, "the windows read from right to left");
}

void Tour::ActBack()
{
    SelectPage(0);
    ChooseItem("languageBox", LanguagePlace(m_languageBefore));
    SelectPage(1);
}

void Tour::CheckBack()
{
    ExpectLanguage(m_languageBefore, "upButton", PluginText("IDS_PROFILE_UP"));
}

void Tour::ActConfirm()
{
    Click("settingsOkButton");
}

void Tour::CheckClosed()
{
    const QWidget *dialog = m_window->findChild<QWidget *>(QLatin1String("settingsDialog"));
    Expect(!dialog || !dialog->isVisible(), "the settings are closed");
}

void Tour::ActReopen()
{
    Click("settingsButton");
}

void Tour::ActDismiss()
{
    Click("settingsCancelButton");
}

void Tour::ActConnectDialog()
{
    Click("connectButton");
}

void Tour::CheckConnectDialog()
{
    const QTableWidget *table = FindOf<QTableWidget>("connectList");
    if (table) {
        Expect(table->isVisible(), "the dialog is open");
        Expect(table->hasFocus(), "the networks can be chosen by key");
        if (NamesOf(table) != NetworksInRange()) {
            Fail(Differs("the dialog", NamesOf(table), NetworksInRange()));
        }
    }
}

void Tour::ActConnectOk()
{
    QTableWidget *table = FindOf<QTableWidget>("connectList");
    if (!table) {
        return;
    }
    const int row = table->rowCount() - 1;
    m_selected = Entry(NetworksInRange().value(row), QLatin1String("1"));
    FailIf(UserActions::ClickRow(table, row));
    m_listBefore = m_expected;
    const int place = PlaceOf(m_selected);
    if (place >= 0) {
        m_expected.removeAt(place);
    }
    m_expected.prepend(m_selected);
    Click("connectOkButton");
}

void Tour::CheckConnected()
{
    const QWidget *dialog = m_window->findChild<QWidget *>(QLatin1String("connectDialog"));
    Expect(!dialog || !dialog->isVisible(), "the dialog is closed");
}

void Tour::ActUndo()
{
    SwapWithListBefore();
    Click("undoButton");
}

void Tour::ActRedo()
{
    SwapWithListBefore();
    Click("redoButton");
}

void Tour::ActRestoreDialog()
{
    Click("restoreButton");
}

void Tour::CheckRestoreDialog()
{
    const QTableWidget *table = FindOf<QTableWidget>("restoreList");
    const QListWidget *preview = FindOf<QListWidget>("restorePreview");
    if (table && preview) {
        Expect(table->isVisible(), "the dialog is open");
        Expect(table->rowCount() > 2, "earlier lists can be chosen");
        Expect(table->hasFocus(), "they can be chosen by key");
        Expect(NamesOf(preview) == NamesOf(m_expected), "the list as it is now is chosen first");
    }
}

void Tour::ActRestoreOk()
{
    SwapWithListBefore();
    if (QWidget *table = Find("restoreList")) {
        FailIf(UserActions::PressKey(Qt::Key_Down, table));
        const QListWidget *preview = FindOf<QListWidget>("restorePreview");
        Expect(preview && NamesOf(preview) == NamesOf(m_expected), "the chosen list is shown");
        FailIf(UserActions::PressKey(Qt::Key_Return, table));
    }
}

void Tour::ActExport()
{
    Choose("editMenu", "exportAction");
    EnterFile("exportFileDialog", OrderPath());
}

void Tour::CheckExported()
{
    QFile file(OrderPath());
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    }
    QList<PriorityList> exported;
    Expect(OrderFile::Parse(bytes, &exported).kind == FileFault::None, "the file can be read");
    if (!ListEntries::IsSame(exported, m_expected)) {
        Fail(Differs("the file", NamesOf(exported), NamesOf(m_expected)));
    }
    Expect(!bytes.contains("sea-and-sand"), "no key is in the file");
}

void Tour::ActImportDialog()
{
    SwapWithListBefore();
    Click("undoButton");
    Choose("editMenu", "importAction");
    EnterFile("importFileDialog", OrderPath());
}

void Tour::CheckImportDialog()
{
    const QTableWidget *table = FindOf<QTableWidget>("importList");
    const QWidget *button = Find("importOkButton");
    if (table && button) {
        Expect(table->isVisible(), "the dialog is open");
        Expect(button->isEnabled(), "there is something to import");
        const QStringList planned = NamesOf(table, importNameColumn).mid(0, m_listBefore.size());
        if (planned != NamesOf(m_listBefore)) {
            Fail(Differs("the dialog", planned, NamesOf(m_listBefore)));
        }
    }
}

void Tour::ActImportOk()
{
    SwapWithListBefore();
    if (QWidget *button = Find("importOkButton")) {
        FailIf(UserActions::PressKey(Qt::Key_Return, button));
    }
}

void Tour::CheckImported()
{
    const QWidget *dialog = m_window->findChild<QWidget *>(QLatin1String("importDialog"));
    Expect(!dialog || !dialog->isVisible(), "the dialog is closed");
    ExpectUndoAndRedo(true, false);
}

void Tour::ActWindowArabic()
{
    Choose("languageMenu", "languageAction_ar");
}

void Tour::CheckWindowArabic()
{
    ExpectLanguage(QLatin1String("ar"), "settingsButton", DashboardText("IDS_BUTTON_SETTINGS"));
    const QWidget *button = Find("settingsButton");
    const QWidget *headline = Find("headlineLabel");
    if (button && headline) {
        Expect(button->mapTo(m_window, QPoint()).x() < headline->mapTo(m_window, QPoint()).x(),
               "the window reads from right to left");
    }
}

void Tour::ActWindowBack()
{
    const QByteArray action = "languageAction_" + m_languageBefore.toLatin1();
    Choose("languageMenu", action.constData());
}

void Tour::CheckWindowBack()
{
    ExpectLanguage(m_languageBefore, "settingsButton", DashboardText("IDS_BUTTON_SETTINGS"));
}
