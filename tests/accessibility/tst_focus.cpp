#include "TabStops.h"

#include <Appearance.h>
#include <Row.h>
#include <Screens.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QImage>
#include <QTableWidget>
#include <QtTest>

namespace
{

const char *const screens[] = {"list",
                               "list, emptied",
                               "trace, something found",
                               "settings, priority page",
                               "add dialog",
                               "new dialog, open",
                               "settings, general page",
                               "restore dialog",
                               "restore dialog, history damaged",
                               "import dialog",
                               "connect dialog",
                               "delete question"};

QImage PictureOf(QWidget *widget)
{
    QImage picture(widget->size(), QImage::Format_RGB32);
    widget->window()->render(&picture, QPoint(),
                             QRegion(QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size())));
    return picture;
}

/** How many pixels of the pictures differ so much that one sees it. */
int Differing(const QImage &one, const QImage &other)
{
    const int visible = 24;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int difference =
                qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
            count += difference > visible ? 1 : 0;
        }
    }
    return count;
}

/** Another place for the focus than stop. */
QWidget *Elsewhere(const QList<QWidget *> &stops, QWidget *stop)
{
    foreach (QWidget *other, stops) {
        if (other != stop) {
            return other;
        }
    }
    return nullptr;
}

} // namespace

/** Wherever the keyboard is, one sees that it is there. */
class TestFocus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void focusIsSeen_data();
    void focusIsSeen();
    void focusIsSeenOnAListWithoutAChoice_data();
    void focusIsSeenOnAListWithoutAChoice();

private:
    Screens m_screens;
};

void TestFocus::initTestCase()
{
    // A caret that blinks would come and go between two pictures.
    QApplication::setCursorFlashTime(0);
}

void TestFocus::cleanup()
{
    Appearance::Apply(Appearance::System);
}

void TestFocus::focusIsSeen_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<int>("appearance");
    for (const char *screen : screens) {
        Row(QByteArray(screen).append(", light").constData(), QString(QLatin1String(screen)),
            int(Appearance::Light));
        Row(QByteArray(screen).append(", dark").constData(), QString(QLatin1String(screen)),
            int(Appearance::Dark));
    }
}

void TestFocus::focusIsSeen()
{
    // Four corners, or a line of a few letters' length.
    const int fewest = 12;
    QFETCH(QString, screen);
    QFETCH(int, appearance);
    Appearance::Apply(Appearance::Choice(appearance));
    QStringList unseen;
    m_screens.Show(screen, "en", [&unseen](QWidget *window) {
        const QList<QWidget *> stops = TabStops::Walk(window, true);
        foreach (QWidget *stop, stops) {
            QWidget *elsewhere = Elsewhere(stops, stop);
            if (!elsewhere) {
                continue;
            }
            elsewhere->setFocus(Qt::TabFocusReason);
            QApplication::processEvents();
            const QImage without = PictureOf(stop);
            stop->setFocus(Qt::TabFocusReason);
            QApplication::processEvents();
            const int differing = Differing(without, PictureOf(stop));
            if (differing < fewest) {
                unseen.append(QString::fromLatin1("%1: %2 pixels").arg(TabStops::Named(stop)).arg(differing));
            }
        }
    });
    QVERIFY2(unseen.isEmpty(), unseen.join(QLatin1String("\n    ")).toUtf8().constData());
}

void TestFocus::focusIsSeenOnAListWithoutAChoice_data()
{
    QTest::addColumn<int>("appearance");
    Row("light", int(Appearance::Light));
    Row("dark", int(Appearance::Dark));
}

void TestFocus::focusIsSeenOnAListWithoutAChoice()
{
    QFETCH(int, appearance);
    Appearance::Apply(Appearance::Choice(appearance));
    int differing = 0;
    int around = 0;
    m_screens.Show("settings, priority page", "en", [&differing, &around](QWidget *window) {
        QTableWidget *list = window->findChild<QTableWidget *>("priorityTable");
        ActivateWindow(window);
        list->setCurrentCell(-1, 0);
        window->findChild<QWidget *>("pageList")->setFocus();
        const QImage without = PictureOf(list);
        list->setFocus();
        differing = Differing(without, PictureOf(list));
        around = 2 * (list->width() + list->height()) - 4;
    });
    // The corners may be round.
    QVERIFY2(differing >= around - 8, QByteArray::number(differing).constData());
}

QTEST_MAIN(TestFocus)
#include "tst_focus.moc"
