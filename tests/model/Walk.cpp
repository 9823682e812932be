#include "Walk.h"

#include <RootRights.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const std::size_t keptSteps = 25;
const std::size_t noLimit = std::size_t(-1);

const std::vector<Model::Text> names = {
    u"Home",
    u"home",
    u"Office",
    u"Caf\u00e9",
    u"\u0634\u0628\u0643\u0629",
    u"A&B <\"x\"> 'y'",
    u"tab\tand\nline",
    u"\U0001f4f6 signal",
    u" ",
    u"]]>",
    u"a name of a network that is much too long to be shown in a row of the page and is cut at its right",
};
const std::vector<Model::Text> unstorableNames = {u"bell\a", u"lone \xd83d", u"\xdcf6 lone", u"\xfffe"};
const std::vector<Model::Text> typedNames = {u"Home", u"Office", u"Caf\u00e9", u"New one", u"Other", u""};
const std::vector<Model::Text> types = {u"1", u"1", u"1", u"2", u"0", u""};
const std::vector<QString> languages = {"en", "ar", "he", "eo"};
const std::vector<std::string> garbage = {
    "",
    "no document",
    "<zeltdoc><profile>",
    "<a></b><item name='A' type='1'/>",
    std::string("\0<item name='A'/>", 17),
    "\xff\xfe<\x00i\x00",
    "<?xml version='1.0' encoding='UTF-16'?><item name='A' type='1'/>",
};

QString Shown(const Model::Text &text)
{
    // Unit by unit: a conversion would take U+FFFE for a byte order mark.
    return QString(reinterpret_cast<const QChar *>(text.data()), int(text.size()));
}

PriorityList ToProduct(const Model::Entry &entry)
{
    return Entry(Shown(entry.name), Shown(entry.type));
}

QList<PriorityList> ToProduct(const Model::Entries &entries)
{
    QList<PriorityList> list;
    for (const Model::Entry &entry : entries) {
        list << ToProduct(entry);
    }
    return list;
}

QString Described(const Model::Entries &entries)
{
    return QLatin1Char('[') + AsTexts(ToProduct(entries)).join(", ") + QLatin1Char(']');
}

QString Described(const QByteArray &bytes)
{
    return bytes.isNull() ? QString("none") : QString::fromUtf8(bytes);
}

