#include "FakePriority.h"

#include <ConnectDialog.h>
#include <DashboardLanguage.h>
#include <FakeWLAN.h>
#include <HostControl.h>
#include <IPluginContainer.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

namespace
{

const int nameColumn = 0;
const int signalColumn = 1;

WlanAvilableNetworkInfo Network(const QString &name, int signal)
{
    WlanAvilableNetworkInfo network;
    network.networkName = name;
    network.value1 = signal;
    return network;
}

/** Plug-ins that come and go. */
class Container : public IPluginContainer
{
public:
    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override
    {
        if (classId == "7545FB07-0E7A-4F27-A449-872DB09C106D" && interfaceNumber == 4102) {
            return wlan;
        }
        if (classId == "D78C8E0F-7A3F-4f51-87E3-753F0F7F0E05" && interfaceNumber == 4103) {
            return priority;
        }
        return nullptr;
    }

    QObject *wlan = nullptr;
    QObject *priority = nullptr;
};

} // namespace

/** The dialog over plug-ins that are plain objects. */
class ConnectDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void NetworksAreListedInOrderWithTheirSignal();
    void SignalThatIsNoPercentageIsNotShown_data();
    void SignalThatIsNoPercentageIsNotShown();
    void NetworkOfSeveralStationsIsListedOnce();
    void HiddenNetworkIsNotListed();
    void NamesAreShownAsPlainText();
    void NameWithLineBreaksHasOneLineAndStaysItself();
    void BestNetworkIsChosenAndTheListHasTheFocus();
    void ChosenNetworkGoesOnTop();
    void KeysChooseAndConnect();
    void DoubleClickConnects();
    void OtherWaysOutChangeNothing_data();
    void OtherWaysOutChangeNothing();
    void NothingChosenCannotBeConnectedTo();
    void NoNetworkInRangeIsTold();
    void MissingWLANPluginIsTold();
    void NetworkThatVanishedStillGoesOnTop();
    void PriorityPluginIsLookedUpWhenItIsNeeded();
    void MissingPriorityPluginIsToldAndTheChoiceKept();
    void TextsAndSidesFollowTheLanguage_data();
    void TextsAndSidesFollowTheLanguage();

private:
    void Open();
    QTableWidget *List() const { return m_dialog->findChild<QTableWidget *>("connectList"); }
    QPushButton *Button(const char *name) const { return m_dialog->findChild<QPushButton *>(name); }
    QLabel *Label(const char *name) const { return m_dialog->findChild<QLabel *>(name); }
    QStringList Column(int column) const;
    void ClickRow(int row) const;

    FakeWLAN *m_wlan;
    FakePriority *m_priority;
    QScopedPointer<QObject> m_plugins;
    Container m_container;
    QScopedPointer<ConnectDialog> m_dialog;
};

void ConnectDialogTest::init()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
    m_plugins.reset(new QObject);
    m_wlan = new FakeWLAN;
    m_wlan->setParent(m_plugins.data());
    m_wlan->networks << Network("Home", 92) << Network("Library", 38) << Network("Campus", 19);
    m_priority = new FakePriority;
    m_priority->setParent(m_plugins.data());
    m_container.wlan = m_wlan;
    m_container.priority = m_priority;
    HostControl::SetPluginContainer(&m_container);
}

void ConnectDialogTest::cleanup()
{
    m_dialog.reset();
    HostControl::SetPluginContainer(nullptr);
    m_plugins.reset();
}

void ConnectDialogTest::Open()
{
    m_dialog.reset(new ConnectDialog(nullptr));
    m_dialog->show();
    ActivateWindow(m_dialog.data());
}

QStringList ConnectDialogTest::Column(int column) const
{
    QStringList texts;
    for (int row = 0; row < List()->rowCount(); ++row) {
        texts.append(List()->item(row, column)->text());
    }
    return texts;
}

void ConnectDialogTest::ClickRow(int row) const
{
    const QModelIndex index = List()->model()->index(row, nameColumn);
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, List()->visualRect(index).center());
}

