#include "FakeConnections.h"
#include "FakePage.h"

#include <AgentStart.h>
#include <DashboardLanguage.h>
#include <GeneralPage.h>
#include <HostControl.h>
#include <ListRules.h>
#include <PluginHost.h>
#include <PluginPage.h>
#include <Row.h>
#include <RulesPage.h>
#include <SettingsDialog.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <Change.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

namespace
{

PluginHost::Plugin PluginInState(PluginState state)
{
    PluginHost::Plugin plugin;
    plugin.known.folder = QLatin1String("Some");
    plugin.known.titleId = QLatin1String("IDS_PLUGIN_PRIORITY");
    plugin.known.hasSettingsPage = true;
    plugin.file = QLatin1String("/somewhere/libSome.so");
    plugin.state = state;
    return plugin;
}

void ClickButton(QWidget *dialog, const char *name)
{
    QPushButton *button = dialog->findChild<QPushButton *>(QLatin1String(name));
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
}

QString ProblemOf(const QWidget *dialog)
{
    const QLabel *label = dialog->findChild<QLabel *>(QLatin1String("pageProblem"));
    return label ? label->text() : QString();
}

/** A program that ends at once in the agent's place. */
AgentStart NoAgent()
{
    return AgentStart(QStandardPaths::findExecutable("true"), QString());
}

/** Networks that can be ruled, for as long as this lives. */
class WithRules
{
public:
    explicit WithRules(FakeConnections *connections) : m_container(nullptr, connections)
    {
        HostControl::SetPluginContainer(&m_container);
    }
    ~WithRules() { HostControl::SetPluginContainer(nullptr); }

private:
    Q_DISABLE_COPY(WithRules)

    WithConnections m_container;
};

} // namespace

class SettingsDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void PageIsShownInAreaOfItsSize();
    void PageIsShownWhenItIsChosen();
    void PageIsAskedToShowOnce();
    void OkReachesShownPages();
    void EveryOtherWayOutIsCancel_data();
    void EveryOtherWayOutIsCancel();
    void PageNeverShownHearsNothing();
    void DialogDeletedWithoutAnswerHidesThePage();
    void DialogDeletedWithItsParentHidesThePage();

    void PageThatIsNotShownIsExplained();
    void PluginThatIsNotLoadedIsExplained();
    void ProblemIsToldAnewInAnotherLanguage();
    void TitlesAreToldAnewInAnotherLanguage();

    void PageIsOffered_data();
    void PageIsOffered();
    void InactivePageIsNotOffered();

    void LanguageSwitchesAtOnce();
    void LanguageGoesBackUnlessOk_data();
    void LanguageGoesBackUnlessOk();
    void PlaceOfNewNetworksIsKeptUnlessCancelled_data();
    void PlaceOfNewNetworksIsKeptUnlessCancelled();
    void PlaceOfNewNetworksThatCannotBeKeptIsNotShown();
    void RuleIsKeptUnlessCancelled_data();
    void RuleIsKeptUnlessCancelled();
    void AgentIsStartedWithTheSessionUnlessCancelled_data();
    void AgentIsStartedWithTheSessionUnlessCancelled();
    void AgentThatCannotBeStartedIsShownSo();
    void IconGoesWithTheAgentAndStaysUnlessCancelled_data();
    void IconGoesWithTheAgentAndStaysUnlessCancelled();
    void WhatNeedsTheRuleIsOffWithoutIt();
    void NoticesAreOfferedWhileTheListIsFollowed();
    void RuleIsOfferedWhereTheListCanRule();
    void GeneralPageTellsOfPlugins();

private:
    TemporaryDirectory m_directory;
};

void SettingsDialogTest::init()
{
    qputenv("XDG_DATA_HOME", m_directory.Path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", m_directory.Path().toLocal8Bit());
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
}

void SettingsDialogTest::PageIsShownInAreaOfItsSize()
{
    FakePage page;
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &page));
    dialog.SelectPage(0);
    dialog.show();
    QCOMPARE(page.area, QRect(0, 0, 420, 374));
    QVERIFY(page.widget->isVisible());
    QVERIFY(page.widget->parentWidget()->width() >= 420 && page.widget->parentWidget()->height() >= 374);
}