/** Lets no file grow larger than this while it is in scope, as a full disk does. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    Q_DISABLE_COPY(FileSizeLimit)

    rlimit m_before;
};

void SetMode(const QString &path, mode_t mode)
{
    if (chmod(QFile::encodeName(path).constData(), mode) != 0) {
        qFatal("a mode can't be set");
    }
}

QPair<QString, int> WLANKey()
{
    return qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102);
}

} // namespace

const Walk::Kind Walk::kinds[] = {
    {"click on a row", 180, 0, &Walk::ClickRow},
    {"click beside the rows", 10, 0, &Walk::ClickEmptySpace},
    {"Up clicked", 70, 0, &Walk::ClickUp},
    {"Down clicked", 70, 0, &Walk::ClickDown},
    {"up arrow pressed", 70, 0, &Walk::PressUp},
    {"down arrow pressed", 70, 0, &Walk::PressDown},
    {"another key pressed", 20, 0, &Walk::PressOtherKey},
    {"Delete confirmed", 60, 0, &Walk::DeleteConfirmed},
    {"Delete cancelled", 30, 0, &Walk::DeleteCancelled},
    {"Add opened", 40, 0, &Walk::OpenAdd},
    {"New opened", 25, 0, &Walk::OpenNew},
    {"OK in a dialog", 0, 300, &Walk::ConfirmDialog},
    {"Cancel in a dialog", 0, 40, &Walk::CancelDialog},
    {"dialog closed", 0, 40, &Walk::CloseDialog},
    {"another plug-in adds at the top", 40, 40, &Walk::ServiceAddTop},
    {"another plug-in adds a list", 40, 40, &Walk::ServiceAddList},
    {"another plug-in reads", 10, 10, &Walk::ServiceRead},
    {"file written by another program", 30, 20, &Walk::OtherProgramWrites},
    {"file written in the product's form", 20, 20, &Walk::OtherProgramWritesAsWeDo},
    {"file deleted", 10, 10, &Walk::OtherProgramDeletes},
    {"file truncated", 20, 20, &Walk::OtherProgramTruncates},
    {"garbage in the file", 8, 8, &Walk::OtherProgramWritesGarbage},
    {"file made unreadable", 10, 10, &Walk::FileAccessTaken},
    {"directory in the file's place", 8, 8, &Walk::DirectoryInPlaceOfFile},
    {"directory made read-only", 10, 10, &Walk::DirectoryWriteTaken},
    {"directory moved away", 8, 8, &Walk::DirectoryMovedAway},
    {"language changed", 20, 10, &Walk::ChangeLanguage},
    {"settings shown", 60, 10, &Walk::ShowSettings},
    {"settings shown without a parent", 5, 5, &Walk::ShowSettingsWithoutParent},
    {"settings hidden", 15, 5, &Walk::HideSettings},
    {"settings: OK", 25, 5, &Walk::ConfirmSettings},
    {"settings: Cancel", 15, 5, &Walk::CancelSettings},
    {"host deletes its dialog with the page", 1, 1, &Walk::DeleteHostDialog},
    {"WLAN plug-in changes", 20, 10, &Walk::WlanChanges},
    {"WLAN plug-in comes and goes", 10, 10, &Walk::WlanGoes},
};

int Walk::KindCount()
{
    return sizeof(kinds) / sizeof(kinds[0]);
}

const char *Walk::KindName(int kind)
{
    return kinds[kind].name;
}

Walk::Walk(std::uint64_t seed)
    : m_random(seed), m_path(m_directory.FilePath("Priority.xml")), m_isShown(false), m_wasAsked(false),
      m_kind(0), m_step(0)
{
    std::signal(SIGXFSZ, SIG_IGN);
    StandInHost::Reset(m_directory.Path());
    StandInHost::messageVisitor = this;
    m_container.objects.insert(WLANKey(), &m_wlan);
    StandInHost::container = &m_container;
    m_wlan.config.authenticationList << "open";
    if (m_random.OneIn(2)) {
        PutFile(AnyForeignDocument());
    }
    m_window.reset(new QWidget);
    m_window->resize(500, 400);
    m_window->show();
    m_plugin.Plugin()->Init();
    m_priority = m_plugin.Priority();
    m_setting = m_plugin.Setting();
    m_signals.reset(new QSignalSpy(m_plugin.Service(), SIGNAL(OnUpdataPriorityView())));
    ShowSettings();
}

Walk::~Walk()
{
    RepairDisk();
}

bool Walk::Step()
{
    // Permissions are to be felt as an ordinary user feels them.
    const WithoutRootRights ordinary;
    ++m_step;
    m_kind = ChooseKind();
    m_lastSteps.push_back(QString("%1. %2").arg(m_step).arg(kinds[m_kind].name));
    if (m_lastSteps.size() > keptSteps) {
        m_lastSteps.pop_front();
    }
    StandInHost::messages.clear();
    StandInHost::elidedTexts.clear();
    StandInHost::elideModes.clear();
    m_wlan.calls.clear();
    m_wlan.created.clear();
    m_container.lookUps.clear();
    m_signals->clear();
    m_model.signalsSent = 0;
    m_model.noticesShown = 0;
    m_model.profilesCreated = 0;
    m_wasAsked = false;
    const bool damaged = !m_model.disk.directoryExists || !m_model.disk.directoryAllowsChange ||
                         !m_model.disk.fileAllowsAccess ||
                         m_model.disk.kind == Model::Disk::DirectoryInItsPlace;
    if (damaged && m_random.OneIn(4)) {
        RepairDisk();
        Note("the disk is in order again");
    }
    m_model.disk.room = noLimit;
    if (m_random.OneIn(20)) {
        m_model.disk.room = std::size_t(m_random.Below(500));
        Note(QString("with room for %1 bytes").arg(m_model.disk.room));
    }
    {
        const FileSizeLimit limit(m_model.disk.room == noLimit ? RLIM_INFINITY : rlim_t(m_model.disk.room));
        // Taken out of the table first: checked for its bounds and called at once, g++ 12 reads it from
        // nowhere.
        const Action action = kinds[m_kind].action;
        (this->*action)();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    m_difference = Difference();
    return m_difference.isEmpty();
}

int Walk::KindOf(Action action)
{
    int kind = 0;
    while (kinds[kind].action != action) {
        ++kind;
    }
    return kind;
}

int Walk::ChooseKind()
{
    if (!m_isShown && m_random.OneIn(3)) {
        return KindOf(&Walk::ShowSettings);
    }
    const bool inDialog = m_model.dialog != Model::ListModel::NoDialog;
    int total = 0;
    for (const Kind &kind : kinds) {
        total += inDialog ? kind.weightInDialog : kind.weight;
    }
    int chosen = m_random.Below(total);
    int kind = 0;
    for (;; ++kind) {
        chosen -= inDialog ? kinds[kind].weightInDialog : kinds[kind].weight;
        if (chosen < 0) {
            return kind;
        }
    }
}

void Walk::Note(const QString &detail)
{
    m_lastSteps.back() += QLatin1String(": ") + detail;
}

QPushButton *Walk::Button(const char *name) const
{
    return m_page->findChild<QPushButton *>(QLatin1String(name));
}

QTableWidget *Walk::Table() const
{
    return m_page->findChild<QTableWidget *>("priorityTable");
}

QWidget *Walk::Dialog() const
{
    return m_page->findChild<QWidget *>(m_model.dialog == Model::ListModel::AddDialog ? "addDialog"
                                                                                      : "newDialog");
}

void Walk::Click(const char *button)
{
    QTest::mouseClick(Button(button), Qt::LeftButton);
}

void Walk::ClickRow()
{
    QTableWidget *table = Table();
    if (!m_isShown || table->rowCount() == 0) {
        return;
    }
    const int row = m_random.Below(table->rowCount());
    Note(QString::number(row));
    table->scrollTo(table->model()->index(row, 0));
    QTest::mouseClick(table->cellWidget(row, 0)->findChild<QLabel *>("rowName"), Qt::LeftButton,
                      Qt::NoModifier, QPoint(5, 5));
    m_model.ClickRow(row);
}

void Walk::ClickEmptySpace()
{
    QTableWidget *table = Table();
    const QPoint below(20, table->viewport()->height() - 3);
    if (!m_isShown || table->indexAt(below).isValid()) {
        return;
    }
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, below);
}

void Walk::ClickUp()
{
    if (m_isShown) {
        m_model.ClickUp();
        Click("upButton");
    }
}

void Walk::ClickDown()
{
    if (m_isShown) {
        m_model.ClickDown();
        Click("downButton");
    }
}

void Walk::Press(int key)
{
    QTest::keyClick(Table(), Qt::Key(key));
}

void Walk::PressUp()
{
    if (m_isShown) {
        m_model.PressUp();
        Press(Qt::Key_Up);
    }
}

void Walk::PressDown()
{
    if (m_isShown) {
        m_model.PressDown();
        Press(Qt::Key_Down);
    }
}

void Walk::PressOtherKey()
{
    static const std::vector<int> keys = {Qt::Key_Home,  Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,
                                          Qt::Key_Tab,   Qt::Key_Delete, Qt::Key_Return, Qt::Key_Space,
                                          Qt::Key_Right, Qt::Key_H};
    if (m_isShown) {
        Press(m_random.OneOf(keys));
    }
}

void Walk::Delete(bool confirmed)
{
    if (!m_isShown) {
        return;
    }
    StandInHost::messageAnswer = confirmed ? QMessageBox::Ok : QMessageBox::Cancel;
    if (m_model.ClickDelete()) {
        m_wasAsked = true;
        Click("deleteButton");
        m_model.AnswerDelete(confirmed);
    } else {
        Click("deleteButton");
    }
}

void Walk::DeleteConfirmed()
{
    Delete(true);
}

void Walk::DeleteCancelled()
{
    Delete(false);
}

/** The world goes on while the user reads a question. */
void Walk::MessageIsOpen()
{
    if (m_model.dialog != Model::ListModel::NoDialog || !m_random.OneIn(3)) {
        return;
    }
    static const std::vector<Action> interludes = {
        &Walk::ServiceAddTop, &Walk::ServiceAddList,    &Walk::OtherProgramWrites, &Walk::OtherProgramDeletes,
        &Walk::ShowSettings,  &Walk::FileAccessTaken,   &Walk::ChangeLanguage,     &Walk::ConfirmSettings,
        &Walk::HideSettings,  &Walk::DirectoryMovedAway};
    const Action interlude = m_random.OneOf(interludes);
    Note("during the question");
    (this->*interlude)();
}

