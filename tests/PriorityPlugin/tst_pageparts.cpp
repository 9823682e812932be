#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <PriorityXMLParser.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>
#include <qprioritywidget.h>

#include <QPushButton>
#include <QScopedPointer>
#include <QTableWidget>
#include <QtTest>

/** The page's operations that have no way in from outside, called directly. */
class tst_PageParts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void getPriorityAppends();
    void getPriorityIntoNothing();
    void addPriorityNodeSelectsTheFirstAdded();
    void addPriorityNodeOfNothing();
    void readOnlyWords_data();
    void readOnlyWords();
    void readOnlyWithoutWlan_data();
    void readOnlyWithoutWlan();
    void indexChecks();
    void missingDeleteButtonIsTraced();
    void releasedPageSurvivesEverything();
    void stepsWithoutWhatTheyNeedDoNothing();
    void stepsWithoutLayoutsMakeWhatNeedsNone();
    void initOfABuiltPageChangesNothing();
    void showingWithoutAParentIsRefused();
    void tracedOperations();

private:
    QPriorityWidget *NewPage(const QByteArray &items);

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<QPriorityWidget> m_page;
};

static const char pageSource[] = "../../src/PriorityPlugin/qprioritywidget.cpp";

void tst_PageParts::init()
{
    m_directory.reset(new TemporaryDirectory);
    StandInHost::Reset(m_directory->Path());
}

void tst_PageParts::cleanup()
{
    m_page.reset();
    StandInHost::container = nullptr;
    m_directory.reset();
}

QPriorityWidget *tst_PageParts::NewPage(const QByteArray &names)
{
    QList<PriorityList> list;
    for (int i = 0; i < names.size(); ++i) {
        list << Entry(QString(QChar::fromLatin1(names.at(i))));
    }
    PriorityXMLParser::GetInstance()->SavePriorityList(list);
    m_page.reset(new QPriorityWidget);
    return m_page.data();
}

void tst_PageParts::getPriorityAppends()
{
    QPriorityWidget *page = NewPage("AB");
    QList<PriorityList> list;
    list << Entry("first");
    page->GetPriority(&list);
    QCOMPARE(AsTexts(list), QStringList() << "first/1"
                                          << "A/1"
                                          << "B/1");
}

void tst_PageParts::getPriorityIntoNothing()
{
    TraceCapture trace;
    NewPage("AB")->GetPriority(nullptr);
    QVERIFY(trace.Normalised().last() == QString("TIME: %1: GetPriority: Exit").arg(pageSource));
}

void tst_PageParts::addPriorityNodeSelectsTheFirstAdded()
{
    QPriorityWidget *page = NewPage("ABC");
    QList<PriorityList> entries;
    entries << Entry("X") << Entry("A");
    page->AddPriorityNode(entries);
    QList<PriorityList> list;
    page->GetPriority(&list);
    QCOMPARE(AsTexts(list), QStringList() << "B/1"
                                          << "C/1"
                                          << "X/1"
                                          << "A/1");
    QTableWidget *table = page->findChild<QTableWidget *>();
    QCOMPARE(table->rowCount(), 4);
    QCOMPARE(table->currentRow(), 2);
    QVERIFY(page->findChild<QPushButton *>("upButton")->isEnabled());
    QVERIFY(page->findChild<QPushButton *>("downButton")->isEnabled());
    QVERIFY(page->findChild<QPushButton *>("deleteButton")->isEnabled());
}

void tst_PageParts::addPriorityNodeOfNothing()
{
    QPriorityWidget *page = NewPage("AB");
    const QByteArray marked = m_directory->Read("Priority.xml") + "<!-- untouched -->";
    m_directory->Write("Priority.xml", marked);
    QList<PriorityList> none;
    page->AddPriorityNode(none);
    QCOMPARE(m_directory->Read("Priority.xml"), marked);
    QCOMPARE(page->findChild<QTableWidget *>()->rowCount(), 2);
}

void tst_PageParts::readOnlyWords_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("readOnly");
    Row("true", "true", true);
    Row("TRUE", "TRUE", false);
    Row("True", "True", false);
    Row("1", "1", false);
    Row("blank", "true ", false);
    Row("false", "false", false);
    Row("empty", "", false);
}

