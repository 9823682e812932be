#include "StoredFixture.h"

#include <HostControl.h>
#include <IUIPlugin.h>
#include <IWLANUIPlugin.h>
#include <Row.h>
#include <WLANResult.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace
{

IWLANUIPlugin *Wlan()
{
    return qobject_cast<IWLANUIPlugin *>(StoredFixture::Service());
}

WLANProfile NewProfile(const QString &name, const QString &network, const QString &authentication,
                       const QString &encryption, const QString &key)
{
    WLANProfile profile;
    profile.profileName = name;
    profile.ssid = network;
    profile.bssType = "ESS";
    profile.authentication = authentication;
    profile.encryption = encryption;
    profile.keyMaterial = key;
    return profile;
}

/** What tells the directions of a text and of the names in it is for the eye alone. */
QString WithoutDirections(QString text)
{
    const ushort signs[] = {0x200e, 0x200f, 0x202a, 0x202b, 0x202c};
    for (const ushort sign : signs) {
        text.remove(QChar(sign));
    }
    return text;
}

} // namespace

/** Reads every message that opens, and answers it in its way. */
class Reader : public QObject
{
    Q_OBJECT

public:
    enum Answer { Ok, ServiceGoes, WindowGoes };

    Reader() : answer(Ok), isRightToLeft(false), m_window(nullptr)
    {
        connect(&m_timer, SIGNAL(timeout()), this, SLOT(Read()));
        m_timer.start(10);
    }

    /** Has the window for its last answer. */
    void SetWindow(QWidget *window) { m_window = window; }

    Answer answer;
    bool isRightToLeft;
    QStringList texts;
    QStringList titles;
    QList<QWidget *> windows;

private slots:
    void Read()
    {
        QDialog *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box || box->objectName() != "messageBox") {
            return;
        }
        const QString text = box->findChild<QLabel *>("messageText")->text();
        isRightToLeft = text.isRightToLeft();
        texts.append(WithoutDirections(text));
        titles.append(box->windowTitle());
        windows.append(box->parentWidget());
        const Answer now = answer;
        // Once: a message that is still open then is read again, and closed.
        answer = Ok;
        if (now == ServiceGoes) {
            StoredFixture::Restart();
        } else if (now == WindowGoes) {
            delete m_window;
        } else {
            box->findChild<QPushButton *>("messageButton1")->click();
        }
    }

private:
    QTimer m_timer;
    QWidget *m_window;
};

/** What the user is told when a profile is not stored, in the host's own messages. */
class tst_storednotices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void StoredProfileNeedsNoWords();
    void ReasonIsTold_data();
    void ReasonIsTold();
    void FileThatIsInUseIsTold();
    void MissingDirectoryIsTold();
    void NothingIsShownBeforeTheCallerIsDone();
    void NoticesComeOneAfterTheOther();
    void NoticeBelongsToTheDialogInFront();
    void WithoutAWindowNobodyIsTold();
    void ServiceMayGoWhileItsNoticeIsOpen();
    void ServiceMayGoBeforeItsNoticeOpens();
    void WindowMayGoWhileItsNoticeIsOpen();
    void TextReadsInItsOwnDirection_data();
    void TextReadsInItsOwnDirection();
    void KeyIsInNoNotice();

private:
    void Refuse(const QString &name = "Company");
    /** Until so many notices have come, and a little longer. */
    void Wait(int notices) const;

    QScopedPointer<StoredFixture> m_fixture;
    QPointer<QWidget> m_window;
    QScopedPointer<Reader> m_reader;
};

void tst_storednotices::initTestCase()
{
    HostControl::SetLanguageDirectory(BUILD_DIRECTORY "/share/priority-dashboard/languages");
    QVERIFY(HostControl::SetLanguage("en"));
}

void tst_storednotices::init()
{
    m_fixture.reset(new StoredFixture);
    m_window = new QWidget;
    m_window->show();
    m_reader.reset(new Reader);
}

void tst_storednotices::cleanup()
{
    m_reader.reset();
    delete m_window;
    m_fixture.reset();
}

