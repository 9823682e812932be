#include "FakeConnections.h"
#include "FakePriority.h"
#include "Lists.h"

#include <ConnectDialog.h>
#include <ContractNumbers.h>
#include <DashboardLanguage.h>
#include <Glyphs.h>
#include <HostControl.h>
#include <ListRules.h>
#include <NetworkDelegate.h>
#include <Row.h>
#include <TemporaryDirectory.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace
{

/** Hands out the list. */
class ListContainer : public IPluginContainer
{
public:
    QObject *GetPluginObject(const QString &, int interfaceNumber) override
    {
        const int priorityInterface = 4103;
        return interfaceNumber == priorityInterface ? priority : nullptr;
    }

    QObject *priority = nullptr;
};

} // namespace

/** The dialog over connections and a list that are plain objects. */
class ConnectDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void NetworksAreListedAsTheyAreTold();
    void ListedNetworksComeFirstWithTheirPlace();
    void KeysPassOverSections();
    void NamesAreShownAsPlainText();
    void NetworksComeAndGo();
    void DevicesLookForNetworksWhenItOpens();
    void BestNetworkThatIsNotInUseIsChosen();
    void ChosenNetworkStaysChosen();
    void NetworkThatHasGoneIsToldAndNoOtherIsChosen();
    void KeyIsAskedForWhereItIsNeeded_data();
    void KeyIsAskedForWhereItIsNeeded();
    void NetworkIsConnected_data();
    void NetworkIsConnected();
    void KeyOfOneNetworkIsNotGivenToAnother();
    void KeyCanBeShown();
    void ProgressIsToldAndTheDialogClosesWhenItIsConnected();
    void AttemptThatTakesLongIsCalledSo();
    void FailureIsToldAndTheKeyCanBeTypedAgain();
    void FailureOfASavedNetworkTellsWhereItsKeyIsChangedAndWhatIsInUse();
    void WhatIsUnderWayCanBeStopped_data();
    void WhatIsUnderWayCanBeStopped();
    void RefusalIsTold_data();
    void RefusalIsTold();
    void ConnectedNetworkIsPutAtTheEndOfTheList_data();
    void ConnectedNetworkIsPutAtTheEndOfTheList();
    void NewNetworkGoesWhereTheUserWantsIt_data();
    void NewNetworkGoesWhereTheUserWantsIt();
    void NetworkThatCouldNotBeSavedIsToldAndNotListed();
    void OtherWaysOutOrderNothing_data();
    void OtherWaysOutOrderNothing();
    void NothingInRangeIsTold();
    void FewNetworksAreNotSearched();
    void NetworksAreFoundByAPartOfTheirName_data();
    void NetworksAreFoundByAPartOfTheirName();
    void FoundNetworkIsConnectedByReturn();
    void SearchWithoutAResultConnectsNothing();
    void SizeIsKept();
    void SourceThatGoesIsTold();
    void TextsAndSidesFollowTheLanguage_data();
    void TextsAndSidesFollowTheLanguage();

private:
    void Open();
    void AddManyNetworks() const;
    QLineEdit *Search() const { return m_dialog->findChild<QLineEdit *>("connectSearchEdit"); }
    void Choose(const QString &name) const;
    void ConnectTo(const QString &name);
    QListWidget *List() const { return m_dialog->findChild<QListWidget *>("connectList"); }
    QPushButton *Button(const char *name) const { return m_dialog->findChild<QPushButton *>(name); }
    QLineEdit *Key() const { return m_dialog->findChild<QLineEdit *>("connectKeyEdit"); }
    QString Outcome() const;
    QString Chosen() const;
    /** Of every row; sections are in brackets. */
    QString Rows(int role = Qt::DisplayRole) const;
    QListWidgetItem *Row(const QString &name) const;

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<FakeConnections> m_fake;
    QScopedPointer<FakePriority> m_priority;
    ListContainer m_list;
    QScopedPointer<WithConnections> m_container;
    QScopedPointer<ConnectDialog> m_dialog;
};

void ConnectDialogTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
    m_fake.reset(new FakeConnections);
    const struct {
        const char *name;
        int protection;
        int signal;
    } networks[] = {{"Home", VisibleNetwork::ProtectionKey, 92},
                    {"Neighbour", VisibleNetwork::ProtectionKey, 71},
                    {"Park", VisibleNetwork::ProtectionOpen, 64},
                    {"Workshop", VisibleNetwork::ProtectionWeakKey, 27},
                    {"Campus", VisibleNetwork::ProtectionAccount, -1}};
    for (const auto &shown : networks) {
        VisibleNetwork network;
        network.id = QLatin1String("id of ") + shown.name;
        network.name = shown.name;
        network.protection = shown.protection;
        network.signal = shown.signal;
        m_fake->told.networks.append(network);
    }
    m_fake->told.networks[0].profileIds << "1Home";
    m_fake->attempt.stage = StagePreparing;
    m_priority.reset(new FakePriority);
    m_list.priority = m_priority.data();
    m_container.reset(new WithConnections(&m_list, m_fake.data()));
    HostControl::SetPluginContainer(m_container.data());
}

void ConnectDialogTest::cleanup()
{
    m_dialog.reset();
    HostControl::SetPluginContainer(nullptr);
}

void ConnectDialogTest::Open()
{
    m_dialog.reset(new ConnectDialog(nullptr));
    m_dialog->show();
    ActivateWindow(m_dialog.data());
}

void ConnectDialogTest::Choose(const QString &name) const
{
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      List()->visualItemRect(Row(name)).center());
}

void ConnectDialogTest::ConnectTo(const QString &name)
{
    Open();
    Choose(name);
    if (Key()->isVisible()) {
        QTest::keyClicks(Key(), "sea-and-sand");
    }
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
}

QString ConnectDialogTest::Outcome() const
{
    const QLabel *label = m_dialog->findChild<QLabel *>("connectOutcomeLabel");
    return label->isVisible() ? Plain(label->text()) : QString();
}

QString ConnectDialogTest::Chosen() const
{
    const QList<QListWidgetItem *> rows = List()->selectedItems();
    return rows.isEmpty() ? QString() : rows.first()->text();
}

QString ConnectDialogTest::Rows(int role) const
{
    QStringList texts;
    for (int row = 0; row < List()->count(); ++row) {
        const QListWidgetItem *item = List()->item(row);
        texts.append(item->data(NetworkDelegate::IsSectionRole).toBool() ? "[" + item->text() + "]"
                                                                         : item->data(role).toString());
    }
    return texts.join(", ");
}

QListWidgetItem *ConnectDialogTest::Row(const QString &name) const
{
    return List()->findItems(name, Qt::MatchExactly).value(0);
}

void ConnectDialogTest::NetworksAreListedAsTheyAreTold()
{
    m_fake->told.networks[2].isInUse = true;
    Open();
    QCOMPARE(Rows(), QString("[Other networks in range], Home, Neighbour, Park, Workshop, Campus"));
    QCOMPARE(
        Rows(NetworkDelegate::DetailTextRole),
        QString::fromUtf8("[Other networks in range], Key · Saved, Key, No key, Weak key (WEP), Account"));
    QCOMPARE(Rows(NetworkDelegate::StateTextRole),
             QString("[Other networks in range], 92%, 71%, Connected, 27%, "));
    QCOMPARE(Row("Park")->data(NetworkDelegate::MarkRole).toInt(), int(Glyphs::MarkInUse));
}

void ConnectDialogTest::ListedNetworksComeFirstWithTheirPlace()
{
    // The profile has another name than its network, and a network of the entry's name is no other's.
    m_priority->list = Listed("Work, University, Park, At home");
    m_fake->told.profiles << SavedProfile("At home") << SavedProfile("University");
    m_fake->told.networks[1].profileIds << m_fake->told.profiles[0].id;
    m_fake->told.networks[4].profileIds << m_fake->told.profiles[1].id;
    Open();
    QCOMPARE(Rows(), QString("[In your list], Campus, Neighbour, [Other networks in range], Home, Park, "
                             "Workshop"));
    QCOMPARE(Row("Neighbour")->data(NetworkDelegate::DetailTextRole).toString(),
             QString::fromUtf8("Key · Place 4"));
}

void ConnectDialogTest::KeysPassOverSections()
{
    m_priority->list = Listed("At home");
    m_fake->told.profiles << SavedProfile("At home");
    m_fake->told.networks[1].profileIds << m_fake->told.profiles[0].id;
    Open();
    Choose("Neighbour");
    QTest::keyClick(List(), Qt::Key_Down);
    QCOMPARE(Chosen(), QString("Home"));
    QTest::keyClick(List(), Qt::Key_Up);
    QTest::keyClick(List(), Qt::Key_Up);
    QCOMPARE(Chosen(), QString("Neighbour"));
}

