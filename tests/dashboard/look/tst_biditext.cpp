#include "Lists.h"

#include <BidiText.h>
#include <DashboardLanguage.h>
#include <DashboardText.h>
#include <HostControl.h>
#include <ListChangeText.h>
#include <Row.h>

#include <QTextLayout>
#include <QtTest>

#include <algorithm>

namespace
{

/** Where the signs of a part of a text that is drawn are: the leftmost and the rightmost. */
struct Reach {
    qreal left;
    qreal right;
};

Reach ReachOf(const QTextLayout &layout, int from, int length)
{
    QList<qreal> places;
    for (const QGlyphRun &run : layout.glyphRuns(from, length)) {
        for (const QPointF &place : run.positions()) {
            places.append(place.x());
        }
    }
    Reach reach = {0, 0};
    if (!places.isEmpty()) {
        reach.left = *std::min_element(places.constBegin(), places.constEnd());
        reach.right = *std::max_element(places.constBegin(), places.constEnd());
    }
    return reach;
}

/** Whether what stands before and behind name in text is drawn before and behind it. */
bool IsInItsPlace(const QString &name, const QString &text)
{
    QTextOption option;
    option.setTextDirection(QApplication::layoutDirection());
    QTextLayout layout(text);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();

    const int begin = static_cast<int>(text.indexOf(name));
    const int end = begin + static_cast<int>(name.size());
    const Reach before = ReachOf(layout, 0, begin);
    const Reach itself = ReachOf(layout, begin, end - begin);
    const Reach behind = ReachOf(layout, end, static_cast<int>(text.size()) - end);
    return QApplication::layoutDirection() == Qt::LeftToRight
               ? before.right <= itself.left && itself.right <= behind.left
               : before.left >= itself.right && itself.left >= behind.right;
}

} // namespace

/** Names of networks among texts of the program, which may read in the other direction. */
class BidiTextTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void NameIsSetApartWhereAnythingReadsFromTheRight_data();
    void NameIsSetApartWhereAnythingReadsFromTheRight();
    void WhatFollowsANameStandsBehindIt_data();
    void WhatFollowsANameStandsBehindIt();
};

void BidiTextTest::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
}

void BidiTextTest::NameIsSetApartWhereAnythingReadsFromTheRight_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isSetApart");
    const QString hebrew = QString::fromUtf8("בית");
    Row("Latin in Latin", int(Qt::LeftToRight), "Home (2)", false);
    Row("Hebrew in Latin", int(Qt::LeftToRight), hebrew, true);
    Row("Hebrew behind Latin in Latin", int(Qt::LeftToRight), "Home " + hebrew, true);
    Row("a script of later days", int(Qt::LeftToRight), QString::fromUtf8("𞤀𞤣𞤤𞤢𞤥"), true);
    Row("Latin in Hebrew", int(Qt::RightToLeft), "Home (2)", true);
    Row("Hebrew in Hebrew", int(Qt::RightToLeft), hebrew, true);
}

void BidiTextTest::NameIsSetApartWhereAnythingReadsFromTheRight()
{
    QFETCH(int, direction);
    QFETCH(QString, name);
    QFETCH(bool, isSetApart);
    QApplication::setLayoutDirection(static_cast<Qt::LayoutDirection>(direction));
    QCOMPARE(InOwnDirection(name), isSetApart ? QChar(0x2068) + name + QChar(0x2069) : name);
}

void BidiTextTest::WhatFollowsANameStandsBehindIt_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    const char *const names[] = {"Home", "Home (2)",        "42",       "שכן",      "בית 2",
                                 "بيت",  "شبكة المنزل (2)", "Café בית", "בית Café", "Büro 5 G"};
    for (const QString &language : HostControl::LanguageNames()) {
        for (const char *name : names) {
            Row((QByteArray(name) + " in " + language.toLatin1()).constData(), language,
                QString::fromUtf8(name));
        }
    }
}

void BidiTextTest::WhatFollowsANameStandsBehindIt()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    QVERIFY(DashboardLanguage::Apply(language));
    const QList<PriorityList> none;
    const QList<PriorityList> one = Listed(name);
    const QList<PriorityList> two = one + Listed(QString::fromUtf8("מרתף"));
    const QString moment = ListChangeText::Moment(QDateTime(QDate(2026, 11, 21), QTime(20, 44)));
    const QStringList texts = {
        DashboardText("IDS_LAST_CHANGE").arg(ListChangeText::Describe(none, one), moment),
        DashboardText("IDS_LAST_CHANGE").arg(ListChangeText::Describe(one, none), moment),
        DashboardText("IDS_IMPORT_SUMMARY").arg(ListChangeText::Announce(one, Listed("1, 2, 3"))),
        DashboardText("IDS_IMPORT_UNKNOWN").arg(ListChangeText::Names(two)),
        DashboardText("IDS_USE_LOWER").arg(ListChangeText::Name(one.first()))};
    for (const QString &text : texts) {
        QVERIFY2(IsInItsPlace(name, text), qPrintable(text));
    }
}

QTEST_MAIN(BidiTextTest)
#include "tst_biditext.moc"
