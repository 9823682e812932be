#include <BidiText.h>

#include <QtTest>

/** Names of networks among texts of the program, which may read in the other direction. */
class BidiTextTest : public QObject
{
    Q_OBJECT

private slots:
    void NameIsEmbeddedWhereTheTextReadsTheOtherWay_data();
    void NameIsEmbeddedWhereTheTextReadsTheOtherWay();
};

void BidiTextTest::NameIsEmbeddedWhereTheTextReadsTheOtherWay_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const QString hebrew = QString::fromUtf8("בית");
    const QString leftToRightEmbedding = QChar(0x202a);
    const QString rightToLeftEmbedding = QChar(0x202b);
    const QString end = QChar(0x202c);
    QTest::newRow("Latin in Latin") << static_cast<int>(Qt::LeftToRight) << "Home (2)"
                                    << "Home (2)";
    QTest::newRow("Hebrew in Latin") << static_cast<int>(Qt::LeftToRight) << hebrew
                                     << rightToLeftEmbedding + hebrew + end;
    QTest::newRow("Latin in Hebrew") << static_cast<int>(Qt::RightToLeft) << "Home (2)"
                                     << leftToRightEmbedding + "Home (2)" + end;
    QTest::newRow("Hebrew in Hebrew") << static_cast<int>(Qt::RightToLeft) << hebrew << hebrew;
}

void BidiTextTest::NameIsEmbeddedWhereTheTextReadsTheOtherWay()
{
    QFETCH(int, direction);
    QFETCH(QString, name);
    QApplication::setLayoutDirection(static_cast<Qt::LayoutDirection>(direction));
    QTEST(InOwnDirection(name), "text");
}

QTEST_MAIN(BidiTextTest)
#include "tst_biditext.moc"