void ConnectDialogTest::NamesAreShownAsPlainText()
{
    m_fake->told.networks[0].name = "<b>A</b> & B";
    Open();
    QCOMPARE(Row("<b>A</b> & B")->toolTip(), QString("&lt;b&gt;A&lt;/b&gt; &amp; B"));
}

void ConnectDialogTest::NetworksComeAndGo()
{
    Open();
    m_fake->told.networks.removeFirst();
    m_fake->told.networks[0].signal = 5;
    m_fake->Tell();
    QCOMPARE(Rows(), QString("[Other networks in range], Neighbour, Park, Workshop, Campus"));
    QCOMPARE(Row("Neighbour")->data(NetworkDelegate::StateTextRole).toString(), QString("5%"));
}

void ConnectDialogTest::DevicesLookForNetworksWhenItOpens()
{
    Open();
    m_fake->Tell();
    QCOMPARE(m_fake->looks, 1);
}

void ConnectDialogTest::BestNetworkThatIsNotInUseIsChosen()
{
    m_fake->told.networks[0].isInUse = true;
    Open();
    QCOMPARE(Chosen(), QString("Neighbour"));
    QVERIFY(List()->hasFocus());
}

void ConnectDialogTest::ChosenNetworkStaysChosen()
{
    Open();
    Choose("Park");
    m_fake->told.networks.move(2, 0);
    m_fake->Tell();
    QCOMPARE(Chosen(), QString("Park"));
}

void ConnectDialogTest::NetworkThatHasGoneIsToldAndNoOtherIsChosen()
{
    Open();
    Choose("Park");
    m_fake->told.networks.removeAt(2);
    m_fake->Tell();
    QCOMPARE(Chosen(), QString());
    QCOMPARE(Outcome(), QString("Park is no longer in range."));
    QVERIFY(!Button("connectOkButton")->isEnabled());
    m_dialog->accept();
    QVERIFY(m_fake->joined.isEmpty());
}

void ConnectDialogTest::KeyIsAskedForWhereItIsNeeded_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isAskedFor");
    QTest::addColumn<bool>("canConnect");
    ::Row("saved", "Home", false, true);
    ::Row("not saved", "Neighbour", true, false);
    ::Row("open", "Park", false, true);
    ::Row("WEP", "Workshop", true, false);
    ::Row("account", "Campus", false, false);
}

void ConnectDialogTest::KeyIsAskedForWhereItIsNeeded()
{
    QFETCH(QString, name);
    QFETCH(bool, isAskedFor);
    Open();
    Choose(name);
    QCOMPARE(Key()->isVisible(), isAskedFor);
    QTEST(Button("connectOkButton")->isEnabled(), "canConnect");
    if (isAskedFor) {
        QCOMPARE(Plain(Key()->accessibleName()), "Key of " + name);
        QTest::keyClicks(Key(), "x");
        QVERIFY(Button("connectOkButton")->isEnabled());
    }
}

void ConnectDialogTest::NetworkIsConnected_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ordered");
    ::Row("saved", "Home", "id of Home/");
    ::Row("open", "Park", "id of Park/");
    ::Row("with a key", "Neighbour", "id of Neighbour/sea-and-sand");
}

void ConnectDialogTest::NetworkIsConnected()
{
    QFETCH(QString, name);
    ConnectTo(name);
    QTEST(m_fake->joined.join(','), "ordered");
    QVERIFY(m_dialog->isVisible());
}

void ConnectDialogTest::KeyOfOneNetworkIsNotGivenToAnother()
{
    Open();
    Choose("Neighbour");
    QTest::keyClicks(Key(), "sea-and-sand");
    Choose("Workshop");
    QCOMPARE(Key()->text(), QString());
    Choose("Neighbour");
    QTest::keyClicks(Key(), "sea-and-sand");
    // Somebody has saved it meanwhile, with a key of its own.
    m_fake->told.networks[1].profileIds << "saved";
    m_fake->Tell();
    QTest::mouseClick(Button("connectOkButton"), Qt::LeftButton);
    QCOMPARE(m_fake->joined, QStringList("id of Neighbour/"));
}

