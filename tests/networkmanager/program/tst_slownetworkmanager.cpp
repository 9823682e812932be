#include "DashboardSession.h"
#include "FakeNetworkManager.h"
#include "PrivateBus.h"

#include <UserActions.h>

#include <QComboBox>
#include <QTableWidget>
#include <QtTest>

namespace
{

// At 50 ms for each they take 30 s.
const int framesBeforeAnAnswer = 600;

/** Counts how often a widget is drawn. */
class FrameCounter : public QObject
{
public:
    explicit FrameCounter(QWidget *widget) : m_widget(widget) { widget->installEventFilter(this); }

    /** Returns when that many have been drawn, one for each time that it is asked for. */
    void Draw(int frames)
    {
        for (const int wanted = m_count + frames; m_count < wanted;) {
            m_widget->update();
            QCoreApplication::processEvents();
        }
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    QWidget *const m_widget;
    int m_count = 0;
};

} // namespace

/**
 * A NetworkManager that answers when the window has been drawn for half a minute, or never. An answer that is
 * waited for would not come, and whoever gives up waiting would say so: nothing of that may happen.
 */
class tst_slownetworkmanager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void WindowIsDrawnUntilThePictureComes();
    void WindowIsDrawnWhileAProfileIsStored();
    void ProfilesAreStoredOneAfterTheOther();

private:
    /** But for the sign that it is there. */
    void AnswerNothing();
    void OrderNewProfile(const QString &name);
    QStringList StoredNames();

    PrivateBus m_bus;
    QScopedPointer<FakeNetworkManager> m_fake;
    QScopedPointer<DashboardSession> m_dashboard;
};

void tst_slownetworkmanager::initTestCase()
{
    QVERIFY2(m_bus.Start(), qPrintable(m_bus.WhyNot()));
    m_fake.reset(new FakeNetworkManager);
    QVERIFY(m_fake->Appear());
    m_dashboard.reset(new DashboardSession);
    m_dashboard->VerifyPlugins();
}

void tst_slownetworkmanager::cleanupTestCase()
{
    m_dashboard.reset();
    m_fake.reset();
}

void tst_slownetworkmanager::init()
{
    m_dashboard->SetList(QStringList());
    m_fake->ForgetCalls();
    m_dashboard->OpenWindow();
    m_dashboard->WaitForSource();
}

void tst_slownetworkmanager::cleanup()
{
    m_fake->Behave();
    const QStringList paths = m_fake->ProfilePaths();
    for (const QString &path : paths) {
        m_fake->Remove(path);
    }
    m_dashboard->CloseWindow();
}

void tst_slownetworkmanager::AnswerNothing()
{
    for (const char *method :
         {"GetManagedObjects", "GetPermissions", "GetSettings", "AddConnection", "Update2"}) {
        m_fake->DoNotAnswer(method);
    }
}

void tst_slownetworkmanager::OrderNewProfile(const QString &name)
{
    m_dashboard->OpenDialog("newButton", "networkNameBox");
    m_dashboard->Fill("networkNameBox", name);
    QComboBox *authentication = m_dashboard->Find<QComboBox>("authenticationBox");
    authentication->setCurrentIndex(authentication->findText("open"));
    QCOMPARE(m_dashboard->Click("newOkButton"), QString());
    QVERIFY(!m_dashboard->Find<QComboBox>("networkNameBox") ||
            !m_dashboard->Find<QComboBox>("networkNameBox")->isVisible());
}

QStringList tst_slownetworkmanager::StoredNames()
{
    QStringList names;
    const QStringList paths = m_fake->ProfilePaths();
    for (const QString &path : paths) {
        names.append(m_fake->SettingsOf(path)["connection"].value("id").toString());
    }
    return names;
}

void tst_slownetworkmanager::WindowIsDrawnUntilThePictureComes()
{
    m_fake->AddProfile("Office");
    AnswerNothing();
    // It has to be asked for everything again.
    m_fake->Vanish();
    QVERIFY(m_fake->Appear());
    m_dashboard->OpenSettings();
    m_dashboard->OpenDialog("addButton", "rememberTable");
    QCOMPARE(m_dashboard->Find<QTableWidget>("rememberTable")->rowCount(), 0);
    FrameCounter(m_dashboard->Find<QTableWidget>("rememberTable")->viewport()).Draw(framesBeforeAnAnswer);
    QCOMPARE(m_dashboard->Click("addCancelButton"), QString());
    QCOMPARE(DashboardSession::Source(), int(ConnectionState::SourceNotKnown));
    m_fake->Behave();
    m_dashboard->WaitForSource();
    m_dashboard->OpenDialog("addButton", "rememberTable");
    QCOMPARE(m_dashboard->Find<QTableWidget>("rememberTable")->rowCount(), 1);
    QVERIFY(!m_dashboard->Log().contains("does not answer"));
}

void tst_slownetworkmanager::WindowIsDrawnWhileAProfileIsStored()
{
    m_dashboard->OpenSettings();
    AnswerNothing();
    OrderNewProfile("Office");
    FrameCounter(m_dashboard->Find<QTableWidget>("priorityTable")->viewport()).Draw(framesBeforeAnAnswer);
    QCOMPARE(m_fake->CallCount("AddConnection"), 1);
    QCOMPARE(StoredNames(), QStringList());
    QCOMPARE(m_dashboard->Notices(), QStringList());
    m_fake->Behave();
    QTRY_COMPARE(StoredNames(), QStringList("Office"));
    QVERIFY(!m_dashboard->Log().contains("does not answer"));
}

void tst_slownetworkmanager::ProfilesAreStoredOneAfterTheOther()
{
    m_dashboard->OpenSettings();
    AnswerNothing();
    OrderNewProfile("Office");
    OrderNewProfile("Home");
    QCOMPARE(m_fake->CallCount("AddConnection"), 1);
    m_fake->Behave();
    QTRY_COMPARE(StoredNames(), QStringList({"Office", "Home"}));
}

QTEST_MAIN(tst_slownetworkmanager)
#include "tst_slownetworkmanager.moc"
