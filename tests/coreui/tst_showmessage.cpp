#include <Change.h>
#include <CommonUtils.h>
#include <HostControl.h>
#include <Row.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

Q_DECLARE_METATYPE(QMessageBox::Icon)

namespace
{

QDialog *OpenBox()
{
    foreach (QWidget *widget, QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String("messageBox")) {
            return qobject_cast<QDialog *>(widget);
        }
    }
    return nullptr;
}

QString LongText()
{
    return QString(QLatin1String("a long text that fills many lines ")).repeated(400);
}

} // namespace

/** Does to the message that is open what a test asks for, notes what it shows, and never leaves it open. */
class User : public QObject
{
    Q_OBJECT

public:
    explicit User(const QString &deed) : m_deed(deed), m_victim(nullptr), m_handle(nullptr)
    {
        QTimer::singleShot(0, this, SLOT(Act()));
    }

    /** The widget to delete, the pointer to look at: both not owned. */
    void SetVictim(QWidget *victim) { m_victim = victim; }
    void SetHandle(QDialog **handle) { m_handle = handle; }

    bool sawBox = false;
    bool handleWasBox = false;
    QString title;
    QString text;
    QString detail;
    QStringList captions;
    QString defaultCaption;
    bool hadIcon = false;
    bool hadCloseButton = false;
    bool fitsScreen = false;
    bool buttonsVisible = false;
    Qt::WindowModality modality = Qt::NonModal;
    QWidget *parentOfBox = nullptr;

private slots:
    void Act();

private:
    void Note(const QDialog *box);

    QString m_deed;
    QWidget *m_victim;
    QDialog **m_handle;
};

void User::Note(const QDialog *box)
{
    sawBox = true;
    handleWasBox = m_handle && *m_handle == box;
    title = box->windowTitle();
    text = box->findChild<QLabel *>(QLatin1String("messageText"))->text();
    if (const QLabel *label = box->findChild<QLabel *>(QLatin1String("messageDetail"))) {
        detail = label->text();
    }
    const QLabel *icon = box->findChild<QLabel *>(QLatin1String("messageIcon"));
    hadIcon = icon && !icon->property("pixmap").value<QPixmap>().isNull();
    hadCloseButton = box->findChild<QToolButton *>(QLatin1String("dialogClose")) != nullptr;
    buttonsVisible = true;
    for (int number = 1; number <= 3; ++number) {
        const QPushButton *button =
            box->findChild<QPushButton *>(QString::fromLatin1("messageButton%1").arg(number));
        if (button) {
            captions.append(button->text());
            buttonsVisible = buttonsVisible &&
                             box->rect().contains(QRect(button->mapTo(box, QPoint(0, 0)), button->size()));
            if (button->isDefault()) {
                defaultCaption = button->text();
            }
        }
    }
    fitsScreen = box->width() <= 600 && box->height() <= 600;
    modality = box->windowModality();
    parentOfBox = box->parentWidget();
}

void User::Act()
{
    QDialog *box = OpenBox();
    if (!box) {
        return;
    }
    Note(box);
    const QPointer<QDialog> guard(box);
    if (m_deed == QLatin1String("delete")) {
        delete m_victim;
    } else if (m_deed == QLatin1String("quit")) {
        // quit() would do this only while the application itself runs its loop, from the sixth generation on.
        QCoreApplication::exit();
        return;
    } else if (m_deed == QLatin1String("hide")) {
        box->hide();
    } else if (m_deed == QLatin1String("enter")) {
        QTest::keyClick(box, Qt::Key_Return);
    } else if (m_deed == QLatin1String("tab enter")) {
        QTest::keyClick(box, Qt::Key_Tab);
        QTest::keyClick(box->focusWidget(), Qt::Key_Return);
    } else if (m_deed == QLatin1String("tab space")) {
        QTest::keyClick(box, Qt::Key_Tab);
        QTest::keyClick(box->focusWidget(), Qt::Key_Space);
    } else if (m_deed == QLatin1String("escape")) {
        QTest::keyClick(box, Qt::Key_Escape);
    } else if (QWidget *button = box->findChild<QWidget *>(m_deed)) {
        QTest::mouseClick(button, Qt::LeftButton);
    }
    if (guard && guard->isVisible()) {
        guard->done(-1);
    }
}

