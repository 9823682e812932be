#include "Eventually.h"
#include "PluginWorld.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <MainWindow.h>
#include <NetworkList.h>
#include <TextPattern.h>
#include <TraceLog.h>
#include <WindowActivation.h>

#include <Change.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

namespace
{

/** The keys of each row of the table below README's heading. */
QList<QStringList> KeysInReadme()
{
    QFile file(SOURCE_DIRECTORY "/README.md");
    if (!file.open(QIODevice::ReadOnly)) {
        return QList<QStringList>();
    }
    const QString section =
        QString::fromUtf8(file.readAll()).section("\n## By keyboard\n", 1, 1).section("\n## ", 0, 0);
    QList<QStringList> rows;
    foreach (const QString &line, section.split('\n')) {
        if (line.startsWith("| `")) {
            rows.append(TextPattern::FindAll(line.section('|', 1, 1), "`([^`]+)`"));
        }
    }
    return rows;
}

Qt::Key KeyNamed(const QString &name)
{
    const QMap<QString, Qt::Key> keys{{"Space", Qt::Key_Space}, {"Enter", Qt::Key_Return},
                                      {"Tab", Qt::Key_Tab},     {"Up", Qt::Key_Up},
                                      {"Down", Qt::Key_Down},   {",", Qt::Key_Comma}};
    const bool isLetter = name.size() == 1 && name.at(0) >= 'A' && name.at(0) <= 'Z';
    return isLetter ? Qt::Key(Qt::Key_A + name.at(0).unicode() - 'A') : keys.value(name, Qt::Key_unknown);
}

bool IsAButtonDown()
{
    foreach (const QWidget *widget, QApplication::allWidgets()) {
        const QPushButton *button = qobject_cast<const QPushButton *>(widget);
        if (button && button->isVisible() && button->isDown()) {
            return true;
        }
    }
    return false;
}

/** What a window manager does: the dialog that is open before the others, or the window, has the keyboard. */
bool ActivateFront(QWidget *window)
{
    QWidget *front = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : window;
    if (QApplication::activeWindow() != front) {
        ActivateWindow(front);
    }
    return Eventually(
        [front] { return QApplication::focusWidget() && QApplication::focusWidget()->window() == front; });
}

/** Presses keys such as "Ctrl+L" where the keyboard's focus is. */
bool Press(const QString &keys, QWidget *window)
{
    QStringList names = keys.split('+');
    const Qt::Key key = KeyNamed(names.takeLast());
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    foreach (const QString &name, names) {
        modifiers |= name == "Ctrl"  ? Qt::ControlModifier
                     : name == "Alt" ? Qt::AltModifier
                                     : Qt::ShiftModifier;
    }
    QWidget *popup = QApplication::activePopupWidget();
    if (key == Qt::Key_unknown || !(popup || ActivateFront(window))) {
        return false;
    }
    QTest::keyClick(popup ? popup : QApplication::focusWidget(), key, modifiers);
    // A mnemonic's button goes down first, to be seen.
    return Eventually([] { return !IsAButtonDown(); });
}

} // namespace

/** What README tells to press has the effect that it tells. */
class KeyboardWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void ReadmeIsTrue();

private:
    /** What stands open before the window, and what the window tells first below its head. */
    QString Seen() const;

    PluginWorld m_world;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<DashboardLanguage> m_language;
    QScopedPointer<MainWindow> m_window;
};

void KeyboardWalkTest::initTestCase()
{
    HostControl::SetPluginLibraryPath(BUILD_DIRECTORY);
    HostControl::SetLanguageDirectory(BUILD_DIRECTORY "/share/priority-dashboard/languages");
    QVERIFY(m_world.Load());
    QVERIFY(m_world.Begin());
    m_log.reset(new TraceLog(m_world.Directory().FilePath("dashboard.log")));
    m_language.reset(new DashboardLanguage(nullptr));
    m_window.reset(new MainWindow(m_world.Plugins(), m_language.data(), m_log.data()));
    m_window->show();
}

void KeyboardWalkTest::cleanupTestCase()
{
    m_window.reset();
    m_world.Shutdown();
}

QString KeyboardWalkTest::Seen() const
{
    const QWidget *dialog = QApplication::activeModalWidget();
    const NetworkList *list = m_window->findChild<NetworkList *>();
    QStringList names;
    for (int i = 0; list->isVisible() && i < list->Listed().size(); ++i) {
        names.append(list->item(i)->text());
    }
    return QString("%1; %2; %3; %4")
        .arg(dialog ? dialog->objectName() : QString("mainWindow"), names.join(", "),
             m_window->findChild<QLabel *>("explanationLabel")->text().section('.', 0, 0),
             Change::GetLangName());
}

void KeyboardWalkTest::ReadmeIsTrue()
{
    const QStringList effects{
        "settingsDialog; ; Your list is empty, so there is nothing to choose from; en",
        "settingsDialog; Home; Your list would choose Home; en",
        QString::fromUtf8("settingsDialog; Home, Café; Your list would choose Home; en"),
        QString::fromUtf8("settingsDialog; Café, Home; Your list would choose Café; en"),
        QString::fromUtf8("mainWindow; Café, Home; Your list would choose Café; en"),
        QString::fromUtf8("mainWindow; Home, Café; Your list would choose Home; en"),
        QString::fromUtf8("mainWindow; Home, Café; كانت قائمتك ستختار \u2068Home\u2069; ar"),
        QString::fromUtf8("mainWindow; Home, Café; Your list would choose Home; en")};
    const QList<QStringList> rows = KeysInReadme();
    QCOMPARE(rows.size(), effects.size());
    for (int i = 0; i < rows.size(); ++i) {
        foreach (const QString &keys, rows.at(i)) {
            QVERIFY2(Press(keys, m_window.data()), qPrintable(keys));
        }
        Eventually([&] { return Seen() == effects.at(i); });
        QCOMPARE(Seen(), effects.at(i));
        QCOMPARE(QApplication::layoutDirection(),
                 Change::GetLangName() == "ar" ? Qt::RightToLeft : Qt::LeftToRight);
    }
}

QTEST_MAIN(KeyboardWalkTest)
#include "tst_keyboardwalk.moc"
