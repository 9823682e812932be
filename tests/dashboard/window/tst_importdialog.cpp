#include "Lists.h"
#include "PluginWorld.h"

#include <DashboardLanguage.h>
#include <ImportDialog.h>
#include <ListKeeper.h>
#include <PluginList.h>
#include <Row.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/** The dialog over the real plug-ins. */
class ImportDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void PlanIsShownAndNothingDoneYet();
    void UnknownNetworksAreTold();
    void ManyUnknownNetworksAreToldShortly();
    void ImportDoesWhatWasShownAndCanBeUndone_data();
    void ImportDoesWhatWasShownAndCanBeUndone();
    void OtherWaysOutChangeNothing_data();
    void OtherWaysOutChangeNothing();
    void SameListCannotBeImported();
    void EmptyListCanBeImported();
    void PlanFollowsTheList();
    void FailureIsToldAndTheDialogStaysOpen();
    void TextsFollowTheLanguage();

private:
    void Open(const QString &entries);
    QTableWidget *Table() const { return m_dialog->findChild<QTableWidget *>("importList"); }
    QPushButton *Button(const char *name) const { return m_dialog->findChild<QPushButton *>(name); }
    QLabel *Label(const char *name) const { return m_dialog->findChild<QLabel *>(QLatin1String(name)); }
    /** "1 Home: Stays where it is" */
    QStringList Rows() const;

    PluginWorld m_world;
    PluginList m_source;
    QScopedPointer<ListKeeper> m_keeper;
    QScopedPointer<ImportDialog> m_dialog;
};

void ImportDialogTest::initTestCase()
{
    QVERIFY(m_world.Load());
}

void ImportDialogTest::cleanupTestCase()
{
    m_world.Shutdown();
}

void ImportDialogTest::init()
{
    QVERIFY(m_world.Begin());
    m_keeper.reset(new ListKeeper(m_world.UserData(), &m_source, nullptr));
    // The Wi-Fi plug-in remembers these, and "Company".
    QCOMPARE(m_keeper->Replace(Listed("Home, Office, Old printer")), ListKeeper::NoObstacle);
}

void ImportDialogTest::cleanup()
{
    m_dialog.reset();
    m_keeper.reset();
}

void ImportDialogTest::Open(const QString &entries)
{
    m_dialog.reset(new ImportDialog(m_keeper.data(), Listed(entries), ImportDialog::fromFile, nullptr));
    m_dialog->show();
    ActivateWindow(m_dialog.data());
}

QStringList ImportDialogTest::Rows() const
{
    QStringList rows;
    for (int row = 0; row < Table()->rowCount(); ++row) {
        rows.append(QString("%1 %2: %3")
                        .arg(Table()->item(row, 0)->text(), Table()->item(row, 1)->text(),
                             Table()->item(row, 2)->text()));
    }
    return rows;
}

void ImportDialogTest::PlanIsShownAndNothingDoneYet()
{
    Open("Old printer, Home, Company");
    QCOMPARE(Rows(), QStringList() << "1 Old printer: Will move up"
                                   << "2 Home: Stays where it is"
                                   << "3 Company: Will be added"
                                   << " Office: Will be removed from the list");
    QCOMPARE(Plain(Label("importSummaryLabel")->text()),
             QString("Result of the import: Company will be added. Office will be removed. "
                     "Old printer will move up."));
    QVERIFY(!Label("importUnknownLabel")->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString("Home, Office, Old printer"));
}

void ImportDialogTest::UnknownNetworksAreTold()
{
    Open("Home, Office, Old printer, Hotel, Beach");
    QVERIFY(Rows().contains("4 Hotel: Will be added; not saved here"));
    QVERIFY(Rows().contains("1 Home: Stays where it is"));
    QVERIFY(Label("importUnknownLabel")->isVisible());
    QVERIFY2(
        Plain(Label("importUnknownLabel")->text()).startsWith("Not saved on this computer: Hotel, Beach. "),
        qPrintable(Label("importUnknownLabel")->text()));
}