void SettingsDialogTest::PageIsShownWhenItIsChosen()
{
    FakePage first;
    FakePage second;
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &first));
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &second));
    dialog.SelectPage(0);
    dialog.show();
    QVERIFY(second.calls.isEmpty());
    QListWidget *list = dialog.findChild<QListWidget *>("pageList");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(1)).center());
    QCOMPARE(second.calls, QStringList("Show"));
    QVERIFY(second.widget->isVisible() && !first.widget->isVisible());
}

void SettingsDialogTest::PageIsAskedToShowOnce()
{
    FakePage first;
    FakePage second;
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &first));
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &second));
    dialog.SelectPage(0);
    dialog.SelectPage(1);
    dialog.SelectPage(0);
    QCOMPARE(first.calls, QStringList("Show"));
}

void SettingsDialogTest::OkReachesShownPages()
{
    FakePage page;
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &page));
    dialog.SelectPage(0);
    dialog.show();
    ClickButton(&dialog, "settingsOkButton");
    QCOMPARE(page.calls, QStringList() << "Show"
                                       << "Ok");
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void SettingsDialogTest::EveryOtherWayOutIsCancel_data()
{
    QTest::addColumn<QString>("way");
    Row("Cancel", "button");
    Row("Escape", "escape");
    Row("close button of the window", "close");
}

void SettingsDialogTest::EveryOtherWayOutIsCancel()
{
    QFETCH(QString, way);
    FakePage page;
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &page));
    dialog.SelectPage(0);
    dialog.show();
    if (way == "button") {
        ClickButton(&dialog, "settingsCancelButton");
    } else if (way == "escape") {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        dialog.close();
    }
    QCOMPARE(page.calls, QStringList() << "Show"
                                       << "Cancel");
    QVERIFY(!dialog.isVisible());
}

void SettingsDialogTest::PageNeverShownHearsNothing()
{
    FakePage shown;
    FakePage other;
    {
        SettingsDialog dialog(nullptr);
        dialog.AddPage(new PluginPage(PluginInState(PluginReady), &shown));
        dialog.AddPage(new PluginPage(PluginInState(PluginReady), &other));
        dialog.SelectPage(0);
        dialog.show();
        dialog.accept();
    }
    QCOMPARE(other.calls, QStringList());
}

void SettingsDialogTest::DialogDeletedWithoutAnswerHidesThePage()
{
    FakePage page;
    {
        SettingsDialog dialog(nullptr);
        dialog.AddPage(new PluginPage(PluginInState(PluginReady), &page));
        dialog.SelectPage(0);
        dialog.show();
    }
    QCOMPARE(page.calls, QStringList() << "Show"
                                       << "Hide");
    QVERIFY(page.widget);
}

void SettingsDialogTest::DialogDeletedWithItsParentHidesThePage()
{
    FakePage page;
    QWidget *parent = new QWidget;
    SettingsDialog *dialog = new SettingsDialog(parent);
    dialog->AddPage(new PluginPage(PluginInState(PluginReady), &page));
    dialog->SelectPage(0);
    dialog->show();
    delete parent;
    QCOMPARE(page.calls.last(), QString("Hide"));
    QVERIFY(page.widget);
}

void SettingsDialogTest::PageThatIsNotShownIsExplained()
{
    FakePage page;
    page.showsItself = false;
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &page));
    dialog.SelectPage(0);
    dialog.show();
    QVERIFY(ProblemOf(&dialog).contains("/somewhere/libSome.so"));
    QVERIFY(dialog.findChild<QLabel *>("pageProblem")->isVisible());
    dialog.accept();
    QCOMPARE(page.calls, QStringList("Show"));
}

void SettingsDialogTest::PluginThatIsNotLoadedIsExplained()
{
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginMissing), nullptr));
    dialog.SelectPage(0);
    dialog.show();
    QCOMPARE(ProblemOf(&dialog), PluginHost::ProblemText(PluginInState(PluginMissing)));
    QCOMPARE(dialog.findChild<QListWidget *>("pageList")->item(0)->text(), QString("Network priority"));
    dialog.reject();
    QVERIFY(!dialog.isVisible());
}

