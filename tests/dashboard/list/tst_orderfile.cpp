#include "Lists.h"

#include <DashboardLanguage.h>
#include <FileFaultText.h>
#include <HostControl.h>
#include <OrderFile.h>
#include <Row.h>

#include <QtTest>

class OrderFileTest : public QObject
{
    Q_OBJECT

private slots:
    void DocumentIsAsDocumented();
    void EmptyListIsADocumentToo();
    void AnyNameComesBack_data();
    void AnyNameComesBack();
    void WhatXmlCannotCarryIsReplaced();
    void OtherWritersAreUnderstood_data();
    void OtherWritersAreUnderstood();
    void FaultIsNamedWithItsLine_data();
    void FaultIsNamedWithItsLine();
};

void OrderFileTest::DocumentIsAsDocumented()
{
    QCOMPARE(OrderFile::Document(Listed("HomeNet, Mobile/2")),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<zeltdoc type=\"profile\">\n"
                        "    <profile>\n"
                        "        <item name=\"HomeNet\" type=\"1\"/>\n"
                        "        <item name=\"Mobile\" type=\"2\"/>\n"
                        "    </profile>\n"
                        "</zeltdoc>\n"));
}

void OrderFileTest::EmptyListIsADocumentToo()
{
    QList<PriorityList> entries;
    QCOMPARE(OrderFile::Parse(OrderFile::Document(entries), &entries).kind, FileFault::None);
    QVERIFY(entries.isEmpty());
}

void OrderFileTest::AnyNameComesBack_data()
{
    QTest::addColumn<QString>("name");
    Row("mark-up", "<a & \"b\" 'c'>");
    Row("blanks at both ends", "  x ");
    Row("line break and tab", "a\nb\tc\r");
    Row("empty", "");
    Row("other scripts", QString::fromUtf8("Café مقهى 咖啡 😀"));
}

void OrderFileTest::AnyNameComesBack()
{
    QFETCH(QString, name);
    QList<PriorityList> written = Listed("x");
    written.first().name = name;
    QList<PriorityList> entries;
    QCOMPARE(OrderFile::Parse(OrderFile::Document(written), &entries).kind, FileFault::None);
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().name, name);
    QCOMPARE(entries.first().type, QString("1"));
}

void OrderFileTest::WhatXmlCannotCarryIsReplaced()
{
    QList<PriorityList> written = Listed("x");
    written.first().name = QString("a") + QChar(0x01) + QChar(0xd800) + QChar(0xffff) + "b";
    QList<PriorityList> entries;
    QCOMPARE(OrderFile::Parse(OrderFile::Document(written), &entries).kind, FileFault::None);
    QCOMPARE(entries.first().name, "a" + QString(3, QChar(QChar::ReplacementCharacter)) + "b");
}

void OrderFileTest::OtherWritersAreUnderstood_data()
{
    QTest::addColumn<QByteArray>("bytes");
    Row("items directly below the root",
        QByteArray("<zeltdoc><item name=\"A\" type=\"1\"/><item name=\"B\" type=\"2\"/></zeltdoc>"));
    Row("further attributes, comments and blanks",
        QByteArray("<!-- mine -->\n<zeltdoc type=\"profile\" by=\"me\">\n <profile> <item note=\"x\" "
                   "name=\"A\" type=\"1\"></item>\n<!-- and --><item type=\"2\" "
                   "name=\"B\"/></profile></zeltdoc>\n\n"));
    Row("another encoding", QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"
                                       "<zeltdoc><item name=\"A\" type=\"1\"/><item "
                                       "name=\"B\" type=\"2\"/></zeltdoc>"));
}

void OrderFileTest::OtherWritersAreUnderstood()
{
    QFETCH(QByteArray, bytes);
    QList<PriorityList> entries;
    const FileFault fault = OrderFile::Parse(bytes, &entries);
    QCOMPARE(fault.kind, FileFault::None);
    QCOMPARE(AsText(entries), QString("A, B/2"));
}

void OrderFileTest::FaultIsNamedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("told");
    Row("empty file", QByteArray(), "Line 1: this is not well-formed XML");
    Row("no XML", QByteArray("Home\nOffice\n"), "Line 1: ");
    Row("cut off", QByteArray("<zeltdoc>\n<profile>\n<item name=\"A\" ty"),
        "Line 3: this is not well-formed XML");
    Row("mismatched end", QByteArray("<zeltdoc>\n<profile>\n</zeltdoc>"), "Line 3: ");
    Row("something behind the end", QByteArray("<zeltdoc/>\n<zeltdoc/>"), "Line 2: ");
    Row("other root", QByteArray("<wlanprofiles/>"),
        QString::fromUtf8("Line 1: the element “wlanprofiles” is not allowed here"));
    Row("other element", QByteArray("<zeltdoc>\n<profile>\n<entry/></profile></zeltdoc>"),
        QString::fromUtf8("Line 3: the element “entry” is not allowed here"));
    Row("other element below the root", QByteArray("<zeltdoc>\n<list/></zeltdoc>"),
        QString::fromUtf8("Line 2: the element “list”"));
    Row("element in an item", QByteArray("<zeltdoc>\n<item name=\"A\" type=\"1\"><key/></item></zeltdoc>"),
        QString::fromUtf8("Line 2: the element “key”"));
    Row("text", QByteArray("<zeltdoc>\n<profile>Home</profile></zeltdoc>"),
        "Line 2: text is not allowed here");
    Row("no name", QByteArray("<zeltdoc>\n\n<item type=\"1\"/></zeltdoc>"),
        QString::fromUtf8("Line 3: the attribute “name” is missing"));
    Row("no type", QByteArray("<zeltdoc>\n<item name=\"A\"/></zeltdoc>"),
        QString::fromUtf8("Line 2: the attribute “type” is missing"));
    Row("declaration with entities",
        QByteArray("<!DOCTYPE zeltdoc [\n<!ENTITY a \"A\">\n]>\n<zeltdoc><item name=\"&a;\" "
                   "type=\"1\"/></zeltdoc>"),
        "Line 3: a document type declaration");
    Row("undeclared entity", QByteArray("<zeltdoc>\n<item name=\"&a;\" type=\"1\"/></zeltdoc>"), "Line 2: ");
    Row("wrong encoding", QByteArray("<zeltdoc>\n<item name=\"\xff\xfe\" type=\"1\"/></zeltdoc>"),
        "Line 2: ");
}

void OrderFileTest::FaultIsNamedWithItsLine()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
    QFETCH(QByteArray, bytes);
    QFETCH(QString, told);
    QList<PriorityList> entries = Listed("kept");
    const FileFault fault = OrderFile::Parse(bytes, &entries);
    QVERIFY(fault.kind != FileFault::None);
    QVERIFY2(FileFaultText(fault).startsWith(told), qPrintable(FileFaultText(fault)));
    QCOMPARE(AsText(entries), QString("kept"));
}

QTEST_MAIN(OrderFileTest)
#include "tst_orderfile.moc"