void tst_PageParts::readOnlyWords()
{
    QFETCH(QString, word);
    QFETCH(bool, readOnly);
    FakeWLAN wlan;
    wlan.AddReadOnly("A", word);
    FakeContainer container;
    container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &wlan);
    StandInHost::container = &container;
    QPriorityWidget *page = NewPage("A");
    TraceCapture trace;
    QCOMPARE(page->IsReadOnly("A"), readOnly);
    QVERIFY(!page->IsReadOnly("a"));
    QCOMPARE(wlan.calls, QStringList() << "GetProfileByName A"
                                       << "GetProfileByName a");
    QCOMPARE(container.lookUps.size(), 2);
    QCOMPARE(trace.Lines(), QStringList());
}

void tst_PageParts::readOnlyWithoutWlan_data()
{
    QTest::addColumn<bool>("hasContainer");
    QTest::addColumn<bool>("hasObject");
    Row("no container", false, false);
    Row("no object under the class id", true, false);
    Row("object of another interface", true, true);
}

void tst_PageParts::readOnlyWithoutWlan()
{
    QFETCH(bool, hasContainer);
    QFETCH(bool, hasObject);
    QObject noWlan;
    FakeContainer container;
    if (hasObject) {
        container.objects.insert(qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102), &noWlan);
    }
    StandInHost::container = hasContainer ? &container : nullptr;
    QVERIFY(!NewPage("A")->IsReadOnly("A"));
}

void tst_PageParts::indexChecks()
{
    QPriorityWidget *page = NewPage("ABC");
    const bool select[] = {false, false, true, true, true, false};
    const bool up[] = {false, false, false, true, true, false};
    const bool down[] = {false, false, true, true, false, false};
    for (int index = -2; index <= 3; ++index) {
        QCOMPARE(page->AssertSelectIndex(index), select[index + 2]);
        QCOMPARE(page->AssertUpSelectIndex(index), up[index + 2]);
        QCOMPARE(page->AssertDwonSelectIndex(index), down[index + 2]);
    }
    page->release();
    QVERIFY(!page->AssertSelectIndex(1));
    QVERIFY(!page->AssertUpSelectIndex(1));
    QVERIFY(!page->AssertDwonSelectIndex(1));
}

void tst_PageParts::missingDeleteButtonIsTraced()
{
    QPriorityWidget *page = NewPage("A");
    page->release();
    TraceCapture trace;
    page->DisEnableRemoveCapticy();
    QCOMPARE(trace.Normalised(),
             QStringList() << QString("Arg is NULL: TIME: %1: DisEnableRemoveCapticy 862").arg(pageSource));
}

void tst_PageParts::releasedPageSurvivesEverything()
{
    QPriorityWidget *page = NewPage("AB");
    page->OnCellClicked(1, 0);
    page->release();
    page->release();
    QVERIFY(page->children().isEmpty());
    page->UpPriority();
    page->DownPriority();
    page->RemovePriority();
    page->UpdataPriorityList();
    page->SetLanguage();
    page->SetAllButtonState();
    page->InitTabWidget();
    QList<PriorityList> list;
    page->GetPriority(&list);
    QCOMPARE(list.size(), 2);
}

void tst_PageParts::stepsWithoutWhatTheyNeedDoNothing()
{
    QPriorityWidget *page = NewPage("A");
    page->release();
    page->CreateAllButton();
    page->CreateList();
    page->InitTabWidget();
    QVERIFY(page->children().isEmpty());
    page->CreateLayout();
    page->CreateAllButton();
    page->CreateList();
    QVERIFY(page->findChildren<QWidget *>().isEmpty());
    page->CreateAllWidget();
    page->CreateAllButton();
    page->CreateList();
    QVERIFY(page->findChild<QPushButton *>("newButton"));
    QVERIFY(page->findChild<QTableWidget *>("priorityTable"));
}

void tst_PageParts::stepsWithoutLayoutsMakeWhatNeedsNone()
{
    QPriorityWidget *page = NewPage("A");
    page->release();
    page->CreateAllWidget();
    page->CreateAllButton();
    page->CreateList();
    QStringList names;
    const QList<QWidget *> widgets = page->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        QVERIFY(!widget->layout());
        names << widget->objectName();
    }
    QCOMPARE(names, QStringList() << "mainContainer"
                                  << "leftPanel"
                                  << "listFrame");
    QCOMPARE(page->findChild<QWidget *>("mainContainer")->minimumSize(), QSize(420, 374));
    QCOMPARE(page->findChild<QWidget *>("leftPanel")->minimumWidth(), 315);
}