void ConnectDialogTest::KeyCanBeShown()
{
    Open();
    Choose("Neighbour");
    QCOMPARE(Key()->echoMode(), QLineEdit::Password);
    QTest::mouseClick(m_dialog->findChild<QCheckBox *>("connectShowKeyBox"), Qt::LeftButton, Qt::NoModifier,
                      QPoint(5, 5));
    QCOMPARE(Key()->echoMode(), QLineEdit::Normal);
}

void ConnectDialogTest::ProgressIsToldAndTheDialogClosesWhenItIsConnected()
{
    ConnectTo("Park");
    QCOMPARE(Outcome(), QString("The connection is being prepared."));
    QVERIFY(!List()->isEnabled() && !Button("connectOkButton")->isEnabled());
    m_fake->attempt.stage = StageAuthenticating;
    m_fake->Tell();
    QCOMPARE(Outcome(), QString("The key is being checked."));
    m_fake->attempt.stage = StageGettingAddress;
    m_fake->Tell();
    QCOMPARE(Outcome(), QString("The network is being asked for an address."));
    QVERIFY(m_dialog->findChild<QWidget *>("connectProgress")->isVisible());
    m_fake->attempt.stage = StageConnected;
    m_fake->Tell();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), static_cast<int>(QDialog::Accepted));
}

void ConnectDialogTest::AttemptThatTakesLongIsCalledSo()
{
    ConnectTo("Park");
    // The time that is usual is over at once.
    QTimer *usualTime = m_dialog->findChild<QTimer *>("usualTime");
    QVERIFY(usualTime->isActive());
    usualTime->start(0);
    QTRY_COMPARE(Outcome(), QString("The connection is being prepared. This takes longer than usual."));
}

void ConnectDialogTest::FailureIsToldAndTheKeyCanBeTypedAgain()
{
    ConnectTo("Neighbour");
    m_fake->attempt.stage = StageFailed;
    m_fake->attempt.failure = FailureWrongKey;
    m_fake->Tell();
    QCOMPARE(Outcome(), QString("Neighbour was not connected. The key was refused. Upper and lower case "
                                "count.\nNo network in use"));
    QCOMPARE(Key()->selectedText(), QString("sea-and-sand"));
    QVERIFY(Key()->hasFocus() && Button("connectOkButton")->isEnabled());
}

void ConnectDialogTest::FailureOfASavedNetworkTellsWhereItsKeyIsChangedAndWhatIsInUse()
{
    ConnectTo("Home");
    m_fake->attempt.stage = StageFailed;
    m_fake->attempt.failure = FailureWrongKey;
    m_fake->Tell();
    const QString told = "Home was not connected. The saved key was refused. You can change it in the "
                         "network settings of your desktop.\n";
    QCOMPARE(Outcome(), told + "No network in use");
    // What was connected before comes back by itself.
    m_fake->told.active << ConnectionOf("Office", StageConnected, true);
    m_fake->Tell();
    QCOMPARE(Outcome(), told + "In use now: Office");
}

void ConnectDialogTest::WhatIsUnderWayCanBeStopped_data()
{
    QTest::addColumn<bool>("byKey");
    ::Row("button", false);
    ::Row("Escape", true);
}