void tst_storednotices::Wait(int notices) const
{
    const int most = 200;
    const int pause = 50;
    for (int i = 0; i < most && m_reader->texts.size() < notices; ++i) {
        QTest::qWait(pause);
    }
    QTest::qWait(pause);
}

/** The sample has that profile, and it is read-only. */
void tst_storednotices::Refuse(const QString &name)
{
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile(name, name, "WPA2PSK", "CCMP", "open sesame")),
             int(WLANResultReadOnlyProfile));
}

void tst_storednotices::StoredProfileNeedsNoWords()
{
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("Attic", "roof", "open", "none", "")),
             int(WLANResultSuccess));
    Wait(0);
    QCOMPARE(m_reader->texts, QStringList());
}

void tst_storednotices::ReasonIsTold_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("text");

    const QByteArray begin = "<wlanprofiles><profile ssid='roof' profileName=";
    const QByteArray wpa2 = " authentication='WPA2PSK' encryption='CCMP' keyMaterial='open sesame'/>";
    const QByteArray end = "</wlanprofiles>";
    const QString kept = QString::fromUtf8("“Attic” was not changed: ");
    const QString notSaved = QString::fromUtf8("“Attic” was not saved: ");
    Row("read-only", begin + "'Attic' readOnly='true'/>" + end, "open none", int(WLANResultReadOnlyProfile),
        kept + "a network with this name is already saved, and it cannot be changed.");
    Row("several", begin + "'Attic'/><profile profileName='Attic'/>" + end, "open none",
        int(WLANResultSeveralProfiles),
        QString::fromUtf8("Nothing was changed: several networks are saved under the "
                          "name “Attic”, and it is not known which one is meant. "
                          "Choose another name."));
    Row("account", begin + "'Attic' authentication='WPA2(EAP)' encryption='CCMP'/>" + end, "open none",
        int(WLANResultUndescribedProfile),
        kept + "a network with this name is already saved, with details that "
               "cannot be entered here, such as an account. Change it where it was "
               "set up, or choose another name.");
    Row("stronger", begin + "'Attic'" + wpa2 + end, "open none", int(WLANResultWeakerMethod),
        kept + "a network with this name is already saved, and this security or "
               "encryption would be weaker. Choose one that is at least as strong, "
               "or another name.");
    Row("key", begin + "'Attic'" + wpa2 + end, "WPA2PSK CCMP", int(WLANResultIncompleteKey),
        kept + "a network with this name is already saved, and changing it needs a "
               "complete key. Enter the key, or choose another name.");
    Row("better one", begin + "'Loft'" + wpa2 + end, "open none", int(WLANResultBetterProfile),
        notSaved + QString::fromUtf8("the same network is already saved as “Loft”, "
                                     "with better settings. Add “Loft” to your "
                                     "list instead."));
    Row("damaged", begin, "open none", int(WLANResultFileDamaged),
        notSaved + "the file with the saved networks is damaged and was not "
                   "changed. See the log for the line.");
}

void tst_storednotices::ReasonIsTold()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, method);
    QFETCH(int, result);
    QFETCH(QString, text);
    StoredFixture::Write(m_fixture->ProfilesPath(), file);
    QCOMPARE(Wlan()->CreateWLANProfile(
                 NewProfile("Attic", "roof", method.section(' ', 0, 0), method.section(' ', 1), "")),
             result);
    Wait(1);
    QCOMPARE(m_reader->texts, QStringList(text));
    QCOMPARE(m_reader->titles, QStringList("New network"));
}

void tst_storednotices::FileThatIsInUseIsTold()
{
    QList<RememberedList> list;
    Wlan()->GetRememberedList(&list);
    const int directory =
        open(QFile::encodeName(m_fixture->Path(QString())).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(flock(directory, LOCK_EX), 0);
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("Attic", "roof", "open", "none", "")), int(WLANResultBusy));
    close(directory);
    Wait(1);
    QCOMPARE(m_reader->texts,
             QStringList(QString::fromUtf8("“Attic” was not saved: another program is changing the networks. "
                                           "Try again in a moment.")));
}