class TestShowMessage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void everyDeedHasItsAnswer_data();
    void everyDeedHasItsAnswer();
    void textsAreShownAsGiven();
    void captionsAreTranslated_data();
    void captionsAreTranslated();
    void questionOfRemovalNamesTheAct();
    void emptyCaptionIsNoButton();
    void firstButtonIsTheDefault();
    void detailIsShownWhenThereIsOne_data();
    void detailIsShownWhenThereIsOne();
    void iconsArePictures_data();
    void iconsArePictures();
    void closeButtonFollowsTheFlags_data();
    void closeButtonFollowsTheFlags();
    void modalMessageMakesTheRestWait_data();
    void modalMessageMakesTheRestWait();
    void messageOnTopBelongsToItsParent_data();
    void messageOnTopBelongsToItsParent();
    void handleIsSetWhileOpen();
    void parentDeletedWhileOpenIsCancel_data();
    void parentDeletedWhileOpenIsCancel();
    void handleGoneWithItsOwnerIsNotTouched();
    void longTextLeavesButtonsInReach_data();
    void longTextLeavesButtonsInReach();
    void boxIsGoneAfterwards();
    void quittingTheApplicationIsCancel();

private:
    int Ask(QWidget *parent, QDialog **handle = nullptr);
};

int TestShowMessage::Ask(QWidget *parent, QDialog **handle)
{
    return CommonUtils::ShowMessage(QMessageBox::Question, parent, QLatin1String("Title"),
                                    QLatin1String("Text"), QLatin1String("IDS_OK"),
                                    QLatin1String("IDS_CANCEL"), QLatin1String("IDS_PROFILE_NEW"), true,
                                    Qt::WindowCloseButtonHint, handle, QString(), true);
}

void TestShowMessage::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
}

void TestShowMessage::cleanup()
{
    HostControl::SetLanguage(QLatin1String("en"));
}

void TestShowMessage::everyDeedHasItsAnswer_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<int>("answer");
    Row("first button", "messageButton1", 1024);
    Row("second button", "messageButton2", 4194304);
    Row("third button", "messageButton3", 1048576);
    Row("Enter", "enter", 1024);
    Row("Enter on the second button", "tab enter", 4194304);
    Row("Space on the second button", "tab space", 4194304);
    Row("Escape", "escape", 4194304);
    Row("close button", "dialogClose", 4194304);
    Row("hidden from outside", "hide", 4194304);
}

void TestShowMessage::everyDeedHasItsAnswer()
{
    QFETCH(QString, deed);
    QFETCH(int, answer);
    QWidget parent;
    User user(deed);
    QCOMPARE(Ask(&parent), answer);
    QVERIFY(user.sawBox);
}

void TestShowMessage::textsAreShownAsGiven()
{
    User user(QLatin1String("escape"));
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QLatin1String("A & <i>B</i>"),
                             QLatin1String("<b>IDS_OK</b> &amp; & more"), QLatin1String("IDS_OK"), QString(),
                             QString(), true, Qt::WindowFlags(), nullptr, QString(), true);
    QCOMPARE(user.title, QString(QLatin1String("A & <i>B</i>")));
    QCOMPARE(user.text, QString(QLatin1String("<b>IDS_OK</b> &amp; & more")));
}

void TestShowMessage::captionsAreTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("captions");
    Row("en", "en",
        (QStringList() << "OK"
                       << "Cancel"
                       << "&New"));
    Row("ar", "ar",
        (QStringList() << QString::fromUtf8("موافق") << QString::fromUtf8("إلغاء")
                       << QString::fromUtf8("&جديدة")));
}

void TestShowMessage::captionsAreTranslated()
{
    QFETCH(QString, language);
    QFETCH(QStringList, captions);
    QVERIFY(HostControl::SetLanguage(language));
    User user(QLatin1String("escape"));
    Ask(nullptr);
    QCOMPARE(user.captions, captions);
}

