#include <DashboardLanguage.h>
#include <HostControl.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <Row.h>

#include <QtTest>

namespace
{

class EmptyList : public ListSource
{
public:
    ListReading Read() override { return ListReading(); }
    void FileReplaced() override {}
};

} // namespace

class ListKeeperTextTest : public QObject
{
    Q_OBJECT

private slots:
    void ReasonSaysWhatIsInTheWay_data();
    void ReasonSaysWhatIsInTheWay();
};

void ListKeeperTextTest::ReasonSaysWhatIsInTheWay_data()
{
    QTest::addColumn<int>("obstacle");
    QTest::addColumn<QString>("told");
    const auto add = [](ListKeeper::Obstacle obstacle, const char *told) {
        Row(told, int(obstacle), told);
    };
    add(ListKeeper::ListNotOffered, "The plug-in that keeps the list is not available");
    add(ListKeeper::ListNotOpened, "be opened");
    add(ListKeeper::ListDamaged, "Only the networks before the damaged part");
    add(ListKeeper::ListBusy, "Another program is working with the list");
    add(ListKeeper::ListNotWritten, "cannot be written to /data/Priority.xml");
    add(ListKeeper::ListNotKept, "/data/Priority.xml cannot be backed up");
    add(ListKeeper::NothingToUndo, "There is no earlier list to go back to.");
    add(ListKeeper::NothingToRedo, "Nothing was undone");
    add(ListKeeper::NoRedoOfDamage, "damaged");
    add(ListKeeper::StateGone, "That list is no longer kept.");
    add(ListKeeper::HistoryDamaged, "/data/history/states.xml, is damaged and was not changed. Line 0: ");
    add(ListKeeper::HistoryNotReadable, "/data/history/states.xml");
    add(ListKeeper::HistoryNotWritable, "only until you quit the program");
    add(ListKeeper::HistoryNotSetAside, "/data/history/states.xml");
}

void ListKeeperTextTest::ReasonSaysWhatIsInTheWay()
{
    QFETCH(int, obstacle);
    QFETCH(QString, told);
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
    EmptyList source;
    const ListKeeper keeper("/data/", &source, nullptr);
    const QString reason = ListKeeperText::Reason(keeper, ListKeeper::Obstacle(obstacle));
    QVERIFY2(reason.contains(told), qPrintable(reason));
    QVERIFY(ListKeeperText::Reason(keeper, ListKeeper::NoObstacle).isNull());
}

QTEST_MAIN(ListKeeperTextTest)
#include "tst_listkeepertext.moc"