void ConnectDialogTest::NetworksAreListedInOrderWithTheirSignal()
{
    Open();
    QVERIFY(List()->isVisible());
    QCOMPARE(Column(nameColumn), QStringList() << "Home"
                                               << "Library"
                                               << "Campus");
    QCOMPARE(Column(signalColumn), QStringList() << "92%"
                                                 << "38%"
                                                 << "19%");
}

void ConnectDialogTest::SignalThatIsNoPercentageIsNotShown_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("least") << 0 << "0%";
    QTest::newRow("most") << 100 << "100%";
    QTest::newRow("above") << 101 << "";
    QTest::newRow("decibels") << -67 << "";
}

void ConnectDialogTest::SignalThatIsNoPercentageIsNotShown()
{
    QFETCH(int, value);
    m_wlan->networks.first().value1 = value;
    Open();
    QTEST(Column(signalColumn).first(), "shown");
}

void ConnectDialogTest::NetworkOfSeveralStationsIsListedOnce()
{
    m_wlan->networks << Network("Home", 12) << Network("home", 11);
    Open();
    QCOMPARE(Column(nameColumn), QStringList() << "Home"
                                               << "Library"
                                               << "Campus"
                                               << "home");
    QCOMPARE(Column(signalColumn).first(), QString("92%"));
}

void ConnectDialogTest::HiddenNetworkIsNotListed()
{
    m_wlan->networks.prepend(Network("", 99));
    Open();
    QCOMPARE(Column(nameColumn).first(), QString("Home"));
    QCOMPARE(List()->rowCount(), 3);
}

void ConnectDialogTest::NamesAreShownAsPlainText()
{
    m_wlan->networks.prepend(Network("<b>A</b> & B", 99));
    Open();
    const QTableWidgetItem *item = List()->item(0, nameColumn);
    QCOMPARE(item->text(), QString("<b>A</b> & B"));
    QCOMPARE(item->toolTip(), QString("&lt;b&gt;A&lt;/b&gt; &amp; B"));
}

void ConnectDialogTest::NameWithLineBreaksHasOneLineAndStaysItself()
{
    m_wlan->networks.prepend(Network(" two\nlines", 99));
    Open();
    QCOMPARE(Column(nameColumn).first(), QString("two lines"));
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
    QCOMPARE(m_priority->toppedEntries, QStringList(" two\nlines/1"));
}

void ConnectDialogTest::BestNetworkIsChosenAndTheListHasTheFocus()
{
    Open();
    QCOMPARE(List()->currentRow(), 0);
    QVERIFY(List()->hasFocus());
    QVERIFY(Button("connectOkButton")->isEnabled());
}

void ConnectDialogTest::ChosenNetworkGoesOnTop()
{
    Open();
    ClickRow(1);
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
    QCOMPARE(m_priority->toppedEntries, QStringList("Library/1"));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), static_cast<int>(QDialog::Accepted));
}

void ConnectDialogTest::KeysChooseAndConnect()
{
    Open();
    QTest::keyClick(List(), Qt::Key_Down);
    QTest::keyClick(List(), Qt::Key_Down);
    QTest::keyClick(List(), Qt::Key_Return);
    QCOMPARE(m_priority->toppedEntries, QStringList("Campus/1"));
    QVERIFY(!m_dialog->isVisible());
}

void ConnectDialogTest::DoubleClickConnects()
{
    Open();
    const QModelIndex index = List()->model()->index(1, signalColumn);
    const QPoint place = List()->visualRect(index).center();
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(m_priority->toppedEntries, QStringList("Library/1"));
    QVERIFY(!m_dialog->isVisible());
}

void ConnectDialogTest::OtherWaysOutChangeNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("Cancel") << "connectCancelButton";
    QTest::newRow("Escape") << "";
    QTest::newRow("close button") << "dialogClose";
}

