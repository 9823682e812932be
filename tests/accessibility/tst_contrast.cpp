#include <Appearance.h>
#include <Contrast.h>
#include <Row.h>
#include <Screens.h>

#include <QHash>
#include <QImage>
#include <QListWidget>
#include <QPainter>
#include <QtTest>

namespace
{

QImage PictureOf(QWidget *widget)
{
    // Large, so that the strokes of letters have a colour of their own and not only edges.
    const int scale = 4;
    QImage picture(widget->size() * scale, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    widget->render(&painter);
    return picture;
}

/** The contrast between what fills most of an area of a picture and what stands out most on it. */
qreal StrongestContrast(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    QRgb ground = 0;
    foreach (QRgb colour, counts.keys()) {
        ground = counts.value(colour) > counts.value(ground) ? colour : ground;
    }
    qreal strongest = 1;
    foreach (QRgb colour, counts.keys()) {
        strongest = qMax(strongest, Contrast::Between(QColor(colour), QColor(ground)));
    }
    return strongest;
}

/** The part of a row of the list in which there is one text. */
struct Part {
    const char *name;
    /** From the left; negative: from the right. */
    int left;
    int width;
    /** Lower half of the row only. */
    bool isBelow;
};

const Part parts[] = {{"place", 10, 28, false}, {"kind of network", 86, 60, true}, {"state", -60, 40, false}};

QImage PartOf(const QImage &picture, const QRect &row, const Part &part)
{
    const int scale = 4;
    const int left = part.left < 0 ? row.right() + part.left : row.left() + part.left;
    const int top = part.isBelow ? row.center().y() + 3 : row.center().y() - 6;
    return picture.copy(left * scale, top * scale, part.width * scale, 12 * scale);
}

} // namespace

/** The colours that the dashboard mixes itself, as they come out on its screens. */
class TestContrast : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void overviewIsReadable_data();
    void overviewIsReadable();

private:
    Screens m_screens;
};

void TestContrast::cleanup()
{
    Appearance::Apply(Appearance::System);
}

void TestContrast::overviewIsReadable_data()
{
    QTest::addColumn<int>("appearance");
    Row("light", int(Appearance::Light));
    Row("dark", int(Appearance::Dark));
}

void TestContrast::overviewIsReadable()
{
    const qreal least = 4.5;
    QFETCH(int, appearance);
    Appearance::Apply(Appearance::Choice(appearance));
    QStringList faint;
    int rows = 0;
    m_screens.Show("list", "en", [&faint, &rows, least](QWidget *window) {
        QListWidget *list = window->findChild<QListWidget *>("overviewList");
        const QImage picture = PictureOf(list->viewport());
        for (; rows < list->count() &&
               list->viewport()->rect().contains(list->visualItemRect(list->item(rows)));
             ++rows) {
            for (const Part &part : parts) {
                const qreal found =
                    StrongestContrast(PartOf(picture, list->visualItemRect(list->item(rows)), part));
                if (found < least) {
                    faint.append(QString("row %1, %2: %3").arg(rows).arg(part.name).arg(found));
                }
            }
        }
    });
    // The first is in use, the second out of range, the third in range.
    QVERIFY(rows >= 3);
    QVERIFY2(faint.isEmpty(), faint.join(QLatin1String("\n    ")).toUtf8().constData());
}

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
