#include <Appearance.h>
#include <Contrast.h>
#include <TemporaryDirectory.h>

#include <QApplication>
#include <QStyle>
#include <QtTest>

class AppearanceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void TextIsReadable_data();
    void TextIsReadable();
    void ChosenRowsAreReadable_data();
    void ChosenRowsAreReadable();
    void DarkIsDarkAndLightIsLight();
    void SystemColoursComeBack();
    void ChoiceIsKept_data();
    void ChoiceIsKept();
    void UnknownChoiceIsTheSystems();

private:
    QScopedPointer<TemporaryDirectory> m_directory;
};

void AppearanceTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    qputenv("XDG_DATA_HOME", m_directory->Path().toLocal8Bit());
}

void AppearanceTest::cleanup()
{
    Appearance::Apply(Appearance::System);
}

void AppearanceTest::TextIsReadable_data()
{
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    QTest::addColumn<qreal>("contrast");
    QTest::newRow("windows") << int(QPalette::WindowText) << int(QPalette::Window) << 7.0;
    QTest::newRow("lists") << int(QPalette::Text) << int(QPalette::Base) << 7.0;
    QTest::newRow("every other row") << int(QPalette::Text) << int(QPalette::AlternateBase) << 7.0;
    QTest::newRow("buttons") << int(QPalette::ButtonText) << int(QPalette::Button) << 7.0;
    QTest::newRow("tool tips") << int(QPalette::ToolTipText) << int(QPalette::ToolTipBase) << 7.0;
    QTest::newRow("highlights") << int(QPalette::HighlightedText) << int(QPalette::Highlight) << 4.5;
    QTest::newRow("links") << int(QPalette::Link) << int(QPalette::Base) << 4.5;
    QTest::newRow("visited links") << int(QPalette::LinkVisited) << int(QPalette::Base) << 4.5;
}

void AppearanceTest::TextIsReadable()
{
    QFETCH(int, text);
    QFETCH(int, ground);
    QFETCH(qreal, contrast);
    for (int isDark = 0; isDark < 2; ++isDark) {
        const QPalette palette = Appearance::Colours(isDark);
        for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            const qreal found = Contrast::Between(palette.color(group, QPalette::ColorRole(text)),
                                                  palette.color(group, QPalette::ColorRole(ground)));
            QVERIFY2(found >= contrast, qPrintable(QString("%1, dark: %2").arg(found).arg(isDark)));
        }
    }
}

void AppearanceTest::ChosenRowsAreReadable_data()
{
    QTest::addColumn<int>("choice");
    QTest::newRow("light") << int(Appearance::Light);
    QTest::newRow("dark") << int(Appearance::Dark);
}

void AppearanceTest::ChosenRowsAreReadable()
{
    QFETCH(int, choice);
    Appearance::Apply(Appearance::Choice(choice));
    const QPalette lists = QApplication::palette("QAbstractItemView");
    QVERIFY(Contrast::Between(lists.color(QPalette::Text), lists.color(QPalette::Highlight)) >= 4.5);
    QVERIFY(Contrast::Between(lists.color(QPalette::HighlightedText), lists.color(QPalette::Highlight)) >=
            4.5);
}

void AppearanceTest::DarkIsDarkAndLightIsLight()
{
    Appearance::Apply(Appearance::Dark);
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 64);
    Appearance::Apply(Appearance::Light);
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 192);
}

void AppearanceTest::SystemColoursComeBack()
{
    Appearance::Apply(Appearance::System);
    const QPalette palette = QApplication::palette();
    const QString style = QApplication::style()->objectName();
    Appearance::Apply(Appearance::Dark);
    Appearance::Apply(Appearance::System);
    QCOMPARE(QApplication::palette(), palette);
    QCOMPARE(QApplication::style()->objectName(), style);
}

void AppearanceTest::ChoiceIsKept_data()
{
    QTest::addColumn<int>("choice");
    QTest::newRow("system") << int(Appearance::System);
    QTest::newRow("light") << int(Appearance::Light);
    QTest::newRow("dark") << int(Appearance::Dark);
}

void AppearanceTest::ChoiceIsKept()
{
    QFETCH(int, choice);
    Appearance::Store(Appearance::Choice(choice));
    QCOMPARE(int(Appearance::Stored()), choice);
}

void AppearanceTest::UnknownChoiceIsTheSystems()
{
    QCOMPARE(int(Appearance::Stored()), int(Appearance::System));
    m_directory->Write("priority-dashboard/dashboard.ini", "[window]\nappearance=striped\n");
    QCOMPARE(int(Appearance::Stored()), int(Appearance::System));
}

QTEST_MAIN(AppearanceTest)
#include "tst_appearance.moc"
