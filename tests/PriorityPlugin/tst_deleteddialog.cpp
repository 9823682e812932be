#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QDialog>
#include <QPointer>
#include <QScopedPointer>
#include <QTableWidget>
#include <QtTest>

/** A host that deletes its dialog with the page still inside. */
class tst_DeletedDialog : public QObject, public MessageVisitor
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void serviceSurvives();
    void freshPageIsShownNextTime();
    void pageDeletedDuringTheQuestion();

private:
    void MessageIsOpen() override { m_dialog.reset(); }
    QTableWidget *ShowPage();

    TemporaryDirectory m_directory;
    LoadedPlugin m_plugin;
    QScopedPointer<QDialog> m_dialog;
};

void tst_DeletedDialog::initTestCase()
{
    StandInHost::Reset(m_directory.Path());
    m_plugin.Plugin()->Init();
}

void tst_DeletedDialog::init()
{
    StandInHost::Reset(m_directory.Path());
    m_directory.Write("Priority.xml", "<r><item name='A' type='1'/><item name='B' type='1'/></r>");
}

void tst_DeletedDialog::cleanupTestCase()
{
    m_plugin.Plugin()->OnDestroy();
}

QTableWidget *tst_DeletedDialog::ShowPage()
{
    m_dialog.reset(new QDialog);
    QRect rect;
    m_plugin.Setting()->ShowSettingDialog(m_dialog.data(), rect);
    return m_dialog->findChild<QTableWidget *>("priorityTable");
}

void tst_DeletedDialog::serviceSurvives()
{
    const QPointer<QTableWidget> table = ShowPage();
    m_dialog.reset();
    QVERIFY(!table);
    const QByteArray before = m_directory.Read("Priority.xml");
    QVERIFY(m_plugin.Setting()->OnClickSettingOkButton());
    QVERIFY(m_plugin.Setting()->OnClickSettingCancelButton());
    QVERIFY(m_plugin.Setting()->HideSetting());
    QCOMPARE(m_plugin.Notification()->Notify(320, 0, 0), 0);
    QCOMPARE(m_directory.Read("Priority.xml"), before);
    m_plugin.Priority()->AddTopPriority(Entry("X"));
    QList<PriorityList> list;
    QCOMPARE(m_plugin.Priority()->GetPriorityList(&list), 0);
    QCOMPARE(AsTexts(list), QStringList() << "X/1"
                                          << "A/1"
                                          << "B/1");
}

void tst_DeletedDialog::freshPageIsShownNextTime()
{
    ShowPage();
    m_dialog.reset();
    const QTableWidget *table = ShowPage();
    QVERIFY(table);
    QCOMPARE(table->rowCount(), 2);
    m_plugin.Setting()->HideSetting();
}

void tst_DeletedDialog::pageDeletedDuringTheQuestion()
{
    const QPointer<QTableWidget> table = ShowPage();
    QWidget *page = m_dialog->findChild<QWidget *>("priorityPage");
    QMetaObject::invokeMethod(page, "OnCellClicked", Q_ARG(int, 0), Q_ARG(int, 0));
    StandInHost::messageVisitor = this;
    QMetaObject::invokeMethod(page, "RemovePriority");
    QCOMPARE(StandInHost::messages.size(), 1);
    QVERIFY(!table);
    QVERIFY(m_directory.Read("Priority.xml").contains("'A'"));
}

QTEST_MAIN(tst_DeletedDialog)
#include "tst_deleteddialog.moc"