void Walk::OpenAdd()
{
    if (m_isShown) {
        m_model.ClickAdd();
        Click("addButton");
    }
}

void Walk::OpenNew()
{
    if (m_isShown) {
        m_model.ClickNew();
        Click("newButton");
    }
}

void Walk::ConfirmDialog()
{
    if (m_model.dialog == Model::ListModel::NewDialog) {
        const Model::Text name = m_random.OneOf(typedNames);
        Note(Shown(name));
        Dialog()->findChild<QComboBox *>("networkNameBox")->setEditText(Shown(name));
        QPushButton *ok = Dialog()->findChild<QPushButton *>("newOkButton");
        m_model.ConfirmNew(name);
        QTest::mouseClick(ok, Qt::LeftButton);
        return;
    }
    const QTableWidget *table = Dialog()->findChild<QTableWidget *>("rememberTable");
    std::vector<bool> ticked;
    for (int row = 0; row < table->rowCount(); ++row) {
        ticked.push_back(m_random.OneIn(2));
        if (ticked.back()) {
            QTest::keyClick(table->cellWidget(row, 0)->findChild<QCheckBox *>(), Qt::Key_Space);
            Note(QString::number(row));
        }
    }
    QPushButton *ok = Dialog()->findChild<QPushButton *>("addOkButton");
    m_model.ConfirmAdd(ticked);
    QTest::mouseClick(ok, Qt::LeftButton);
}

