/*
 * The binary contract, called by position: this file knows no declaration of an interface, only what another
 * compiler's output would know, the order of the tables and the layout of the record.
 */

#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QLibrary>
#include <QObject>
#include <QRect>
#include <QtTest>

namespace
{

struct Record {
    QString first;
    QString second;
};

/** An interface part: what lies at its address is the address of its table. */
void *Slot(void *part, int index)
{
    return (*static_cast<void ***>(part))[index];
}

template <typename Result> Result Call(void *part, int index)
{
    return reinterpret_cast<Result (*)(void *)>(Slot(part, index))(part);
}

template <typename Result, typename First> Result Call(void *part, int index, First first)
{
    return reinterpret_cast<Result (*)(void *, First)>(Slot(part, index))(part, first);
}

template <typename Result, typename First, typename Second>
Result Call(void *part, int index, First first, Second second)
{
    return reinterpret_cast<Result (*)(void *, First, Second)>(Slot(part, index))(part, first, second);
}

} // namespace

class tst_Tables : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void rootObject();
    void notification();
    void settingPage();
    void priorityList();

private:
    TemporaryDirectory m_directory;
    QLibrary m_library;
    QObject *m_root;
    void *m_plugin;
};

void tst_Tables::initTestCase()
{
    StandInHost::Reset(m_directory.Path());
    m_library.setFileName(BUILD_DIRECTORY "/plugins/PriorityPlugin/libPriorityPlugin.so");
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    m_root = reinterpret_cast<QObject *(*)()>(m_library.resolve("qt_plugin_instance"))();
    m_plugin = m_root->qt_metacast("com.torvik.netquillforge.plugin.IBasePlugin");
    QVERIFY(m_plugin);
}

void tst_Tables::cleanupTestCase()
{
    // The destroy part follows the primary part; its table is: two destructor entries, OnDestroy,
    // UnSDKRegisterEvent.
    void *destroyPart = static_cast<void **>(m_plugin) + 1;
    Call<void>(destroyPart, 3);
    Call<void>(destroyPart, 2);
    QObject *service = nullptr;
    QVERIFY((Call<bool, int, QObject **>(m_plugin, 10, 4098, &service)));
    void *setting = service->qt_metacast("com.torvik.netquillforge.plugin.ISettingUIPlugin");
    QWidget window;
    QRect rect;
    QVERIFY(!(Call<bool, QWidget *, QRect &>(setting, 4, &window, rect)));
}

void tst_Tables::rootObject()
{
    QRect rect(1, 2, 3, 4);
    Call<void>(m_plugin, 2);
    QCOMPARE(Call<int>(m_plugin, 3), 0);
    QVERIFY(Call<bool>(m_plugin, 4));
    QCOMPARE(Call<int>(m_plugin, 5), 0);
    QCOMPARE(Call<QString>(m_plugin, 6), QString(""));
    QCOMPARE(Call<int>(m_plugin, 7), 0);
    QCOMPARE(Call<QString>(m_plugin, 8), QString("PriorityPlugin"));
    QVERIFY(!Call<bool>(m_plugin, 9));
    QObject *untouched = this;
    QVERIFY(!(Call<bool, int, QObject **>(m_plugin, 10, 4102, &untouched)));
    QCOMPARE(untouched, static_cast<QObject *>(this));
    QVERIFY((Call<bool, QWidget *, QRect &>(m_plugin, 11, nullptr, rect)));
    QCOMPARE(Call<int>(m_plugin, 12), 0);
    Call<void>(m_plugin, 13);
    Call<void, QRect &>(m_plugin, 14, rect);
    QVERIFY(!Call<bool>(m_plugin, 15));
    QVERIFY(!(Call<bool, const QString &>(m_plugin, 16, QString(""))));
    QVERIFY((Call<bool, const QString &>(m_plugin, 16, QString("en"))));
    QCOMPARE(rect, QRect(1, 2, 3, 4));
}

void tst_Tables::notification()
{
    void *notification = m_root->qt_metacast("com.torvik.netquillforge.plugin.INotify");
    QVERIFY(notification);
    typedef int (*NotifyFunction)(void *, unsigned int, unsigned int, unsigned int);
    const NotifyFunction notify = reinterpret_cast<NotifyFunction>(Slot(notification, 2));
    QCOMPARE(notify(notification, 320, 1, 2), 0);
    QCOMPARE(notify(notification, 5, 1, 2), 0);
}

void tst_Tables::settingPage()
{
    QObject *service = nullptr;
    QVERIFY((Call<bool, int, QObject **>(m_plugin, 10, 4098, &service)));
    void *setting = service->qt_metacast("com.torvik.netquillforge.plugin.ISettingUIPlugin");
    QVERIFY(setting);
    QWidget window;
    QRect rect(5, 6, 7, 8);
    QVERIFY((Call<bool, QWidget *, QRect &>(setting, 4, &window, rect)));
    QWidget *page = window.findChild<QWidget *>("priorityPage");
    QVERIFY(page);
    QCOMPARE(page->pos(), QPoint(5, 6));
    QCOMPARE(Call<QString>(setting, 5), QString("en:IDS_SETTING_NAME"));
    QVERIFY(Call<bool>(setting, 7));
    QVERIFY(Call<bool>(setting, 6));
    QVERIFY(!page->parent());
    QVERIFY(!QFile::exists(m_directory.FilePath("Priority.xml")));
    QVERIFY(Call<bool>(setting, 3));
    QVERIFY(!QFile::exists(m_directory.FilePath("Priority.xml")));
    QVERIFY(Call<bool>(setting, 2));
    QVERIFY(QFile::exists(m_directory.FilePath("Priority.xml")));
}

void tst_Tables::priorityList()
{
    QObject *service = nullptr;
    QVERIFY((Call<bool, int, QObject **>(m_plugin, 10, 4103, &service)));
    void *priority = service->qt_metacast("com.torvik.netquillforge.plugin.IPriorityPlugin");
    QVERIFY(priority);
    Record home = {"Home", "1"};
    Record office = {"Office", "1"};
    QList<Record> entries;
    entries << home << office;
    Call<void, QList<Record> &>(priority, 3, entries);
    Call<void, Record>(priority, 4, office);
    QList<Record> list;
    QCOMPARE((Call<int, QList<Record> *>(priority, 2, &list)), 0);
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(0).first, QString("Office"));
    QCOMPARE(list.at(1).first, QString("Home"));
    QCOMPARE(list.at(1).second, QString("1"));
}

QTEST_MAIN(tst_Tables)
#include "tst_tables.moc"
