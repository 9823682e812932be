#include <WrappedLabel.h>

#include <QApplication>
#include <QImage>
#include <QtTest>

namespace
{

const int labelHeight = 160;

bool IsInkIn(const QImage &picture, int column)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (qGray(picture.pixel(column, y)) < 160) {
            return true;
        }
    }
    return false;
}

QImage PictureOf(QLabel *label, int width)
{
    label->setFixedSize(width, labelHeight);
    QImage picture(label->size(), QImage::Format_RGB32);
    picture.fill(qRgb(255, 255, 255));
    label->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

} // namespace

class WrappedLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void RightToLeftLineIsWholeAtAnyWidth();
    void LeftToRightTextBeginsAtTheEdge();
    void RoomFollowsTheDirection();
};

void WrappedLabelTest::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void WrappedLabelTest::RightToLeftLineIsWholeAtAnyWidth()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    WrappedLabel label("label");
    label.setText(
        QString::fromUtf8("نتيجة الاستيراد: ستُضاف \u2068Guest house at the upper end of the long…\u2069. "
                          "ستُزال \u2068Company\u2069. ستُنقل ٣ من الشبكات."));
    int widths = 0;
    for (int width = 300; width < 700; ++width) {
        const QImage picture = PictureOf(&label, width);
        QVERIFY2(!IsInkIn(picture, 0), QByteArray::number(width).constData());
        // Something is drawn at all.
        widths += IsInkIn(picture, width / 2) ? 1 : 0;
    }
    QVERIFY(widths > 300);
}

void WrappedLabelTest::LeftToRightTextBeginsAtTheEdge()
{
    WrappedLabel label("label");
    QCOMPARE(label.contentsRect(), label.rect());
}

void WrappedLabelTest::RoomFollowsTheDirection()
{
    WrappedLabel label("label");
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(label.contentsRect().left() > 2);
    QCOMPARE(label.contentsRect().right(), label.rect().right());
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(label.contentsRect(), label.rect());
}

QTEST_MAIN(WrappedLabelTest)
#include "tst_wrappedlabel.moc"
