#include "Lists.h"

#include <ImportPlan.h>
#include <Row.h>

#include <QtTest>

namespace
{

/** "A stays, B added!": an exclamation mark for what is unknown. */
QString AsText(const ImportPlan &plan)
{
    const char *const effects[] = {"stays", "added", "up", "down", "moved", "removed"};
    QStringList parts;
    for (int i = 0; i < plan.rows.size(); ++i) {
        const ImportPlan::Row &row = plan.rows.at(i);
        parts.append(row.entry.name + ' ' + effects[row.effect] + (row.isUnknown ? "!" : ""));
    }
    return parts.join(", ");
}

} // namespace

class ImportPlanTest : public QObject
{
    Q_OBJECT

private slots:
    void EffectOnEveryEntryIsTold_data();
    void EffectOnEveryEntryIsTold();
    void NetworksThatAreNotRememberedAreUnknown_data();
    void NetworksThatAreNotRememberedAreUnknown();
    void NothingIsUnknownWithoutAWLANPlugin();
};

void ImportPlanTest::EffectOnEveryEntryIsTold_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("plan");
    QTest::addColumn<bool>("isChange");
    Row("nothing to do", "A, B", "A, B", "A stays, B stays", false);
    Row("nothing there, nothing taken in", "", "", "", false);
    Row("added and removed", "A, B", "A, C", "A stays, C added, B removed", true);
    Row("moved up", "A, B, C", "C, A, B", "C up, A stays, B stays", true);
    Row("moved down", "A, B, C", "B, C, A", "B stays, C stays, A down", true);
    Row("passed", "A, B, C", "C, B, A", "C up, B moved, A stays", true);
    Row("removed in their order", "A, B, C", "B", "B stays, A removed, C removed", true);
}

void ImportPlanTest::EffectOnEveryEntryIsTold()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, plan);
    QFETCH(bool, isChange);
    const ImportPlan made = ImportPlan::Make(Listed(before), Listed(after), nullptr);
    QCOMPARE(AsText(made), plan);
    QCOMPARE(made.IsChange(), isChange);
}

void ImportPlanTest::NetworksThatAreNotRememberedAreUnknown_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("isUnknown");
    Row("remembered Wi-Fi", "Home", false);
    Row("other Wi-Fi", "Cafe", true);
    Row("case counts", "home", true);
    Row("mobile, whatever its type", "Mobile/0", false);
    Row("Wi-Fi of a mobile entry's name", "Mobile", true);
}

void ImportPlanTest::NetworksThatAreNotRememberedAreUnknown()
{
    QFETCH(QString, entry);
    QFETCH(bool, isUnknown);
    const QList<PriorityList> known = Listed("Home, Mobile/2");
    const ImportPlan plan = ImportPlan::Make(Listed("Gone"), Listed(entry), &known);
    QCOMPARE(plan.rows.first().isUnknown, isUnknown);
    // What is removed need not be known.
    QVERIFY(!plan.rows.last().isUnknown);
}

void ImportPlanTest::NothingIsUnknownWithoutAWLANPlugin()
{
    QVERIFY(!ImportPlan::Make(Listed(""), Listed("Cafe"), nullptr).rows.first().isUnknown);
}

QTEST_GUILESS_MAIN(ImportPlanTest)
#include "tst_importplan.moc"
