#include <CommonUtils.h>
#include <Contrast.h>
#include <HostControl.h>
#include <Row.h>
#include <Startup.h>

#include <QLabel>
#include <QTableWidget>
#include <QtTest>

namespace
{

class EmptyContainer : public IPluginContainer
{
public:
    QObject *GetPluginObject(const QString &, int) override { return nullptr; }
};

QPalette DarkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    return palette;
}

} // namespace

class TestHostControl : public QObject
{
    Q_OBJECT

private slots:
    void containerIsHandedOutUntilItIsTakenBack();
    void libraryPathHasNoTrailingSeparator_data();
    void libraryPathHasNoTrailingSeparator();
    void emptyLibraryPathIsTheDefaultAgain();
    void arabicAndHebrewReadRightToLeft_data();
    void arabicAndHebrewReadRightToLeft();
    void selectedRowsKeepTextReadable_data();
    void selectedRowsKeepTextReadable();
    void selectedRowsDifferFromOthers_data();
    void selectedRowsDifferFromOthers();
};

void TestHostControl::containerIsHandedOutUntilItIsTakenBack()
{
    EmptyContainer container;
    HostControl::SetPluginContainer(&container);
    QVERIFY(Startup::GetPluginContainer() == &container);
    HostControl::SetPluginContainer(nullptr);
    QVERIFY(!Startup::GetPluginContainer());
}

void TestHostControl::libraryPathHasNoTrailingSeparator_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("path");
    Row("none", "/opt/dashboard", "/opt/dashboard");
    Row("one", "/opt/dashboard/", "/opt/dashboard");
    Row("two", "/opt/dashboard//", "/opt/dashboard");
    Row("blank and accent", QString::fromUtf8("/opt/tableau réseau/"),
        QString::fromUtf8("/opt/tableau réseau"));
    Row("root", "/", "");
}

void TestHostControl::libraryPathHasNoTrailingSeparator()
{
    QFETCH(QString, given);
    QFETCH(QString, path);
    HostControl::SetPluginLibraryPath(given);
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), path);
}

void TestHostControl::emptyLibraryPathIsTheDefaultAgain()
{
    HostControl::SetPluginLibraryPath(QLatin1String("/opt/dashboard"));
    HostControl::SetPluginLibraryPath(QString());
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), QString(QLatin1String(BUILD_DIRECTORY)));
}

void TestHostControl::arabicAndHebrewReadRightToLeft_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("rightToLeft");
    Row("ar", "ar", true);
    Row("he", "he", true);
    Row("en", "en", false);
    Row("AR", "AR", false);
    Row("ar_EG", "ar_EG", false);
    Row("empty", "", false);
}

void TestHostControl::arabicAndHebrewReadRightToLeft()
{
    QFETCH(QString, language);
    QFETCH(bool, rightToLeft);
    QCOMPARE(HostControl::IsRightToLeft(language), rightToLeft);
}

void TestHostControl::selectedRowsKeepTextReadable_data()
{
    QTest::addColumn<QPalette>("palette");
    QPalette navy(Qt::lightGray);
    navy.setColor(QPalette::Base, Qt::white);
    navy.setColor(QPalette::Text, Qt::black);
    navy.setColor(QPalette::Highlight, QColor(0, 0, 0x80));
    Row("style's own", QApplication::style()->standardPalette());
    Row("light with a dark highlight", navy);
    Row("dark", DarkPalette());
}

void TestHostControl::selectedRowsKeepTextReadable()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    HostControl::ApplyLook();

    QTableWidget table(1, 1);
    QLabel *name = new QLabel(QLatin1String("name"));
    table.setCellWidget(0, 0, name);
    table.ensurePolished();
    name->ensurePolished();
    const QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive};
    for (QPalette::ColorGroup group : groups) {
        const QColor highlight = table.palette().color(group, QPalette::Highlight);
        const QColor plain = name->palette().color(group, QPalette::WindowText);
        const QColor highlighted = table.palette().color(group, QPalette::HighlightedText);
        QVERIFY2(Contrast::Between(highlight, plain) >= 4.5, qPrintable(highlight.name() + plain.name()));
        QVERIFY2(Contrast::Between(highlight, highlighted) >= 4.5,
                 qPrintable(highlight.name() + highlighted.name()));
    }
}

void TestHostControl::selectedRowsDifferFromOthers_data()
{
    selectedRowsKeepTextReadable_data();
}

void TestHostControl::selectedRowsDifferFromOthers()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    HostControl::ApplyLook();

    QTableWidget table(2, 1);
    table.setShowGrid(false);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setCurrentCell(0, 0);
    table.resize(300, 200);
    QImage picture(table.size(), QImage::Format_RGB32);
    table.render(&picture);
    const QPoint offset = table.viewport()->mapTo(&table, QPoint(0, 0));
    const QColor selected = picture.pixel(offset + table.visualRect(table.model()->index(0, 0)).center());
    const QColor other = picture.pixel(offset + table.visualRect(table.model()->index(1, 0)).center());
    QVERIFY2(Contrast::Between(selected, other) > 1.2,
             qPrintable(selected.name() + QLatin1Char(' ') + other.name()));
}

QTEST_MAIN(TestHostControl)
#include "tst_hostcontrol.moc"