void Walk::CancelDialog()
{
    const char *button =
        m_model.dialog == Model::ListModel::AddDialog ? "addCancelButton" : "newCancelButton";
    QTest::mouseClick(Dialog()->findChild<QPushButton *>(button), Qt::LeftButton);
    m_model.CloseDialog();
}

void Walk::CloseDialog()
{
    if (m_random.OneIn(2)) {
        QTest::keyClick(Dialog(), Qt::Key_Escape);
    } else {
        Dialog()->close();
    }
    m_model.CloseDialog();
}

Model::Entry Walk::AnyEntry()
{
    const Model::Text name = m_random.OneIn(12) ? m_random.OneOf(unstorableNames) : m_random.OneOf(names);
    return Model::Entry{name, m_random.OneOf(types)};
}

Model::Entries Walk::AnyEntries(int most)
{
    Model::Entries entries;
    for (int i = m_random.Below(most + 1); i > 0; --i) {
        entries.push_back(AnyEntry());
    }
    return entries;
}

Model::Document Walk::AnyForeignDocument()
{
    return Model::ForeignDocument(Model::Storable(AnyEntries(7)));
}

void Walk::ServiceAddTop()
{
    Model::Entry entry = AnyEntry();
    if (m_random.OneIn(10)) {
        entry.name.clear();
    }
    Note(Described(Model::Entries(1, entry)));
    m_model.AddTopPriority(entry);
    m_priority->AddTopPriority(ToProduct(entry));
}

void Walk::ServiceAddList()
{
    const Model::Entries entries = AnyEntries(3);
    Note(Described(entries));
    m_model.AddPriorityList(entries);
    QList<PriorityList> list = ToProduct(entries);
    m_priority->AddPriorityList(list);
}

void Walk::ServiceRead()
{
    if (m_priority->GetPriorityList(nullptr) != 23) {
        Note("a null list was read");
    }
}

void Walk::RemoveWhatIsThere()
{
    RepairDisk();
    QFile::remove(m_path);
    m_model.disk.kind = Model::Disk::NoFile;
}

/** Of what is wrong with file and directory all but the file's content is put right. */
void Walk::RepairDisk()
{
    Model::Disk &disk = m_model.disk;
    if (!disk.directoryExists) {
        QDir().rename(m_directory.Path() + "-away", m_directory.Path());
        disk.directoryExists = true;
    }
    if (!disk.directoryAllowsChange) {
        SetMode(m_directory.Path(), 0700);
        disk.directoryAllowsChange = true;
    }
    if (!disk.fileAllowsAccess) {
        SetMode(m_path, 0644);
        disk.fileAllowsAccess = true;
    }
    if (disk.kind == Model::Disk::DirectoryInItsPlace) {
        QDir().rmdir(m_path);
        disk.kind = Model::Disk::NoFile;
    }
}

void Walk::PutFile(const Model::Document &document)
{
    RemoveWhatIsThere();
    const FileSizeLimit none(RLIM_INFINITY);
    m_directory.Write("Priority.xml", QByteArray(document.bytes.data(), int(document.bytes.size())));
    m_model.disk.kind = Model::Disk::OrdinaryFile;
    m_model.disk.document = document;
}