void tst_storednotices::MissingDirectoryIsTold()
{
    StoredFixture::Write(m_fixture->Path("file"), "no directory");
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_fixture->Path("file")));
    QCOMPARE(Wlan()->CreateWLANProfile(NewProfile("Attic", "roof", "open", "none", "")),
             int(WLANResultNoDirectory));
    Wait(1);
    QCOMPARE(m_reader->texts,
             QStringList(QString::fromUtf8("“Attic” was not saved: the file with the saved networks cannot "
                                           "be read or written. See the log for details.")));
}

void tst_storednotices::NothingIsShownBeforeTheCallerIsDone()
{
    Refuse();
    QCOMPARE(m_reader->texts, QStringList());
    QVERIFY(!QApplication::activeModalWidget());
    Wait(1);
    QCOMPARE(m_reader->texts.size(), 1);
}

void tst_storednotices::NoticesComeOneAfterTheOther()
{
    StoredFixture::Write(m_fixture->ProfilesPath(),
                         "<wlanprofiles><profile profileName='Attic' readOnly='true'/>"
                         "<profile profileName='Loft' readOnly='true'/></wlanprofiles>");
    Refuse("Attic");
    Refuse("Loft");
    Wait(2);
    QCOMPARE(m_reader->texts.size(), 2);
    QVERIFY(m_reader->texts.at(0).contains("Attic"));
    QVERIFY(m_reader->texts.at(1).contains("Loft"));
    // The second would lie above the first if it were.
    QCOMPARE(m_reader->windows, QList<QWidget *>() << m_window.data() << m_window.data());
}

void tst_storednotices::NoticeBelongsToTheDialogInFront()
{
    QDialog dialog(m_window.data());
    dialog.setModal(true);
    dialog.show();
    Refuse();
    Wait(1);
    QCOMPARE(m_reader->windows, QList<QWidget *>() << &dialog);
}

void tst_storednotices::WithoutAWindowNobodyIsTold()
{
    m_window->hide();
    Refuse();
    Wait(0);
    m_window->show();
    Wait(0);
    QCOMPARE(m_reader->texts, QStringList());
}

void tst_storednotices::ServiceMayGoWhileItsNoticeIsOpen()
{
    m_reader->answer = Reader::ServiceGoes;
    Refuse();
    Refuse();
    Wait(1);
    QCOMPARE(m_reader->texts.size(), 1);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_storednotices::ServiceMayGoBeforeItsNoticeOpens()
{
    Refuse();
    StoredFixture::Restart();
    Wait(0);
    QCOMPARE(m_reader->texts, QStringList());
}

void tst_storednotices::WindowMayGoWhileItsNoticeIsOpen()
{
    m_reader->answer = Reader::WindowGoes;
    m_reader->SetWindow(m_window);
    Refuse();
    Wait(1);
    QCOMPARE(m_reader->texts.size(), 1);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_storednotices::TextReadsInItsOwnDirection_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isRightToLeft");
    const QString attic = QString::fromUtf8("عليّة");
    Row("English", "en", attic, false);
    Row("Hebrew", "he", "Attic", true);
}

void tst_storednotices::TextReadsInItsOwnDirection()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    QFETCH(bool, isRightToLeft);
    StoredFixture::Write(m_fixture->ProfilesPath(), "<wlanprofiles><profile profileName='" + name.toUtf8() +
                                                        "' readOnly='true'/></wlanprofiles>");
    HostControl::SetLanguage(language);
    QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    Refuse(name);
    Wait(1);
    HostControl::SetLanguage("en");
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(m_reader->texts.value(0).contains(name));
    QCOMPARE(m_reader->isRightToLeft, isRightToLeft);
}

void tst_storednotices::KeyIsInNoNotice()
{
    Refuse();
    Wait(1);
    QVERIFY(!m_reader->texts.value(0).contains("sesame"));
    QVERIFY(m_reader->texts.value(0).contains("Company"));
}

QTEST_MAIN(tst_storednotices)
#include "tst_storednotices.moc"
