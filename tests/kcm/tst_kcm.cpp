#include <TemporaryDirectory.h>
#include <TextPattern.h>

#include <KCModule>
#include <KCMultiDialog>
#include <KPluginMetaData>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QJsonObject>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableWidget>
#include <QtTest>

namespace
{

const char *const listFile = "priority-dashboard/Priority.xml";
const char *const historyFile = "priority-dashboard/history/states.xml";
const char *const damagedList = "<z><item name='Home' type='1'/><item";

QString ModuleFile()
{
    return QLatin1String(BUILD_DIRECTORY "/kde/plasma/kcms/systemsettings_qwidgets/kcm_prioritylist.so");
}

KPluginMetaData Module()
{
    return KPluginMetaData(ModuleFile());
}

KCModule *ModuleIn(const QWidget *dialog)
{
    return dialog->findChild<KCModule *>();
}

QTableWidget *TableOf(const QWidget *dialog)
{
    return dialog->findChild<QTableWidget *>(QLatin1String("priorityTable"));
}

QString MessageOf(const QWidget *dialog)
{
    const QLabel *label = dialog->findChild<QLabel *>(QLatin1String("moduleMessage"));
    return label->isVisible() ? label->text() : QString();
}

} // namespace

/** The module of the desktop's settings, loaded as these do it. */
class TestKcm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void isFoundUnderNetwork();
    void isNamedInEveryLanguage();
    void moveIsInTheFile();
    void moveIsInTheHistory();
    void applyResetAndDefaultsKeepTheList();
    void changedListLeavesNothingToApply();
    void resetShowsTheListAsItIs();
    void rulesLeaveTheListUncovered();
    void secondModuleTellsThatTheListIsOpen();
    void damagedListIsNotOffered();
    void listIsOfferedOnceItIsWhole();
    void settingsShellShowsIt();
    void endsWithAnOpenModule();

private:
    /** The dialog belongs to the caller. */
    KCMultiDialog *Open() const;
    void MoveSecondUp(QWidget *dialog) const;
    QStringList Names() const;

    TemporaryDirectory m_directory;
};

void TestKcm::initTestCase()
{
    qputenv("XDG_DATA_HOME", m_directory.Path().toLocal8Bit());
    QVERIFY(QDir().mkpath(m_directory.FilePath(QLatin1String("priority-dashboard"))));
}

void TestKcm::init()
{
    m_directory.Write(listFile, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<zeltdoc type=\"profile\">\n"
                                "    <profile>\n        <item name=\"Home\" type=\"1\"/>\n"
                                "        <item name=\"Office\" type=\"1\"/>\n"
                                "        <item name=\"Mobile\" type=\"2\"/>\n    </profile>\n</zeltdoc>\n");
}

KCMultiDialog *TestKcm::Open() const
{
    KCMultiDialog *dialog = new KCMultiDialog;
    dialog->addModule(Module());
    dialog->show();
    // Some load a module only now.
    QCoreApplication::processEvents();
    return dialog;
}

void TestKcm::MoveSecondUp(QWidget *dialog) const
{
    QTableWidget *table = TableOf(dialog);
    QVERIFY(table);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(1, 0)).center());
    QTest::mouseClick(dialog->findChild<QPushButton *>(QLatin1String("upButton")), Qt::LeftButton);
}

QStringList TestKcm::Names() const
{
    return TextPattern::FindAll(QString::fromUtf8(m_directory.Read(listFile)),
                                QLatin1String("name=\"([^\"]*)\""));
}

void TestKcm::isFoundUnderNetwork()
{
    const KPluginMetaData data = Module();
    QCOMPARE(data.pluginId(), QString("kcm_prioritylist"));
    QCOMPARE(data.rawData().value("X-KDE-System-Settings-Parent-Category").toString(), QString("network"));
}

void TestKcm::isNamedInEveryLanguage()
{
    const QJsonObject data = Module().rawData().value("KPlugin").toObject();
    const QStringList files =
        QDir(BUILD_DIRECTORY "/share/priority-dashboard/languages").entryList(QDir::Files);
    QVERIFY(files.contains("de.qm"));
    for (const QString &file : files) {
        const QString suffix = file == "en.qm" ? QString() : '[' + QFileInfo(file).baseName() + ']';
        QVERIFY2(!data.value("Name" + suffix).toString().isEmpty(), qPrintable(file));
        QVERIFY2(!data.value("Description" + suffix).toString().isEmpty(), qPrintable(file));
    }
}

void TestKcm::moveIsInTheFile()
{
    const QScopedPointer<KCMultiDialog> dialog(Open());
    MoveSecondUp(dialog.data());
    QCOMPARE(Names(), QStringList({"Office", "Home", "Mobile"}));
}

