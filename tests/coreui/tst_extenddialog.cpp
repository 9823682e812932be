#include <ExtendDialog.h>
#include <ExtendLineEdit.h>
#include <Row.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

namespace
{

QString LongTitle()
{
    return QString(QLatin1String("a long title ")).repeated(40);
}

void SendMouse(QWidget *widget, QEvent::Type type, const QPoint &at, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

class ReversedLayout
{
public:
    ReversedLayout() { QApplication::setLayoutDirection(Qt::RightToLeft); }
    ~ReversedLayout() { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

} // namespace

class TestExtendDialog : public QObject
{
    Q_OBJECT

private slots:
    void titleIsShownInTheBarAndTheWindow();
    void titleIsShownLiterally();
    void longTitleNeedsNoRoom();
    void longTitleIsShownWithAnEllipsis();
    void closeButtonIsThereWhenAskedFor_data();
    void closeButtonIsThereWhenAskedFor();
    void closeButtonCloses();
    void escapeCloses();
    void windowIsAFramelessDialog();
    void bodyFillsTheRest_data();
    void bodyFillsTheRest();
    void bodyIsDeletedWithTheDialog();
    void nullBodyIsHarmless();
    void dialogIsDeletedWithItsParent();
    void barMovesTheWindow();
    void otherButtonsDoNotMoveTheWindow();
    void rightToLeftLayoutIsMirrored();
    void classIsWhatPluginsWereBuiltAgainst();
    void lineEditIsAnOrdinaryOne();
};

void TestExtendDialog::titleIsShownInTheBarAndTheWindow()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.setWindowTitle(QLatin1String("New network"));
    QCOMPARE(dialog.findChild<QLabel *>(QLatin1String("dialogTitle"))->text(),
             QString(QLatin1String("New network")));
    QCOMPARE(dialog.windowTitle(), QString(QLatin1String("New network")));
}

void TestExtendDialog::titleIsShownLiterally()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), enWidgetTypeDialog);
    dialog.setWindowTitle(QLatin1String("<b>New</b> & more"));
    const QLabel *title = dialog.findChild<QLabel *>(QLatin1String("dialogTitle"));
    QCOMPARE(title->textFormat(), Qt::PlainText);
    QCOMPARE(title->text(), QString(QLatin1String("<b>New</b> & more")));
}

void TestExtendDialog::longTitleNeedsNoRoom()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    const int before = dialog.minimumSizeHint().width();
    dialog.setWindowTitle(LongTitle());
    dialog.show();
    QCOMPARE(dialog.minimumSizeHint().width(), before);
}

void TestExtendDialog::longTitleIsShownWithAnEllipsis()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), enWidgetTypeDialog);
    dialog.setFixedSize(200, 100);
    QLabel *title = dialog.findChild<QLabel *>(QLatin1String("dialogTitle"));
    dialog.setWindowTitle(LongTitle());
    dialog.show();
    QImage whole(title->size(), QImage::Format_ARGB32_Premultiplied);
    title->render(&whole);

    dialog.setWindowTitle(title->fontMetrics().elidedText(LongTitle(), Qt::ElideRight, title->width()));
    QImage shortened(title->size(), QImage::Format_ARGB32_Premultiplied);
    title->render(&shortened);
    QVERIFY(whole == shortened);
}

void TestExtendDialog::closeButtonIsThereWhenAskedFor_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("there");
    Row("with the hint", static_cast<int>(Qt::WindowCloseButtonHint), true);
    Row("with other hints", static_cast<int>(Qt::WindowTitleHint | Qt::WindowSystemMenuHint), false);
    Row("without hints", 0, false);
}

void TestExtendDialog::closeButtonIsThereWhenAskedFor()
{
    QFETCH(int, flags);
    QFETCH(bool, there);
    ExtendDialog dialog(nullptr, Qt::WindowFlags(flags), enWidgetTypeDialog);
    QCOMPARE(dialog.findChild<QToolButton *>(QLatin1String("dialogClose")) != nullptr, there);
}

void TestExtendDialog::closeButtonCloses()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QToolButton *>(QLatin1String("dialogClose")), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
}