void Walk::OtherProgramWrites()
{
    const Model::Document document = AnyForeignDocument();
    Note(Described(document.entries));
    PutFile(document);
}

void Walk::OtherProgramWritesAsWeDo()
{
    const Model::Document document = Model::ProductDocument(AnyEntries(7));
    Note(Described(document.entries));
    PutFile(document);
}

void Walk::OtherProgramDeletes()
{
    RemoveWhatIsThere();
}

void Walk::OtherProgramTruncates()
{
    if (m_model.disk.kind != Model::Disk::OrdinaryFile) {
        return;
    }
    const std::size_t size = std::size_t(m_random.Below(int(m_model.disk.document.bytes.size()) + 1));
    Note(QString("to %1 bytes").arg(size));
    PutFile(Model::Truncated(m_model.disk.document, size));
}

void Walk::OtherProgramWritesGarbage()
{
    PutFile(Model::Garbage(m_random.OneOf(garbage)));
}

void Walk::FileAccessTaken()
{
    RepairDisk();
    if (m_model.disk.kind == Model::Disk::OrdinaryFile) {
        SetMode(m_path, 0);
        m_model.disk.fileAllowsAccess = false;
    }
}

void Walk::DirectoryInPlaceOfFile()
{
    RemoveWhatIsThere();
    QDir().mkdir(m_path);
    m_model.disk.kind = Model::Disk::DirectoryInItsPlace;
}

void Walk::DirectoryWriteTaken()
{
    RepairDisk();
    SetMode(m_directory.Path(), 0500);
    m_model.disk.directoryAllowsChange = false;
}

void Walk::DirectoryMovedAway()
{
    RepairDisk();
    QDir().rename(m_directory.Path(), m_directory.Path() + "-away");
    m_model.disk.directoryExists = false;
}

void Walk::ChangeLanguage()
{
    StandInHost::language = m_random.OneOf(languages);
    Note(StandInHost::language);
    m_plugin.Notification()->Notify(320, 0, 0);
}

void Walk::ShowSettings()
{
    QRect rect(10, 10, 5, 5);
    m_model.Show();
    m_setting->ShowSettingDialog(m_window.data(), rect);
    m_page = m_window->findChild<QWidget *>("priorityPage");
    m_isShown = true;
}

void Walk::ShowSettingsWithoutParent()
{
    QRect rect;
    m_setting->ShowSettingDialog(nullptr, rect);
}

void Walk::HideSettings()
{
    m_model.Hide();
    m_setting->HideSetting();
    m_isShown = false;
}

void Walk::ConfirmSettings()
{
    m_model.ConfirmSettings();
    m_setting->OnClickSettingOkButton();
    m_isShown = false;
}

void Walk::CancelSettings()
{
    m_model.Hide();
    m_setting->OnClickSettingCancelButton();
    m_isShown = false;
}

void Walk::DeleteHostDialog()
{
    if (!m_isShown) {
        return;
    }
    m_window.reset();
    m_model.DeletePage();
    m_window.reset(new QWidget);
    m_window->resize(500, 400);
    m_window->show();
    ShowSettings();
}

void Walk::WlanChanges()
{
    m_wlan.remembered.clear();
    m_wlan.profiles.clear();
    m_wlan.networks.clear();
    m_model.remembered.clear();
    m_model.readOnly.clear();
    for (int i = m_random.Below(6); i > 0; --i) {
        const Model::Entry entry = AnyEntry();
        m_model.remembered.push_back(Model::Remembered{entry.name, entry.type});
        m_wlan.Remember(Shown(entry.name), Shown(entry.type));
    }
    static const std::vector<QString> words = {"true", "true", "TRUE", "1", ""};
    for (int i = m_random.Below(4); i > 0; --i) {
        const Model::Text name = m_random.OneOf(names);
        const QString word = m_random.OneOf(words);
        m_wlan.AddReadOnly(Shown(name), word);
        // A name that is typed and is in range takes its profile's settings over.
        m_wlan.profiles[Shown(name)].authentication = "open";
        m_wlan.profiles[Shown(name)].encryption = "none";
        if (word == "true") {
            m_model.readOnly.insert(name);
        } else {
            m_model.readOnly.erase(name);
        }
        WlanAvilableNetworkInfo network;
        network.networkName = Shown(name);
        m_wlan.networks << network;
    }
    m_wlan.createResult = m_random.Below(3) - 1;
    m_wlan.config.authenticationList.clear();
    m_model.authenticationOffered = !m_random.OneIn(6);
    if (m_model.authenticationOffered) {
        m_wlan.config.authenticationList << "open";
    }
}