void SettingsDialogTest::ProblemIsToldAnewInAnotherLanguage()
{
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginMissing), nullptr));
    dialog.SelectPage(0);
    const QString english = ProblemOf(&dialog);
    QVERIFY(DashboardLanguage::Apply("he"));
    dialog.Retranslate();
    QVERIFY(ProblemOf(&dialog) != english);
    QCOMPARE(ProblemOf(&dialog), PluginHost::ProblemText(PluginInState(PluginMissing)));
}

void SettingsDialogTest::TitlesAreToldAnewInAnotherLanguage()
{
    FakePage page;
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new PluginPage(PluginInState(PluginReady), &page));
    const QListWidgetItem *item = dialog.findChild<QListWidget *>("pageList")->item(0);
    QCOMPARE(item->text(), QString("Fake page"));
    page.title = QString::fromUtf8("دف");
    QVERIFY(DashboardLanguage::Apply("ar"));
    dialog.Retranslate();
    QCOMPARE(item->text(), page.title);
    QCOMPARE(dialog.findChild<QPushButton *>("settingsOkButton")->text(), QString::fromUtf8("موافق"));
}

void SettingsDialogTest::PageIsOffered_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("hasSettingsPage");
    QTest::addColumn<bool>("isOffered");
    Row("missing", "Absent", true, true);
    Row("missing, without page", "Absent", false, true);
    Row("hands out nothing", "QueryNull", true, true);
    Row("says false", "QueryFails", true, true);
    Row("hands out something else", "Working", true, true);
    Row("ready, without page", "QueryFails", false, false);
}

void SettingsDialogTest::PageIsOffered()
{
    QFETCH(QString, folder);
    QFETCH(bool, hasSettingsPage);
    QFETCH(bool, isOffered);
    const TraceCapture capture;
    KnownPlugin known;
    known.folder = folder;
    known.classId = "ID";
    known.titleId = "IDS_PLUGIN_WLAN_STORED";
    known.hasSettingsPage = hasSettingsPage;
    PluginHost host(BUILD_DIRECTORY "/tests/fixtures", QList<KnownPlugin>() << known);
    host.Load();
    QScopedPointer<PluginPage> page(PluginPage::Make(host.Plugins().first(), &host));
    QCOMPARE(!page.isNull(), isOffered);
    if (isOffered) {
        QWidget place;
        QVERIFY(!page->Show(&place));
        QVERIFY(page->ProblemText().contains(host.Plugins().first().file));
    }
}

void SettingsDialogTest::InactivePageIsNotOffered()
{
    class Host : public PluginHost
    {
    public:
        explicit Host(QObject *object) : PluginHost(QString(), QList<KnownPlugin>()), m_object(object) {}
        QObject *GetPluginObject(const QString &, int) override { return m_object; }

    private:
        QObject *m_object;
    };
    FakePage page;
    Host host(&page);
    const QScopedPointer<PluginPage> active(PluginPage::Make(PluginInState(PluginReady), &host));
    QVERIFY(!active.isNull());
    page.isActive = false;
    const QScopedPointer<PluginPage> inactive(PluginPage::Make(PluginInState(PluginReady), &host));
    QVERIFY(inactive.isNull());
}

void SettingsDialogTest::LanguageSwitchesAtOnce()
{
    PluginHost host(BUILD_DIRECTORY, QList<KnownPlugin>());
    DashboardLanguage language(nullptr);
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new GeneralPage(&language, &host));
    dialog.SelectPage(0);
    dialog.show();
    QComboBox *box = dialog.findChild<QComboBox *>("languageBox");
    QVERIFY(box);
    QCOMPARE(box->currentText(), QString("English"));
    QTest::keyClick(box, Qt::Key_Home);
    QCOMPARE(Change::GetLangName(), QString("ar"));
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
}

void SettingsDialogTest::LanguageGoesBackUnlessOk_data()
{
    QTest::addColumn<bool>("isOk");
    QTest::addColumn<QString>("after");
    Row("OK", true, "ar");
    Row("Cancel", false, "en");
}

void SettingsDialogTest::LanguageGoesBackUnlessOk()
{
    QFETCH(bool, isOk);
    PluginHost host(BUILD_DIRECTORY, QList<KnownPlugin>());
    DashboardLanguage language(nullptr);
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new GeneralPage(&language, &host));
    dialog.SelectPage(0);
    dialog.show();
    QTest::keyClick(dialog.findChild<QComboBox *>("languageBox"), Qt::Key_Home);
    dialog.done(isOk ? QDialog::Accepted : QDialog::Rejected);
    QTEST(Change::GetLangName(), "after");
}