void ConnectDialogTest::WhatIsUnderWayCanBeStopped()
{
    QFETCH(bool, byKey);
    ConnectTo("Park");
    QCOMPARE(Button("connectCancelButton")->text(), QString("Stop"));
    if (byKey) {
        QTest::keyClick(m_dialog.data(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(Button("connectCancelButton"), Qt::LeftButton);
    }
    QCOMPARE(m_fake->cancelled, QList<int>{1});
    QVERIFY(m_dialog->isVisible());
    m_fake->attempt.stage = StageCancelled;
    m_fake->Tell();
    QCOMPARE(Outcome(), QString("Park was not connected.\nNo network in use"));
    QTest::keyClick(m_dialog.data(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
}

void ConnectDialogTest::RefusalIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("refusal");
    QTest::addColumn<QString>("told");
    ::Row("key", "Neighbour", int(IConnectionPlugin::RefusedKey),
          "This is not a valid WPA key. A WPA key has 8 to 63 characters, or 64 ");
    ::Row("WEP key", "Workshop", int(IConnectionPlugin::RefusedKey), "This is not a valid WEP key. ");
    ::Row("not allowed", "Park", int(IConnectionPlugin::RefusedNotAllowed),
          "You are not allowed to do that.");
    ::Row("unknown", "Park", int(IConnectionPlugin::RefusedUnknown), "Park was not connected.");
}

void ConnectDialogTest::RefusalIsTold()
{
    QFETCH(QString, name);
    QFETCH(int, refusal);
    QFETCH(QString, told);
    m_fake->answer = refusal;
    ConnectTo(name);
    QVERIFY2(Outcome().startsWith(told) && !Outcome().contains('\n'), qPrintable(Outcome()));
    QVERIFY(Button("connectOkButton")->isEnabled());
}

void ConnectDialogTest::ConnectedNetworkIsPutAtTheEndOfTheList_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("after");
    ::Row("not listed", "Office", int(PriorityRead), "Office, Park");
    ::Row("listed", "Park, Office", int(PriorityRead), "Park, Office");
    ::Row("no list yet", "", int(PriorityMissing), "Park");
    ::Row("of another type", "Park/2", int(PriorityRead), "Park/2, Park");
    ::Row("damaged list", "Office", int(PriorityDamaged), "Office");
}

void ConnectDialogTest::ConnectedNetworkIsPutAtTheEndOfTheList()
{
    QFETCH(QString, before);
    QFETCH(int, status);
    m_priority->list = Listed(before);
    m_priority->status = status;
    m_fake->attempt.name = "Park";
    ConnectTo("Park");
    QCOMPARE(AsText(m_priority->list), before);
    m_fake->attempt.stage = StageConnected;
    m_fake->Tell();
    QTEST(AsText(m_priority->list), "after");
    QVERIFY(m_priority->toppedEntries.isEmpty());
}

void ConnectDialogTest::NewNetworkGoesWhereTheUserWantsIt_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QString>("after");
    ::Row("at the top", int(ListRules::NewAtTheTop), "A network that is not in your list goes to its top.",
          "Park, Office");
    ::Row("not at all", int(ListRules::NewNotInTheList),
          "A network that is not in your list stays out of it.", "Office");
}

void ConnectDialogTest::NewNetworkGoesWhereTheUserWantsIt()
{
    QFETCH(int, place);
    QVERIFY(ListRules::SetPlaceOfNewNetworks(ListRules::NewNetworks(place)));
    m_priority->list = Listed("Office");
    m_fake->attempt.name = "Park";
    ConnectTo("Park");
    QTEST(m_dialog->findChild<QLabel *>("connectHintLabel")->text(), "hint");
    m_fake->attempt.stage = StageConnected;
    m_fake->Tell();
    QTEST(AsText(m_priority->list), "after");
}

void ConnectDialogTest::NetworkThatCouldNotBeSavedIsToldAndNotListed()
{
    m_fake->attempt.name = "Park";
    ConnectTo("Park");
    m_fake->attempt.stage = StageConnected;
    m_fake->attempt.failure = FailureNotStored;
    m_fake->Tell();
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(Outcome(), QString("Park is connected, but could not be saved."));
    QVERIFY(m_priority->list.isEmpty());
}

void ConnectDialogTest::OtherWaysOutOrderNothing_data()
{
    QTest::addColumn<QString>("way");
    ::Row("Cancel", "connectCancelButton");
    ::Row("Escape", "");
    ::Row("of the window", "close");
}

void ConnectDialogTest::OtherWaysOutOrderNothing()
{
    QFETCH(QString, way);
    Open();
    Choose("Park");
    if (way.isEmpty()) {
        QTest::keyClick(List(), Qt::Key_Escape);
    } else if (way == "close") {
        m_dialog->close();
    } else {
        QTest::mouseClick(m_dialog->findChild<QWidget *>(way), Qt::LeftButton);
    }
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(m_fake->joined.isEmpty() && m_priority->list.isEmpty());
}

void ConnectDialogTest::NothingInRangeIsTold()
{
    m_fake->told.networks.clear();
    Open();
    const QLabel *label = m_dialog->findChild<QLabel *>("connectEmptyLabel");
    QVERIFY(label->isVisible() && label->text().startsWith("No network is in range."));
    QVERIFY(!Button("connectOkButton")->isEnabled());
}

void ConnectDialogTest::AddManyNetworks() const
{
    for (const char *name : {"Café Süd", "Cafeteria", "Museum", "Station", "Library", "Harbour", "Office"}) {
        VisibleNetwork network;
        network.id = name;
        network.name = QString::fromUtf8(name);
        network.protection = VisibleNetwork::ProtectionOpen;
        m_fake->told.networks.append(network);
    }
}

void ConnectDialogTest::FewNetworksAreNotSearched()
{
    AddManyNetworks();
    const VisibleNetwork last = m_fake->told.networks.takeLast();
    Open();
    QVERIFY(!Search()->isVisible());
    m_fake->told.networks.append(last);
    m_fake->Tell();
    QVERIFY(Search()->isVisible());
    // What has been typed is not taken away.
    m_fake->told.networks.removeLast();
    m_fake->Tell();
    QVERIFY(Search()->isVisible());
}

void ConnectDialogTest::NetworksAreFoundByAPartOfTheirName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    ::Row("beginning", "Lib", "Library");
    ::Row("end", "tion", "Station");
    ::Row("other case", "OFFICE", "Office");
    ::Row("without the accent", "cafe", QString::fromUtf8("Café Süd, Cafeteria"));
    ::Row("without an accent within", "sud", QString::fromUtf8("Café Süd"));
    ::Row("with the accent", QString::fromUtf8("süd"), QString::fromUtf8("Café Süd"));
}

