#include <Appearance.h>
#include <Contrast.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Row.h>
#include <TemporaryDirectory.h>
#include <WindowActivation.h>

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QtTest>

namespace
{

QImage PictureOf(QWidget *widget)
{
    widget->resize(160, 40);
    QImage picture(widget->size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(0);
    widget->render(&picture);
    return picture;
}

} // namespace

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
    void LetterOfAKeyLeavesAWordWhole_data();
    void LetterOfAKeyLeavesAWordWhole();

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
    DashboardLanguage::Apply("en");
}

void AppearanceTest::TextIsReadable_data()
{
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    QTest::addColumn<qreal>("contrast");
    Row("windows", int(QPalette::WindowText), int(QPalette::Window), 7.0);
    Row("lists", int(QPalette::Text), int(QPalette::Base), 7.0);
    Row("every other row", int(QPalette::Text), int(QPalette::AlternateBase), 7.0);
    Row("buttons", int(QPalette::ButtonText), int(QPalette::Button), 7.0);
    Row("tool tips", int(QPalette::ToolTipText), int(QPalette::ToolTipBase), 7.0);
    Row("highlights", int(QPalette::HighlightedText), int(QPalette::Highlight), 4.5);
    Row("links", int(QPalette::Link), int(QPalette::Base), 4.5);
    Row("visited links", int(QPalette::LinkVisited), int(QPalette::Base), 4.5);
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
    Row("light", int(Appearance::Light));
    Row("dark", int(Appearance::Dark));
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
    Row("system", int(Appearance::System));
    Row("light", int(Appearance::Light));
    Row("dark", int(Appearance::Dark));
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

void AppearanceTest::LetterOfAKeyLeavesAWordWhole_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("isUnderlined");
    for (int choice : {int(Appearance::System), int(Appearance::Light), int(Appearance::Dark)}) {
        const QByteArray number = QByteArray::number(choice);
        Row(("Arabic " + number).constData(), choice, "ar", QString::fromUtf8("إ&ضافة"), false);
        Row(("Hebrew " + number).constData(), choice, "he", QString::fromUtf8("ה&סרה"), true);
        Row(("English " + number).constData(), choice, "en", "&Add", true);
    }
}

void AppearanceTest::LetterOfAKeyLeavesAWordWhole()
{
    QFETCH(int, choice);
    QFETCH(QString, language);
    QFETCH(QString, caption);
    QFETCH(bool, isUnderlined);
    Appearance::Apply(Appearance::Choice(choice));
    HostControl::SetLanguageDirectory(BUILD_DIRECTORY "/share/priority-dashboard/languages");
    QVERIFY(DashboardLanguage::Apply(language));
    QPushButton button(caption);
    QString plain = caption;
    QPushButton plainButton(plain.remove('&'));
    QCOMPARE(PictureOf(&button) != PictureOf(&plainButton), isUnderlined);

    // The key works all the same.
    button.show();
    ActivateWindow(&button);
    const QSignalSpy clicks(&button, SIGNAL(clicked()));
    const QChar letter = caption.at(caption.indexOf('&') + 1);
    QTest::sendKeyEvent(QTest::Click, &button, Qt::Key(letter.toUpper().unicode()), letter, Qt::AltModifier);
    for (int i = 0; i < 100 && clicks.isEmpty(); ++i) {
        QTest::qWait(20);
    }
    QCOMPARE(clicks.size(), 1);
}

QTEST_MAIN(AppearanceTest)
#include "tst_appearance.moc"