void ConnectDialogTest::OtherWaysOutChangeNothing()
{
    QFETCH(QString, way);
    Open();
    QSignalSpy spy(m_dialog.data(), SIGNAL(finished(int)));
    ClickRow(1);
    if (way.isEmpty()) {
        QTest::keyClick(List(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(m_dialog->findChild<QWidget *>(way), Qt::LeftButton);
    }
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_dialog->result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(m_priority->toppedEntries.isEmpty());
}

void ConnectDialogTest::NothingChosenCannotBeConnectedTo()
{
    Open();
    List()->clearSelection();
    QVERIFY(!Button("connectOkButton")->isEnabled());
    QTest::keyClick(List(), Qt::Key_Return);
    QVERIFY(m_dialog->isVisible());
    ClickRow(0);
    QVERIFY(Button("connectOkButton")->isEnabled());
}

void ConnectDialogTest::NoNetworkInRangeIsTold()
{
    m_wlan->networks.clear();
    Open();
    QVERIFY(!List()->isVisible());
    QVERIFY(Label("connectEmptyLabel")->isVisible());
    QVERIFY(Label("connectEmptyLabel")->text().startsWith("No network is in range."));
    QVERIFY(!Button("connectOkButton")->isEnabled());
    m_dialog->accept();
    QVERIFY(m_dialog->isVisible());
    QVERIFY(m_priority->toppedEntries.isEmpty());
}

void ConnectDialogTest::MissingWLANPluginIsTold()
{
    m_container.wlan = nullptr;
    Open();
    QVERIFY(Label("connectEmptyLabel")->isVisible());
    QVERIFY(Label("connectEmptyLabel")->text().contains("plug-in is not available"));
    QVERIFY(!Button("connectOkButton")->isEnabled());
}

void ConnectDialogTest::NetworkThatVanishedStillGoesOnTop()
{
    Open();
    ClickRow(1);
    m_wlan->networks.clear();
    m_container.wlan = nullptr;
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
    QCOMPARE(m_priority->toppedEntries, QStringList("Library/1"));
}

void ConnectDialogTest::PriorityPluginIsLookedUpWhenItIsNeeded()
{
    Open();
    FakePriority later;
    m_container.priority = &later;
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
    QVERIFY(m_priority->toppedEntries.isEmpty());
    QCOMPARE(later.toppedEntries, QStringList("Home/1"));
}

void ConnectDialogTest::MissingPriorityPluginIsToldAndTheChoiceKept()
{
    Open();
    ClickRow(1);
    QVERIFY(!Label("connectProblemLabel")->isVisible());
    m_container.priority = nullptr;
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(Label("connectProblemLabel")->isVisible());
    QVERIFY(Label("connectProblemLabel")->text().contains("not available"));
    m_container.priority = m_priority;
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
    QCOMPARE(m_priority->toppedEntries, QStringList("Library/1"));
    QVERIFY(!m_dialog->isVisible());
}

void ConnectDialogTest::TextsAndSidesFollowTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("connectText");
    QTest::addColumn<QString>("percent");
    QTest::newRow("Arabic") << "ar" << QString::fromUtf8("اتصال") << QString::fromUtf8("٩٢٪");
    QTest::newRow("Hebrew") << "he" << QString::fromUtf8("התחברות") << "92%";
}

void ConnectDialogTest::TextsAndSidesFollowTheLanguage()
{
    QFETCH(QString, language);
    Open();
    const QString before = m_dialog->windowTitle();
    QVERIFY(DashboardLanguage::Apply(language));
    m_dialog->Retranslate();
    QTEST(Button("connectOkButton")->text(), "connectText");
    QTEST(Column(signalColumn).first(), "percent");
    QVERIFY(m_dialog->windowTitle() != before);
    QApplication::processEvents();
    const QAbstractItemModel *model = List()->model();
    QVERIFY(List()->visualRect(model->index(0, nameColumn)).left() >
            List()->visualRect(model->index(0, signalColumn)).left());
    QVERIFY(List()->horizontalHeaderItem(nameColumn)->textAlignment() & Qt::AlignRight);
    QVERIFY(List()->horizontalHeaderItem(signalColumn)->textAlignment() & Qt::AlignLeft);
    QVERIFY(Button("connectCancelButton")->x() < Button("connectOkButton")->x());
}

QTEST_MAIN(ConnectDialogTest)
#include "tst_connectdialog.moc"