void ConnectDialogTest::NetworksAreFoundByAPartOfTheirName()
{
    QFETCH(QString, typed);
    AddManyNetworks();
    Open();
    QTest::mouseClick(Search(), Qt::LeftButton);
    Search()->setText(typed);
    QTEST(Rows().remove("[Other networks in range], "), "found");
}

void ConnectDialogTest::FoundNetworkIsConnectedByReturn()
{
    AddManyNetworks();
    Open();
    QTest::keyClicks(Search(), "muse");
    QTest::keyClick(Search(), Qt::Key_Return);
    QCOMPARE(m_fake->joined, QStringList("Museum/"));
}

void ConnectDialogTest::SearchWithoutAResultConnectsNothing()
{
    AddManyNetworks();
    Open();
    QTest::keyClicks(Search(), "<b>x");
    QCOMPARE(m_dialog->findChild<QLabel *>("connectEmptyLabel")->text(),
             QString::fromUtf8("No network in range has “<b>x” in its name."));
    QTest::keyClick(Search(), Qt::Key_Return);
    QVERIFY(m_fake->joined.isEmpty());
    Search()->clear();
    QCOMPARE(Chosen(), QString("Home"));
}

void ConnectDialogTest::SizeIsKept()
{
    Open();
    const QSize before = m_dialog->size();
    m_dialog->resize(before.width() + 40, before.height() - 30);
    m_dialog->reject();
    Open();
    QCOMPARE(m_dialog->size(), QSize(before.width() + 40, before.height() - 30));
}

void ConnectDialogTest::SourceThatGoesIsTold()
{
    Open();
    m_fake->told.state.source = ConnectionState::SourceGone;
    m_fake->told.networks.clear();
    m_fake->Tell();
    const QLabel *label = m_dialog->findChild<QLabel *>("connectEmptyLabel");
    QVERIFY2(label->isVisible() && label->text().contains("once NetworkManager runs"),
             qPrintable(label->text()));
}

void ConnectDialogTest::TextsAndSidesFollowTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("connectText");
    QTest::addColumn<QString>("percent");
    ::Row("Arabic", "ar", QString::fromUtf8("اتصال"), QString::fromUtf8("٩٢٪"));
    ::Row("Hebrew", "he", QString::fromUtf8("התחברות"), "92%");
}

void ConnectDialogTest::TextsAndSidesFollowTheLanguage()
{
    QFETCH(QString, language);
    Open();
    const QString before = m_dialog->windowTitle();
    QVERIFY(DashboardLanguage::Apply(language));
    m_dialog->Retranslate();
    QTEST(Button("connectOkButton")->text(), "connectText");
    QTEST(Row("Home")->data(NetworkDelegate::StateTextRole).toString(), "percent");
    QVERIFY(m_dialog->windowTitle() != before);
    QApplication::processEvents();
    QVERIFY(Button("connectCancelButton")->x() < Button("connectOkButton")->x());
}

QTEST_MAIN(ConnectDialogTest)
#include "tst_connectdialog.moc"