void SettingsDialogTest::PlaceOfNewNetworksIsKeptUnlessCancelled_data()
{
    QTest::addColumn<bool>("isOk");
    QTest::addColumn<int>("after");
    Row("OK", true, int(ListRules::NewNotInTheList));
    Row("Cancel", false, int(ListRules::NewAtTheTop));
}

void SettingsDialogTest::PlaceOfNewNetworksIsKeptUnlessCancelled()
{
    QFETCH(bool, isOk);
    SettingsDialog dialog(nullptr);
    QVERIFY(ListRules::SetPlaceOfNewNetworks(ListRules::NewAtTheTop));
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QComboBox *box = dialog.findChild<QComboBox *>("newNetworksBox");
    QCOMPARE(box->currentText(), QString("At the top of your list"));
    QTest::keyClick(box, Qt::Key_End);
    QCOMPARE(ListRules::PlaceOfNewNetworks(), ListRules::NewNotInTheList);
    dialog.done(isOk ? QDialog::Accepted : QDialog::Rejected);
    QTEST(int(ListRules::PlaceOfNewNetworks()), "after");
}

void SettingsDialogTest::PlaceOfNewNetworksThatCannotBeKeptIsNotShown()
{
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QComboBox *box = dialog.findChild<QComboBox *>("newNetworksBox");
    // There is no user directory any more, and none can be made.
    m_directory.Write("a file", "");
    qputenv("XDG_DATA_HOME", m_directory.FilePath("a file").toLocal8Bit());
    QTest::keyClick(box, Qt::Key_End);
    QCOMPARE(box->currentText(), QString("At the end of your list"));
    qputenv("XDG_DATA_HOME", m_directory.Path().toLocal8Bit());
}

void SettingsDialogTest::RuleIsKeptUnlessCancelled_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("isOk");
    for (const bool isOk : {true, false}) {
        const char *answer = isOk ? "OK" : "Cancel";
        QTest::addRow("ruling, %s", answer) << "rulingBox"
                                            << "ruling" << isOk;
        QTest::addRow("following, %s", answer) << "followingBox"
                                               << "following" << isOk;
        QTest::addRow("saving data, %s", answer) << "savingBox"
                                                 << "savingData" << isOk;
        QTest::addRow("notifying, %s", answer) << "notifyingBox"
                                               << "notify" << isOk;
    }
}

void SettingsDialogTest::RuleIsKeptUnlessCancelled()
{
    QFETCH(QString, box);
    QFETCH(QString, key);
    QFETCH(bool, isOk);
    FakeConnections connections;
    const WithRules rules(&connections);
    QVERIFY(ListRules::SetRuling(true) && ListRules::SetFollowing(true) && ListRules::SetSavingData(true) &&
            ListRules::SetNotifying(true));
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QCheckBox *shown = dialog.findChild<QCheckBox *>(box);
    QVERIFY(shown->isVisible() && shown->isChecked());
    QTest::keyClick(shown, Qt::Key_Space);
    const auto isKept = [&key] {
        return QSettings(ListRules::FilePath(), QSettings::IniFormat).value(key).toString() == "yes";
    };
    QVERIFY(!isKept());
    dialog.done(isOk ? QDialog::Accepted : QDialog::Rejected);
    QCOMPARE(isKept(), !isOk);
}

void SettingsDialogTest::AgentIsStartedWithTheSessionUnlessCancelled_data()
{
    QTest::addColumn<bool>("isOk");
    Row("OK", true);
    Row("Cancel", false);
}

void SettingsDialogTest::AgentIsStartedWithTheSessionUnlessCancelled()
{
    QFETCH(bool, isOk);
    FakeConnections connections;
    const WithRules rules(&connections);
    QVERIFY(ListRules::SetRuling(true));
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QCheckBox *box = dialog.findChild<QCheckBox *>("keepingBox");
    QVERIFY(box->isVisible() && !box->isChecked());
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(QFile::exists(AgentStart::FilePath()));
    dialog.done(isOk ? QDialog::Accepted : QDialog::Rejected);
    QCOMPARE(QFile::exists(AgentStart::FilePath()), isOk);
    QFile::remove(AgentStart::FilePath());
}