void tst_PageParts::initOfABuiltPageChangesNothing()
{
    QPriorityWidget *page = NewPage("");
    const QObjectList before = page->findChildren<QObject *>();
    QList<PriorityList> stored;
    stored << Entry("A");
    PriorityXMLParser::GetInstance()->SavePriorityList(stored);
    TraceCapture trace;
    page->Init();
    QCOMPARE(trace.Lines(), QStringList());
    QCOMPARE(page->findChildren<QObject *>(), before);
    QCOMPARE(page->findChild<QTableWidget *>()->rowCount(), 0);
}

void tst_PageParts::showingWithoutAParentIsRefused()
{
    QPriorityWidget *page = NewPage("A");
    QList<PriorityList> stored;
    PriorityXMLParser::GetInstance()->SavePriorityList(stored);
    QRect rect(1, 2, 3, 4);
    TraceCapture trace;
    QVERIFY(!page->ShowSettingDialog(nullptr, rect));
    const QString source = QString("TIME: %1: ShowSettingDialog: ").arg(pageSource);
    QCOMPARE(trace.Normalised(), QStringList() << source + "Entered " << source + "Exit");
    QCOMPARE(page->findChild<QTableWidget *>()->rowCount(), 1);
    QVERIFY(!page->isVisible());
}

void tst_PageParts::tracedOperations()
{
    QPriorityWidget *page = NewPage("A");
    TraceCapture trace;
    page->UpdataTabItem();
    const QString source = QString("TIME: %1: ").arg(pageSource);
    const QString item = "TIME: ../../src/PriorityPlugin/PriorityListItem.cpp: ";
    QCOMPARE(trace.Normalised(),
             QStringList() << source + "UpdataTabItem: Entered " << source + "ClaerTabWidget: Entered "
                           << item + "~PriorityListItem: Entered " << item + "~PriorityListItem: Exit"
                           << source + "ClaerTabWidget: Exit" << item + "PriorityListItem: Entered "
                           << item + "PriorityListItem: Exit"
                           << item + "UpdateLabelContents: Entered ,strIcon:" + StandInHost::libraryPath +
                                  "/plugins/PriorityPlugin/wifi.png,strName:A"
                           << item + "UpdateLabelContents: Exit" << source + "UpdataTabItem: Exit");

    trace.Clear();
    page->SetAllButtonState();
    QCOMPARE(trace.Normalised(),
             QStringList() << source + "SetAllButtonState: Entered " << source + "SetAllButtonState: Exit");
    trace.Clear();
    page->AddPriority();
    QCOMPARE(trace.Normalised().first(), source + "AddPriority: Entered ");
    QCOMPARE(trace.Normalised().last(), source + "AddPriority: Exit");
    trace.Clear();
    page->InitTabWidget();
    QCOMPARE(trace.Normalised(), QStringList()
                                     << source + "InitTabWidget: Entered " << source + "InitTabWidget: Exit");
    trace.Clear();
    page->UpPriority();
    QCOMPARE(trace.Normalised().first(), source + "UpPriority: Entered ");
    trace.Clear();
    page->DownPriority();
    QCOMPARE(trace.Normalised().first(), source + "DownPriority: Entered ");
    trace.Clear();
    page->UpdataPriorityList();
    QCOMPARE(trace.Normalised().first(), source + "UpdataPriorityList: Entered ");
    trace.Clear();
    QList<PriorityList> none;
    page->AddPriorityNode(none);
    QCOMPARE(trace.Normalised(),
             QStringList() << source + "AddPriorityNode: Entered " << source + "AddPriorityNode: Exit");
    trace.Clear();
    page->RemovePriority();
    page->SavePriorityList();
    QVERIFY(trace.Normalised().filter("RemovePriority").isEmpty());
    QVERIFY(trace.Normalised().filter("qprioritywidget.cpp: SavePriorityList").isEmpty());
}

QTEST_MAIN(tst_PageParts)
#include "tst_pageparts.moc"
