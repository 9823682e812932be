#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QtTest>

/** OnDestroy before anything else. */
class tst_DestroyOrder : public QObject
{
    Q_OBJECT

private slots:
    void destroyBeforeInitLeavesThePluginUsable();
};

void tst_DestroyOrder::destroyBeforeInitLeavesThePluginUsable()
{
    TemporaryDirectory directory;
    StandInHost::Reset(directory.Path());
    LoadedPlugin plugin;
    plugin.Plugin()->OnDestroy();
    plugin.Plugin()->OnDestroy();
    QCOMPARE(plugin.Notification()->Notify(320, 0, 0), 0);

    QVERIFY(plugin.Plugin()->Init());
    QWidget window;
    QRect rect;
    QVERIFY(plugin.Setting()->ShowSettingDialog(&window, rect));
    plugin.Priority()->AddTopPriority(Entry("A"));
    QList<PriorityList> list;
    QCOMPARE(plugin.Priority()->GetPriorityList(&list), 0);
    QCOMPARE(AsTexts(list), QStringList() << "A/1");
    plugin.Plugin()->OnDestroy();
}

QTEST_MAIN(tst_DestroyOrder)
#include "tst_destroyorder.moc"