void Walk::WlanGoes()
{
    m_model.wlanPresent = !m_model.wlanPresent;
    StandInHost::container = &m_container;
    m_container.objects.clear();
    if (m_model.wlanPresent) {
        m_container.objects.insert(WLANKey(), &m_wlan);
        return;
    }
    switch (m_random.Below(3)) {
    case 0:
        StandInHost::container = nullptr;
        break;
    case 1:
        // Not a WLAN plug-in: the cast fails.
        m_container.objects.insert(WLANKey(), qApp);
        break;
    default:
        break;
    }
}

QString Walk::Difference()
{
    const QString differences[] = {FileDifference(), TableDifference(), StateDifference(),
                                   DialogDifference()};
    for (const QString &difference : differences) {
        if (!difference.isEmpty()) {
            return difference;
        }
    }
    return QString();
}

QString Walk::FileDifference()
{
    const Model::Disk &disk = m_model.disk;
    Model::Entries expected;
    const int expectedCode = m_model.Read(&expected);
    QList<PriorityList> read;
    const int code = m_priority->GetPriorityList(&read);
    if (code != expectedCode || AsTexts(read) != AsTexts(ToProduct(expected))) {
        return QString("reading the list gives %1 %2 instead of %3 %4")
            .arg(code)
            .arg(AsTexts(read).join(", "))
            .arg(expectedCode)
            .arg(Described(expected));
    }
    if (!disk.directoryExists || !disk.fileAllowsAccess) {
        return QString();
    }
    if (QDir(m_path).exists() != (disk.kind == Model::Disk::DirectoryInItsPlace)) {
        return "the directory in the file's place is gone or new";
    }
    const QByteArray wanted = disk.kind == Model::Disk::OrdinaryFile
                                  ? QByteArray(disk.document.bytes.data(), int(disk.document.bytes.size()))
                                  : QByteArray();
    const QByteArray found = m_directory.Read("Priority.xml");
    if (found != wanted || found.isNull() != wanted.isNull()) {
        return QString("the file holds\n%1\ninstead of\n%2").arg(Described(found), Described(wanted));
    }
    const int others = disk.kind == Model::Disk::NoFile ? 0 : 1;
    const int count =
        QDir(m_directory.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size();
    return count == others ? QString()
                           : QString("%1 entries in the directory instead of %2").arg(count).arg(others);
}

QString Walk::TableDifference()
{
    const QTableWidget *table = Table();
    if (table->rowCount() != int(m_model.working.size())) {
        return QString("%1 rows instead of %2").arg(table->rowCount()).arg(Described(m_model.working));
    }
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString difference = RowDifference(row);
        if (!difference.isEmpty()) {
            return difference;
        }
    }
    const QModelIndexList selected = table->selectionModel()->selectedIndexes();
    const int highlighted = selected.size() == 1 ? selected.first().row() : -1;
    if (selected.size() > 1 || highlighted != m_model.highlightedRow) {
        return QString("row %1 is highlighted instead of %2").arg(highlighted).arg(m_model.highlightedRow);
    }
    return QString();
}

QString Walk::RowDifference(int row)
{
    const Model::Entry &entry = m_model.working[std::size_t(row)];
    const QTableWidget *table = Table();
    const QWidget *cell = table->cellWidget(row, 0);
    if (!cell || table->item(row, 0)) {
        return QString("row %1 has no cell widget, or an item").arg(row);
    }
    if (cell->accessibleName() != Shown(entry.name)) {
        return QString("row %1 shows \"%2\" instead of \"%3\"")
            .arg(row)
            .arg(cell->accessibleName(), Shown(entry.name));
    }
    const QList<QLabel *> labels = cell->findChildren<QLabel *>();
    const QLabel *icon = cell->findChild<QLabel *>("rowIcon");
    const QLabel *name = cell->findChild<QLabel *>("rowName");
    if (labels.size() != 2 || !icon || !name) {
        return QString("row %1 has %2 labels").arg(row).arg(labels.size());
    }
    const QString folder = StandInHost::libraryPath + "/plugins/PriorityPlugin/";
    const QPixmap expected(folder + (entry.type == u"1" ? "wifi.png" : "3G .png"));
    if (icon->property("pixmap").value<QPixmap>().cacheKey() != expected.cacheKey()) {
        return QString("row %1 has the wrong icon").arg(row);
    }
    const bool mirrored = StandInHost::language == "ar" || StandInHost::language == "he";
    if (name->pos() != (mirrored ? QPoint(63, 9) : QPoint(35, 9))) {
        return QString("row %1 is not laid out for %2").arg(row).arg(StandInHost::language);
    }
    return QString();
}

