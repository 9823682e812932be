#include <Appearance.h>
#include <Row.h>
#include <Tones.h>

#include <QApplication>
#include <QPalette>
#include <QtTest>

/** The colours of the main window can be read, whatever the palette is. */
class TonesTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QApplication::setPalette(QPalette()); }

    void ContrastIsThatOfTheGuidelines_data();
    void ContrastIsThatOfTheGuidelines();
    void EveryPairCanBeRead_data();
    void EveryPairCanBeRead();
    void ColourThatCanBeReadStaysAsItIs();
};

void TonesTest::ContrastIsThatOfTheGuidelines_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("ratio");
    Row("black on white", QColor(Qt::black), QColor(Qt::white), 21.0);
    Row("white on black", QColor(Qt::white), QColor(Qt::black), 21.0);
    Row("nothing", QColor(Qt::red), QColor(Qt::red), 1.0);
    Row("the least for text", QColor("#767676"), QColor(Qt::white), 4.54);
}

void TonesTest::ContrastIsThatOfTheGuidelines()
{
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    QFETCH(double, ratio);
    QVERIFY2(qAbs(double(Tones::Contrast(one, other)) - ratio) < 0.01,
             qPrintable(QString::number(double(Tones::Contrast(one, other)))));
}

void TonesTest::EveryPairCanBeRead_data()
{
    QTest::addColumn<QPalette>("palette");
    Row("light", Appearance::Colours(false));
    Row("dark", Appearance::Colours(true));
    QPalette pale(QColor("#ffd7f0"), QColor("#fff0fa"));
    pale.setColor(QPalette::Base, QColor("#fffafd"));
    pale.setColor(QPalette::Text, QColor("#c0a0b0"));
    pale.setColor(QPalette::Highlight, QColor("#ffd0e8"));
    pale.setColor(QPalette::HighlightedText, QColor("#ffffff"));
    Row("pale", pale);
    QPalette loud(Qt::black, Qt::black);
    loud.setColor(QPalette::Base, Qt::black);
    loud.setColor(QPalette::Text, Qt::yellow);
    loud.setColor(QPalette::Highlight, Qt::yellow);
    loud.setColor(QPalette::HighlightedText, Qt::black);
    Row("yellow on black", loud);
}

void TonesTest::EveryPairCanBeRead()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    const Tones tones = Tones::OfApplication();
    const QColor window = palette.color(QPalette::Window);
    for (const QColor &ground : {window, tones.base, tones.selected, tones.inUse}) {
        for (const QColor &text : {tones.text, tones.faint, tones.accent}) {
            QVERIFY2(Tones::Contrast(text, ground) >= 4.5, qPrintable(text.name() + " on " + ground.name()));
        }
        QVERIFY2(Tones::Contrast(tones.frame, ground) >= 3,
                 qPrintable(tones.frame.name() + " on " + ground.name()));
    }
    QVERIFY(Tones::Contrast(tones.onFilled, tones.filled) >= 4.5);
    for (const Tones::Trouble &trouble : {tones.warning, tones.error}) {
        QVERIFY(Tones::Contrast(trouble.text, trouble.ground) >= 4.5);
        QVERIFY(Tones::Contrast(trouble.mark, trouble.ground) >= 3);
    }
}

void TonesTest::ColourThatCanBeReadStaysAsItIs()
{
    QCOMPARE(Tones::Readable(QColor("#1b1e21"), {Qt::white}, 4.5), QColor("#1b1e21"));
}

QTEST_MAIN(TonesTest)
#include "tst_tones.moc"
