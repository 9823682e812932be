#include "HandMadeWlan.h"
#include "HostServices.h"
#include "LoadedLibrary.h"
#include "RootTable.h"
#include "ServiceTable.h"

#include <TemporaryDirectory.h>

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/**
 * The texts that the plug-in asks the host for: each once, in its order, and none for what is missing. The
 * tests run in the order of a host's calls, over one life of the plug-in.
 */
class AskedTextsTest : public QObject
{
    Q_OBJECT

public:
    AskedTextsTest() : m_library("PriorityPlugin") {}

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void ThePageAsksWhenItIsMade();
    void ThePageAsksAgainWhenTheLanguageChanges();
    void ThePageAsksWhenItIsShown();
    void TheAddDialogAsksBeforeItsTitle();
    void TheNewDialogAsksFromTopToBottom();
    void NoticesAskForTitleAndText();
    void TheQuestionAsksForTitleAndText();
    void WhatIsMissingAsksForNothing();

private:
    static QStringList Asked();
    static QStringList TextsOfTheLanguageChange();
    void ChangeLanguage();
    template <typename Widget> Widget *Find(const char *name)
    {
        return m_window.findChild<Widget *>(QLatin1String(name));
    }
    void Click(const char *button) { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }

    LoadedLibrary m_library;
    TemporaryDirectory m_directory;
    QWidget m_window;
    HandMadeWlan m_wlan;
    QObject *m_service;
};

void AskedTextsTest::initTestCase()
{
    m_window.resize(600, 500);
    m_window.show();
}

void AskedTextsTest::cleanupTestCase()
{
    qDeleteAll(m_window.findChildren<QDialog *>());
    void *setting = m_service->qt_metacast(settingIdentifier);
    At<AnswerOperation>(setting, SettingTable::hide)(setting);
    void *farewell = NextPart(m_library.Root()->qt_metacast(rootIdentifier));
    At<PlainOperation>(farewell, DestroyTable::onDestroy)(farewell);
    delete m_library.Root();
}

void AskedTextsTest::init()
{
    HostServices::Reset(m_directory.Path());
    HostServices::container = m_wlan.Container();
}

/** The ids of the plug-in's texts. */
QStringList AskedTextsTest::Asked()
{
    QStringList ids = HostServices::texts;
    ids.replaceInStrings("PriorityPlugin/", "");
    return ids;
}

QStringList AskedTextsTest::TextsOfTheLanguageChange()
{
    return QStringList() << "IDS_PROFILE_UP"
                         << "IDS_PROFILE_DOWN"
                         << "IDS_PROFILE_DELETE"
                         << "IDS_PROFILE_ADD"
                         << "IDS_SETTING_NAME"
                         << "IDS_PROFILE_INFO"
                         << "IDS_PROFILE_NEW";
}

void AskedTextsTest::ChangeLanguage()
{
    void *notification = m_library.Root()->qt_metacast(notifyIdentifier);
    At<NotifyOperation>(notification, NotifyTable::notify)(notification, 320, 0, 0);
}

void AskedTextsTest::ThePageAsksWhenItIsMade()
{
    void *root = m_library.Root()->qt_metacast(rootIdentifier);
    QVERIFY(At<QueryOperation>(root, RootTable::queryInterface)(root, settingNumber, &m_service));
    QCOMPARE(Asked(), QStringList() << "IDS_PROFILE_UP"
                                    << "IDS_PROFILE_DOWN"
                                    << "IDS_PROFILE_ADD"
                                    << "IDS_PROFILE_DELETE"
                                    << "IDS_PROFILE_NEW"
                                    << "IDS_SETTING_NAME"
                                    << "IDS_PROFILE_INFO");
}

void AskedTextsTest::ThePageAsksAgainWhenTheLanguageChanges()
{
    ChangeLanguage();
    QCOMPARE(Asked(), TextsOfTheLanguageChange());
    QCOMPARE(HostServices::languageQuestions, 1);
}

void AskedTextsTest::ThePageAsksWhenItIsShown()
{
    void *setting = m_service->qt_metacast(settingIdentifier);
    QRect rect;
    QVERIFY(At<ShowPageOperation>(setting, SettingTable::show)(setting, &m_window, rect));
    QCOMPARE(Asked(), TextsOfTheLanguageChange());
}

void AskedTextsTest::TheAddDialogAsksBeforeItsTitle()
{
    Click("addButton");
    QCOMPARE(Asked(), QStringList() << "IDS_OK"
                                    << "IDS_CANCEL"
                                    << "IDS_PROFILE_ADD_TITLE");
    QCOMPARE(Find<QTableWidget>("rememberTable")->accessibleName(), QString("en:IDS_PROFILE_ADD_TITLE"));
    Find<QDialog>("addDialog")->close();
}

void AskedTextsTest::TheNewDialogAsksFromTopToBottom()
{
    Click("newButton");
    QCOMPARE(Asked(), QStringList() << "IDS_LIST_NETWORK_NAME"
                                    << "IDS_KEY"
                                    << "IDS_KEY_CONFIRM"
                                    << "IDS_AUTHENTICATION"
                                    << "IDS_ENCRYPTION"
                                    << "IDS_KEYINDEX"
                                    << "IDS_EAP_METHOD"
                                    << "IDS_OK"
                                    << "IDS_CANCEL"
                                    << "IDS_NEWPROFILE");
}

void AskedTextsTest::NoticesAskForTitleAndText()
{
    Click("newOkButton");
    QCOMPARE(Asked(), QStringList() << "IDS_PROFILE_BOX_TITLE"
                                    << "IDS_ERROR_EMPTY_SSID");
    Find<QDialog>("newDialog")->close();
}

void AskedTextsTest::TheQuestionAsksForTitleAndText()
{
    m_directory.Write("Priority.xml", "<r><item name='A' type='1'/></r>");
    QMetaObject::invokeMethod(Find<QWidget>("priorityPage"), "UpdataPriorityList");
    QMetaObject::invokeMethod(Find<QWidget>("priorityPage"), "OnCellClicked", Q_ARG(int, 0), Q_ARG(int, 0));
    HostServices::texts.clear();
    Click("deleteButton");
    QCOMPARE(Asked(), QStringList() << "IDS_PROFILE_BOX_TITLE"
                                    << "IDS_WARNING_DELETE");
}

void AskedTextsTest::WhatIsMissingAsksForNothing()
{
    const char *const widgets[] = {"upButton",  "downButton", "deleteButton", "addButton",
                                   "nameLabel", "infoLabel",  "newButton"};
    QStringList expected = TextsOfTheLanguageChange();
    for (const char *widget : widgets) {
        delete Find<QWidget>(widget);
        expected.removeFirst();
        HostServices::texts.clear();
        ChangeLanguage();
        QCOMPARE(Asked(), expected);
    }
    delete Find<QTableWidget>("priorityTable");
    HostServices::languageQuestions = 0;
    ChangeLanguage();
    QCOMPARE(HostServices::languageQuestions, 0);
}

QTEST_MAIN(AskedTextsTest)
#include "tst_askedtexts.moc"