void TestExtendDialog::escapeCloses()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void TestExtendDialog::windowIsAFramelessDialog()
{
    QWidget parent;
    ExtendDialog dialog(&parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
}

void TestExtendDialog::bodyFillsTheRest_data()
{
    QTest::addColumn<QSize>("size");
    Row("add dialog", QSize(306, 341));
    Row("new-network dialog", QSize(360, 340));
}

void TestExtendDialog::bodyFillsTheRest()
{
    QFETCH(QSize, size);
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    QWidget *body = new QWidget;
    dialog.AddMainWidget(body);
    dialog.setFixedSize(size);
    dialog.show();
    QCOMPARE(dialog.size(), size);
    const QRect place(body->mapTo(&dialog, QPoint(0, 0)), body->size());
    QCOMPARE(place, QRect(1, 29, size.width() - 2, size.height() - 30));
}

void TestExtendDialog::bodyIsDeletedWithTheDialog()
{
    QWidget *body = new QWidget;
    const QPointer<QWidget> guard(body);
    {
        ExtendDialog dialog(nullptr, Qt::WindowFlags(), enWidgetTypeDialog);
        dialog.AddMainWidget(body);
        QVERIFY(dialog.isAncestorOf(body));
    }
    QVERIFY(guard.isNull());
}

void TestExtendDialog::nullBodyIsHarmless()
{
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), enWidgetTypeDialog);
    dialog.AddMainWidget(nullptr);
    QWidget *body = new QWidget;
    dialog.AddMainWidget(body);
    dialog.show();
    QVERIFY(body->isVisible());
}

void TestExtendDialog::dialogIsDeletedWithItsParent()
{
    QWidget *parent = new QWidget;
    QSignalSpy ends(new ExtendDialog(parent, Qt::WindowFlags(), enWidgetTypeDialog), SIGNAL(destroyed()));
    delete parent;
    QCOMPARE(ends.count(), 1);
}

void TestExtendDialog::barMovesTheWindow()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.setFixedSize(300, 200);
    dialog.move(100, 100);
    dialog.show();
    QLabel *title = dialog.findChild<QLabel *>(QLatin1String("dialogTitle"));
    SendMouse(title, QEvent::MouseButtonPress, QPoint(20, 10), Qt::LeftButton, Qt::LeftButton);
    SendMouse(title, QEvent::MouseMove, QPoint(50, 25), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(130, 115));
    SendMouse(title, QEvent::MouseButtonRelease, QPoint(20, 10), Qt::LeftButton, Qt::NoButton);
    SendMouse(title, QEvent::MouseMove, QPoint(70, 70), Qt::NoButton, Qt::NoButton);
    QCOMPARE(dialog.pos(), QPoint(130, 115));
}

void TestExtendDialog::otherButtonsDoNotMoveTheWindow()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.move(100, 100);
    dialog.show();
    QLabel *title = dialog.findChild<QLabel *>(QLatin1String("dialogTitle"));
    SendMouse(title, QEvent::MouseButtonPress, QPoint(20, 10), Qt::RightButton, Qt::RightButton);
    SendMouse(title, QEvent::MouseMove, QPoint(50, 25), Qt::NoButton, Qt::RightButton);
    QCOMPARE(dialog.pos(), QPoint(100, 100));
}

void TestExtendDialog::rightToLeftLayoutIsMirrored()
{
    ReversedLayout reversed;
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.setFixedSize(300, 200);
    dialog.show();
    const QWidget *title = dialog.findChild<QLabel *>(QLatin1String("dialogTitle"));
    const QWidget *close = dialog.findChild<QToolButton *>(QLatin1String("dialogClose"));
    const int closeEnd = close->mapTo(&dialog, QPoint(close->width(), 0)).x();
    QVERIFY(closeEnd < 40);
    QVERIFY(title->mapTo(&dialog, QPoint(0, 0)).x() >= closeEnd);
}

void TestExtendDialog::classIsWhatPluginsWereBuiltAgainst()
{
    QCOMPARE(sizeof(ExtendDialog), sizeof(QDialog) + sizeof(void *));
    ExtendDialog dialog(nullptr, Qt::WindowFlags(), enWidgetTypeDialog);
    QCOMPARE(dialog.metaObject()->className(), "QDialog");
}

void TestExtendDialog::lineEditIsAnOrdinaryOne()
{
    QWidget parent;
    QPointer<QLineEdit> edit = new ExtendLineEdit(&parent);
    QVERIFY(edit->parentWidget() == &parent);
    QTest::keyClicks(edit, QLatin1String("key"));
    QCOMPARE(edit->text(), QString(QLatin1String("key")));
    QCOMPARE(sizeof(ExtendLineEdit), sizeof(QLineEdit));
}

QTEST_MAIN(TestExtendDialog)
#include "tst_extenddialog.moc"