void SettingsDialogTest::AgentThatCannotBeStartedIsShownSo()
{
    FakeConnections connections;
    const WithRules rules(&connections);
    m_directory.Write("a file", "");
    qputenv("XDG_CONFIG_HOME", m_directory.FilePath("a file").toLocal8Bit());
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QCheckBox *box = dialog.findChild<QCheckBox *>("keepingBox");
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(!box->isChecked());
    qputenv("XDG_CONFIG_HOME", m_directory.Path().toLocal8Bit());
}

void SettingsDialogTest::IconGoesWithTheAgentAndStaysUnlessCancelled_data()
{
    AgentIsStartedWithTheSessionUnlessCancelled_data();
}

void SettingsDialogTest::IconGoesWithTheAgentAndStaysUnlessCancelled()
{
    QFETCH(bool, isOk);
    FakeConnections connections;
    const WithRules rules(&connections);
    QVERIFY(ListRules::SetRuling(true));
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QCheckBox *box = dialog.findChild<QCheckBox *>("iconBox");
    QVERIFY(box->isVisible() && !box->isChecked() && !box->isEnabled());
    QTest::keyClick(dialog.findChild<QCheckBox *>("keepingBox"), Qt::Key_Space);
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(AgentStart::IsIconWanted());
    dialog.done(isOk ? QDialog::Accepted : QDialog::Rejected);
    QCOMPARE(AgentStart::IsIconWanted(), isOk);
    AgentStart::SetIconWanted(false);
    QFile::remove(AgentStart::FilePath());
}

void SettingsDialogTest::WhatNeedsTheRuleIsOffWithoutIt()
{
    FakeConnections connections;
    const WithRules rules(&connections);
    QVERIFY(ListRules::SetRuling(true));
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QTest::keyClick(dialog.findChild<QCheckBox *>("rulingBox"), Qt::Key_Space);
    QVERIFY(!dialog.findChild<QCheckBox *>("keepingBox")->isEnabled());
    QVERIFY(!dialog.findChild<QCheckBox *>("followingBox")->isEnabled());
    QVERIFY(!dialog.findChild<QCheckBox *>("savingBox")->isEnabled());
}

void SettingsDialogTest::NoticesAreOfferedWhileTheListIsFollowed()
{
    FakeConnections connections;
    const WithRules rules(&connections);
    QVERIFY(ListRules::SetRuling(true) && ListRules::SetFollowing(false));
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    const QCheckBox *notices = dialog.findChild<QCheckBox *>("notifyingBox");
    QVERIFY(!notices->isEnabled());
    QTest::keyClick(dialog.findChild<QCheckBox *>("followingBox"), Qt::Key_Space);
    QVERIFY(notices->isEnabled());
    QTest::keyClick(dialog.findChild<QCheckBox *>("rulingBox"), Qt::Key_Space);
    QVERIFY(!notices->isEnabled());
}

void SettingsDialogTest::RuleIsOfferedWhereTheListCanRule()
{
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new RulesPage(NoAgent()));
    dialog.SelectPage(0);
    dialog.show();
    QVERIFY(!dialog.findChild<QCheckBox *>("rulingBox")->isVisible());
}

void SettingsDialogTest::GeneralPageTellsOfPlugins()
{
    KnownPlugin known;
    known.folder = "Absent";
    known.titleId = "IDS_PLUGIN_WLAN_STORED";
    PluginHost host(BUILD_DIRECTORY, QList<KnownPlugin>() << known);
    host.Load();
    DashboardLanguage language(nullptr);
    SettingsDialog dialog(nullptr);
    dialog.AddPage(new GeneralPage(&language, &host));
    dialog.SelectPage(0);
    QVERIFY(dialog.findChild<QLabel *>("pluginsText")
                ->text()
                .contains("Wi-Fi (practice networks): not available"));
    QVERIFY(dialog.findChild<QLabel *>("placesText")->text().contains(m_directory.Path()));
}

QTEST_MAIN(SettingsDialogTest)
#include "tst_settingsdialog.moc"
