#include <LoadedPlugin.h>
#include <PriorityXMLParser.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <qprioritywidget.h>

#include <QtTest>

#include <algorithm>
#include <ctime>

static void Discard(QtMsgType, const QMessageLogContext &, const QString &) {}

class tst_RebuildGrowth : public QObject
{
    Q_OBJECT

private slots:
    void rebuildIsLinear();
};

/** The best of three rebuilds of a visible page, in the processor's time: other processes don't count. */
static std::clock_t RebuildTime(QPriorityWidget *page, int count)
{
    QList<PriorityList> list;
    for (int i = 0; i < count; ++i) {
        list << Entry(QString("network %1").arg(i));
    }
    PriorityXMLParser::GetInstance()->SavePriorityList(list);
    page->UpdataPriorityList();
    QCoreApplication::processEvents();
    std::clock_t best = 0;
    for (int round = 0; round < 3; ++round) {
        const std::clock_t begin = std::clock();
        page->UpdataTabItem();
        QCoreApplication::processEvents();
        const std::clock_t elapsed = std::clock() - begin;
        best = round == 0 ? elapsed : std::min(best, elapsed);
    }
    return best;
}

void tst_RebuildGrowth::rebuildIsLinear()
{
    TemporaryDirectory directory;
    StandInHost::Reset(directory.Path());
    QWidget window;
    window.resize(500, 400);
    window.show();
    QRect rect(0, 0, 420, 374);
    QPriorityWidget *page = QPriorityWidget::GetInstance();
    qInstallMessageHandler(Discard);
    page->ShowSettingDialog(&window, rect);
    const std::clock_t small = RebuildTime(page, 250);
    const std::clock_t large = RebuildTime(page, 2000);
    page->setParent(nullptr);
    QPriorityWidget::Destroy();
    qInstallMessageHandler(nullptr);
    const double growth = double(large) / double(small);
    qDebug("eight times the rows take %.1f times the time", growth);
    // Linear is 8, quadratic 64.
    QVERIFY2(growth < 20, qPrintable(QString::number(growth)));
}

QTEST_MAIN(tst_RebuildGrowth)
#include "tst_rebuildgrowth.moc"