void TestShowMessage::questionOfRemovalNamesTheAct()
{
    const QString question = Change::tr(QLatin1String("IDS_WARNING_DELETE"), QLatin1String("PriorityPlugin"));
    User user(QLatin1String("messageButton1"));
    const int answer = CommonUtils::ShowMessage(QMessageBox::Question, nullptr, QString(), question,
                                                QLatin1String("IDS_OK"), QLatin1String("IDS_CANCEL"),
                                                QString(), true, Qt::WindowFlags(), nullptr, QString(), true);
    QCOMPARE(user.captions, QStringList() << QLatin1String("&Remove") << QLatin1String("Cancel"));
    QCOMPARE(answer, 1024);
}

void TestShowMessage::emptyCaptionIsNoButton()
{
    User user(QLatin1String("escape"));
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), QLatin1String("Text"), QString(),
                             QLatin1String("IDS_CANCEL"), QString(), true, Qt::WindowFlags(), nullptr,
                             QString(), true);
    QCOMPARE(user.captions, QStringList(QLatin1String("Cancel")));
}

void TestShowMessage::firstButtonIsTheDefault()
{
    User user(QLatin1String("escape"));
    Ask(nullptr);
    QCOMPARE(user.defaultCaption, QString(QLatin1String("OK")));
}

void TestShowMessage::detailIsShownWhenThereIsOne_data()
{
    QTest::addColumn<QString>("detail");
    Row("none", QString());
    Row("one", "Further text");
}

void TestShowMessage::detailIsShownWhenThereIsOne()
{
    QFETCH(QString, detail);
    User user(QLatin1String("escape"));
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), QLatin1String("Text"),
                             QLatin1String("IDS_OK"), QString(), QString(), true, Qt::WindowFlags(), nullptr,
                             detail, true);
    QCOMPARE(user.detail, detail);
}

void TestShowMessage::iconsArePictures_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<bool>("picture");
    Row("none", QMessageBox::NoIcon, false);
    Row("information", QMessageBox::Information, true);
    Row("warning", QMessageBox::Warning, true);
    Row("critical", QMessageBox::Critical, true);
    Row("question", QMessageBox::Question, true);
    Row("unknown", static_cast<QMessageBox::Icon>(7), false);
}

void TestShowMessage::iconsArePictures()
{
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(bool, picture);
    User user(QLatin1String("escape"));
    CommonUtils::ShowMessage(icon, nullptr, QString(), QLatin1String("Text"), QLatin1String("IDS_OK"),
                             QString(), QString(), true, Qt::WindowFlags(), nullptr, QString(), true);
    QVERIFY(user.sawBox);
    QCOMPARE(user.hadIcon, picture);
}

void TestShowMessage::closeButtonFollowsTheFlags_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("there");
    Row("with", static_cast<int>(Qt::WindowCloseButtonHint), true);
    Row("without", 0, false);
}

void TestShowMessage::closeButtonFollowsTheFlags()
{
    QFETCH(int, flags);
    QFETCH(bool, there);
    User user(QLatin1String("escape"));
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), QLatin1String("Text"),
                             QLatin1String("IDS_OK"), QString(), QString(), true, Qt::WindowFlags(flags),
                             nullptr, QString(), true);
    QVERIFY(user.sawBox);
    QCOMPARE(user.hadCloseButton, there);
}

void TestShowMessage::modalMessageMakesTheRestWait_data()
{
    QTest::addColumn<bool>("modal");
    QTest::addColumn<int>("modality");
    Row("modal", true, static_cast<int>(Qt::ApplicationModal));
    Row("not modal", false, static_cast<int>(Qt::NonModal));
}

void TestShowMessage::modalMessageMakesTheRestWait()
{
    QFETCH(bool, modal);
    QFETCH(int, modality);
    User user(QLatin1String("messageButton1"));
    const int answer = CommonUtils::ShowMessage(
        QMessageBox::Information, nullptr, QString(), QLatin1String("Text"), QLatin1String("IDS_OK"),
        QString(), QString(), modal, Qt::WindowFlags(), nullptr, QString(), true);
    QCOMPARE(answer, static_cast<int>(QMessageBox::Ok));
    QCOMPARE(static_cast<int>(user.modality), modality);
}

void TestShowMessage::messageOnTopBelongsToItsParent_data()
{
    QTest::addColumn<bool>("onTop");
    QTest::addColumn<bool>("parentIsModal");
    QTest::addColumn<bool>("belongs");
    Row("on top", true, false, true);
    Row("not on top", false, false, false);
    // The message of a modal window gets no input unless it belongs to it.
    Row("not on top of a modal window", false, true, true);
}