QString Walk::StateDifference()
{
    const bool states[] = {Button("upButton")->isEnabled(), Button("downButton")->isEnabled(),
                           Button("deleteButton")->isEnabled(), Button("addButton")->isEnabled(),
                           Button("newButton")->isEnabled()};
    const bool expected[] = {m_model.upEnabled, m_model.downEnabled, m_model.deleteEnabled, true, true};
    static const char *const buttons[] = {"Up", "Down", "Delete", "Add", "New"};
    for (int i = 0; i < 5; ++i) {
        if (states[i] != expected[i]) {
            return QString("%1 is %2").arg(buttons[i], states[i] ? "enabled" : "disabled");
        }
    }
    if (Button("upButton")->text() != StandInHost::language + ":IDS_PROFILE_UP") {
        return "the texts are in another language";
    }
    if (m_page->parentWidget() != (m_isShown ? m_window.data() : nullptr) ||
        m_page->isVisible() != m_isShown) {
        return "the page is shown or hidden against the host's word";
    }
    if (m_signals->count() != m_model.signalsSent) {
        return QString("%1 signals instead of %2").arg(m_signals->count()).arg(m_model.signalsSent);
    }
    if (StandInHost::messages.size() != m_model.noticesShown + (m_wasAsked ? 1 : 0)) {
        return QString("%1 messages shown").arg(StandInHost::messages.size());
    }
    if (m_wlan.created.size() != m_model.profilesCreated) {
        return QString("%1 profiles created instead of %2")
            .arg(m_wlan.created.size())
            .arg(m_model.profilesCreated);
    }
    return QString();
}

QString Walk::DialogDifference()
{
    const QWidget *add = m_page->findChild<QWidget *>("addDialog");
    const QWidget *fresh = m_page->findChild<QWidget *>("newDialog");
    if ((add && add->isVisible()) != (m_model.dialog == Model::ListModel::AddDialog) ||
        (fresh && fresh->isVisible()) != (m_model.dialog == Model::ListModel::NewDialog)) {
        return "a dialog is open or closed against expectation";
    }
    if (m_model.dialog != Model::ListModel::AddDialog) {
        return QString();
    }
    const QTableWidget *table = add->findChild<QTableWidget *>("rememberTable");
    if (table->rowCount() != int(m_model.offered.size())) {
        return QString("%1 networks are offered instead of %2")
            .arg(table->rowCount())
            .arg(m_model.offered.size());
    }
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->cellWidget(row, 0)->accessibleName() != Shown(m_model.offered[std::size_t(row)].name) &&
            table->cellWidget(row, 0)->findChild<QCheckBox *>()->accessibleName() !=
                Shown(m_model.offered[std::size_t(row)].name)) {
            return QString("row %1 offers another network").arg(row);
        }
    }
    return QString();
}

bool Walk::End()
{
    RepairDisk();
    const QByteArray before = m_directory.Read("Priority.xml");
    m_signals.reset();
    m_plugin.Plugin()->OnDestroy();
    m_plugin.Priority()->AddTopPriority(Entry("X"));
    QList<PriorityList> list;
    list << Entry("Y");
    m_plugin.Priority()->AddPriorityList(list);
    m_plugin.Setting()->OnClickSettingOkButton();
    m_plugin.Plugin()->OnDestroy();
    m_lastSteps.push_back("the end");
    if (m_page || m_directory.Read("Priority.xml") != before) {
        m_difference = "the page or the file outlived OnDestroy in the wrong way";
    }
    return m_difference.isEmpty();
}

QString Walk::Report() const
{
    QString report;
    for (const QString &step : m_lastSteps) {
        report += QLatin1String("    ") + step + QLatin1Char('\n');
    }
    for (int i = 0; i < StandInHost::messages.size(); ++i) {
        report += QString("    message: %1\n").arg(StandInHost::messages.at(i).text);
    }
    return report + m_difference;
}