void TestKcm::moveIsInTheHistory()
{
    QScopedPointer<KCMultiDialog> dialog(Open());
    MoveSecondUp(dialog.data());
    dialog.reset();
    const QStringList orders = TextPattern::FindAll(QString::fromUtf8(m_directory.Read(historyFile)),
                                                    QLatin1String("order=\"([^\"]*)\""));
    QCOMPARE(orders.mid(orders.size() - 2), QStringList({"0 1 2", "1 0 2"}));
}

void TestKcm::applyResetAndDefaultsKeepTheList()
{
    const QScopedPointer<KCMultiDialog> dialog(Open());
    MoveSecondUp(dialog.data());
    const QByteArray list = m_directory.Read(listFile);
    KCModule *module = ModuleIn(dialog.data());
    module->save();
    module->load();
    module->defaults();
    QCOMPARE(m_directory.Read(listFile), list);
}

void TestKcm::changedListLeavesNothingToApply()
{
    const QScopedPointer<KCMultiDialog> dialog(Open());
    MoveSecondUp(dialog.data());
    QCoreApplication::processEvents();
    const QDialogButtonBox *box = dialog->findChild<QDialogButtonBox *>();
    QList<QAbstractButton *> offered;
    for (QAbstractButton *button : box->buttons()) {
        if (button->isVisible()) {
            offered << button;
        }
    }
    QCOMPARE(offered, QList<QAbstractButton *>({box->button(QDialogButtonBox::Close)}));
}

void TestKcm::resetShowsTheListAsItIs()
{
    const QScopedPointer<KCMultiDialog> dialog(Open());
    m_directory.Write(listFile, "<z><item name='Alone' type='1'/></z>");
    ModuleIn(dialog.data())->load();
    QCOMPARE(TableOf(dialog.data())->rowCount(), 1);
}

void TestKcm::rulesLeaveTheListUncovered()
{
    const QScopedPointer<KCMultiDialog> dialog(Open());
    const QWidget *list = dialog->findChild<QWidget *>(QLatin1String("moduleList"));
    const QWidget *rules = dialog->findChild<QWidget *>(QLatin1String("rulesPage"));
    QVERIFY(list);
    QVERIFY(rules);
    QVERIFY(rules->mapToGlobal(QPoint(0, 0)).y() >= list->mapToGlobal(QPoint(0, list->height())).y());
}

void TestKcm::secondModuleTellsThatTheListIsOpen()
{
    const QScopedPointer<KCMultiDialog> first(Open());
    const QScopedPointer<KCMultiDialog> second(Open());
    QVERIFY(TableOf(first.data()));
    QVERIFY(!TableOf(second.data()));
    QVERIFY(MessageOf(second.data()).contains("another window"));
    first->close();
    QTRY_VERIFY(TableOf(second.data()));
    QCOMPARE(MessageOf(second.data()), QString());
}

void TestKcm::damagedListIsNotOffered()
{
    m_directory.Write(listFile, damagedList);
    QScopedPointer<KCMultiDialog> dialog(Open());
    QVERIFY(!TableOf(dialog.data()));
    QVERIFY(MessageOf(dialog.data()).contains("damaged"));
    ModuleIn(dialog.data())->save();
    dialog.reset();
    QCOMPARE(m_directory.Read(listFile), QByteArray(damagedList));
}

void TestKcm::listIsOfferedOnceItIsWhole()
{
    m_directory.Write(listFile, damagedList);
    const QScopedPointer<KCMultiDialog> dialog(Open());
    QVERIFY(!TableOf(dialog.data()));
    init();
    QTRY_VERIFY(TableOf(dialog.data()));
    m_directory.Write(listFile, damagedList);
    QTRY_VERIFY(!TableOf(dialog.data()));
}

void TestKcm::settingsShellShowsIt()
{
    const QString shell = QStandardPaths::findExecutable(SETTINGS_SHELL);
    if (shell.isEmpty()) {
        QSKIP(SETTINGS_SHELL " is not installed");
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_PLUGIN_PATH", BUILD_DIRECTORY "/kde");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(shell, {"kcm_prioritylist"});
    QByteArray output;
    QTRY_VERIFY_WITH_TIMEOUT((output += process.readAll()).contains("ShowSettingDialog: Exit"), 60000);
    process.terminate();
    QVERIFY(process.waitForFinished());
}

void TestKcm::endsWithAnOpenModule()
{
    // The program's end deletes it, after the plug-ins are gone.
    QVERIFY(TableOf(Open()));
}

QTEST_MAIN(TestKcm)

#include "tst_kcm.moc"