void TestShowMessage::messageOnTopBelongsToItsParent()
{
    QFETCH(bool, onTop);
    QFETCH(bool, parentIsModal);
    QFETCH(bool, belongs);
    QDialog parent;
    parent.setModal(parentIsModal);
    parent.show();
    User user(QLatin1String("messageButton1"));
    const int answer = CommonUtils::ShowMessage(
        QMessageBox::Information, &parent, QString(), QLatin1String("Text"), QLatin1String("IDS_OK"),
        QString(), QString(), false, Qt::WindowFlags(), nullptr, QString(), onTop);
    QCOMPARE(answer, static_cast<int>(QMessageBox::Ok));
    QCOMPARE(user.parentOfBox == &parent, belongs);
}

void TestShowMessage::handleIsSetWhileOpen()
{
    QDialog *handle = nullptr;
    User user(QLatin1String("messageButton1"));
    user.SetHandle(&handle);
    Ask(nullptr, &handle);
    QVERIFY(user.handleWasBox);
    QVERIFY(!handle);
}

void TestShowMessage::parentDeletedWhileOpenIsCancel_data()
{
    QTest::addColumn<bool>("onTop");
    Row("on top", true);
    Row("not on top", false);
}

void TestShowMessage::parentDeletedWhileOpenIsCancel()
{
    QFETCH(bool, onTop);
    QDialog *handle = nullptr;
    QWidget *window = new QWidget;
    QWidget *parent = new QWidget(window);
    window->show();
    User user(QLatin1String("delete"));
    user.SetVictim(window);
    const int answer = CommonUtils::ShowMessage(
        QMessageBox::Question, parent, QString(), QLatin1String("Text"), QLatin1String("IDS_OK"), QString(),
        QString(), true, Qt::WindowFlags(), &handle, QString(), onTop);
    QVERIFY(user.sawBox);
    QCOMPARE(answer, static_cast<int>(QMessageBox::Cancel));
    QVERIFY(!handle);
    QVERIFY(!OpenBox());
}

void TestShowMessage::handleGoneWithItsOwnerIsNotTouched()
{
    class Owner : public QWidget
    {
    public:
        QDialog *handle = nullptr;
    };
    Owner *owner = new Owner;
    User user(QLatin1String("delete"));
    user.SetVictim(owner);
    user.SetHandle(&owner->handle);
    // What was written after the owner's end would be found by the address sanitizer.
    QCOMPARE(Ask(owner, &owner->handle), static_cast<int>(QMessageBox::Cancel));
    QVERIFY(user.handleWasBox);
}

void TestShowMessage::longTextLeavesButtonsInReach_data()
{
    QTest::addColumn<QString>("text");
    Row("many words", LongText());
    Row("one word", QString(1000, QLatin1Char('W')));
    Row("many lines", QString(500, QLatin1Char('\n')));
    Row("empty", QString());
}

void TestShowMessage::longTextLeavesButtonsInReach()
{
    QFETCH(QString, text);
    User user(QLatin1String("messageButton2"));
    const int answer = CommonUtils::ShowMessage(
        QMessageBox::Information, nullptr, LongText(), text, QLatin1String("IDS_OK"),
        QLatin1String("IDS_CANCEL"), QString(), true, Qt::WindowCloseButtonHint, nullptr, text, true);
    QCOMPARE(answer, static_cast<int>(QMessageBox::Cancel));
    QVERIFY(user.buttonsVisible);
    QVERIFY(user.fitsScreen);
}

void TestShowMessage::boxIsGoneAfterwards()
{
    const int before = QApplication::topLevelWidgets().size();
    User user(QLatin1String("messageButton1"));
    Ask(nullptr);
    QCOMPARE(QApplication::topLevelWidgets().size(), before);
}

/* The last one: an application that was told to quit opens no further nested loops. */
void TestShowMessage::quittingTheApplicationIsCancel()
{
    QWidget parent;
    User user(QLatin1String("quit"));
    QCOMPARE(Ask(&parent), static_cast<int>(QMessageBox::Cancel));
    QVERIFY(user.sawBox);
    QVERIFY(!OpenBox());
}

QTEST_MAIN(TestShowMessage)
#include "tst_showmessage.moc"