void ImportDialogTest::ManyUnknownNetworksAreToldShortly()
{
    Open("N1, N2, N3, N4, N5, N6, N7");
    QVERIFY2(Plain(Label("importUnknownLabel")->text())
                 .startsWith(QString::fromUtf8("Not saved on this computer: N1, N2, N3, N4, N5, …. ")),
             qPrintable(Label("importUnknownLabel")->text()));
}

void ImportDialogTest::ImportDoesWhatWasShownAndCanBeUndone_data()
{
    QTest::addColumn<bool>("byKey");
    Row("Import", false);
    Row("Return", true);
}

void ImportDialogTest::ImportDoesWhatWasShownAndCanBeUndone()
{
    QFETCH(bool, byKey);
    Open("Company, Hotel, Home");
    if (byKey) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    } else {
        QTest::mouseClick(Button("importOkButton"), Qt::LeftButton);
    }
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString("Company, Hotel, Home"));
    QCOMPARE(m_keeper->Undo(), ListKeeper::NoObstacle);
    QCOMPARE(PluginWorld::Stored(), QString("Home, Office, Old printer"));
}

void ImportDialogTest::OtherWaysOutChangeNothing_data()
{
    QTest::addColumn<bool>("byKey");
    Row("Cancel", false);
    Row("Escape", true);
}

void ImportDialogTest::OtherWaysOutChangeNothing()
{
    QFETCH(bool, byKey);
    Open("Company");
    if (byKey) {
        QTest::keyClick(m_dialog.data(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(Button("importCancelButton"), Qt::LeftButton);
    }
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PluginWorld::Stored(), QString("Home, Office, Old printer"));
}

void ImportDialogTest::SameListCannotBeImported()
{
    Open("Home, Office, Old printer");
    QVERIFY(!Button("importOkButton")->isEnabled());
    QCOMPARE(Label("importSummaryLabel")->text(),
             QString("Your list is in this order already. There is nothing to import."));
}

void ImportDialogTest::EmptyListCanBeImported()
{
    Open("");
    QCOMPARE(Label("importSummaryLabel")->text(),
             QString("Result of the import: All networks will be removed."));
    QTest::mouseClick(Button("importOkButton"), Qt::LeftButton);
    QCOMPARE(PluginWorld::Stored(), QString());
}

void ImportDialogTest::PlanFollowsTheList()
{
    Open("Home, Office, Old printer");
    PluginWorld::AddTop("Company");
    m_keeper->Follow();
    QVERIFY(Rows().contains(" Company: Will be removed from the list"));
    QVERIFY(Button("importOkButton")->isEnabled());
}

void ImportDialogTest::FailureIsToldAndTheDialogStaysOpen()
{
    Open("Company");
    // A directory where the new file is made: nothing can be written there.
    QVERIFY(QDir().mkdir(m_world.UserData() + "Priority.xml.new"));
    QTest::mouseClick(Button("importOkButton"), Qt::LeftButton);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(Label("importProblemLabel")->isVisible());
    QVERIFY(Label("importProblemLabel")->text().contains("cannot be written"));
    QCOMPARE(PluginWorld::Stored(), QString("Home, Office, Old printer"));
    QVERIFY(QDir().rmdir(m_world.UserData() + "Priority.xml.new"));
    QTest::mouseClick(Button("importOkButton"), Qt::LeftButton);
    QVERIFY(!m_dialog->isVisible());
}

void ImportDialogTest::TextsFollowTheLanguage()
{
    Open("Company");
    QVERIFY(DashboardLanguage::Apply("ar"));
    m_dialog->Retranslate();
    QCOMPARE(m_dialog->windowTitle(), QString::fromUtf8("استيراد قائمة"));
    QVERIFY(Rows().first().endsWith(QString::fromUtf8("ستُضاف")));
}

QTEST_MAIN(ImportDialogTest)
#include "tst_importdialog.moc"
