#include "Eventually.h"

#include <DashboardLanguage.h>
#include <HostControl.h>
#include <TemporaryDirectory.h>
#include <TraceLog.h>
#include <TracePanel.h>

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolButton>
#include <QtTest>

/** The search in the trace, by keys and clicks. */
class TracePanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void TypingFindsTheFirstPlace();
    void TypingOnStaysAtAPlaceThatStillFits();
    void KeysGoThroughThePlacesAndAround();
    void ArrowsGoThroughThePlaces();
    void EveryPlaceIsMarkedAndCounted();
    void LinesThatComeLaterAreMarkedAndCounted();
    void TextThatIsNotThereIsTold();
    void SignsHaveNoSpecialMeaning();
    void EscapeEndsTheSearch();
    void SearchShowsThePanel();
    void TextsFollowTheLanguage();

private:
    QPlainTextEdit *Text() const { return m_window->findChild<QPlainTextEdit *>("traceText"); }
    QLineEdit *Search() const { return m_window->findChild<QLineEdit *>("traceSearch"); }
    QString Matches() const { return m_window->findChild<QLabel *>("traceMatches")->text(); }
    void Type(const QString &text) const { QTest::keyClicks(Search(), text); }
    /** The place that was found, as line, colon, column. */
    QString Found() const;
    /** The marked places of a line. */
    QStringList Marked(int line) const;

    QScopedPointer<TemporaryDirectory> m_directory;
    QScopedPointer<TraceLog> m_log;
    QScopedPointer<QMainWindow> m_window;
    TracePanel *m_panel = nullptr;
};

void TracePanelTest::init()
{
    m_directory.reset(new TemporaryDirectory);
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
    m_log.reset(new TraceLog(m_directory->FilePath("dashboard.log")));
    m_window.reset(new QMainWindow);
    m_panel = new TracePanel(m_log.data(), m_window.data());
    m_window->addDockWidget(Qt::BottomDockWidgetArea, m_panel);
    m_window->show();
    Text()->setPlainText("open the list\nread Home\nclose the List, list closed\nread Office");
    Text()->moveCursor(QTextCursor::Start);
}

void TracePanelTest::cleanup()
{
    m_window.reset();
    m_log.reset();
}

QString TracePanelTest::Found() const
{
    QTextCursor cursor = Text()->textCursor();
    if (!cursor.hasSelection()) {
        return QString();
    }
    cursor.setPosition(cursor.selectionStart());
    return QString("%1:%2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1);
}

QStringList TracePanelTest::Marked(int line) const
{
    QStringList marked;
    const QTextBlock block = Text()->document()->findBlockByNumber(line - 1);
    for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
        marked.append(block.text().mid(range.start, range.length));
    }
    return marked;
}

void TracePanelTest::TypingFindsTheFirstPlace()
{
    Type("home");
    QCOMPARE(Found(), QString("2:6"));
    QCOMPARE(Text()->textCursor().selectedText(), QString("Home"));
}

void TracePanelTest::TypingOnStaysAtAPlaceThatStillFits()
{
    Type("l");
    QCOMPARE(Found(), QString("1:10"));
    Type("ist");
    QCOMPARE(Found(), QString("1:10"));
    Type(",");
    QCOMPARE(Found(), QString("3:11"));
}

void TracePanelTest::KeysGoThroughThePlacesAndAround()
{
    Type("list");
    QCOMPARE(Found(), QString("1:10"));
    QTest::keyClick(Search(), Qt::Key_Return);
    QCOMPARE(Found(), QString("3:11"));
    QTest::keyClick(Search(), Qt::Key_Enter);
    QCOMPARE(Found(), QString("3:17"));
    QTest::keyClick(Search(), Qt::Key_Return);
    QCOMPARE(Found(), QString("1:10"));
    QTest::keyClick(Search(), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(Found(), QString("3:17"));
}

void TracePanelTest::ArrowsGoThroughThePlaces()
{
    QToolButton *next = m_window->findChild<QToolButton *>("traceNextButton");
    QToolButton *previous = m_window->findChild<QToolButton *>("tracePreviousButton");
    QVERIFY(!next->isEnabled() && !previous->isEnabled());
    Type("read");
    QTest::mouseClick(next, Qt::LeftButton);
    QCOMPARE(Found(), QString("4:1"));
    QTest::mouseClick(previous, Qt::LeftButton);
    QCOMPARE(Found(), QString("2:1"));
}

void TracePanelTest::EveryPlaceIsMarkedAndCounted()
{
    Type("list");
    QCOMPARE(Matches(), QString("Matches: 3"));
    QCOMPARE(Marked(1), QStringList("list"));
    QCOMPARE(Marked(3), QStringList() << "List"
                                      << "list");
    QCOMPARE(Marked(4), QStringList());
}

void TracePanelTest::LinesThatComeLaterAreMarkedAndCounted()
{
    Type("list");
    qDebug("a list of lists");
    QVERIFY(Eventually([this]() { return Matches() == "Matches: 5"; }));
    const QTextCursor added = Text()->document()->find("a list of lists");
    QCOMPARE(Marked(added.blockNumber() + 1), QStringList() << "list"
                                                            << "list");
    QCOMPARE(Found(), QString("1:10"));
}

void TracePanelTest::TextThatIsNotThereIsTold()
{
    Type("cellar");
    QCOMPARE(Matches(), QString("No matches"));
    QCOMPARE(Found(), QString());
    QVERIFY(!m_window->findChild<QToolButton *>("traceNextButton")->isEnabled());
    QTest::keyClick(Search(), Qt::Key_Return);
    QCOMPARE(Found(), QString());
}

void TracePanelTest::SignsHaveNoSpecialMeaning()
{
    Text()->setPlainText("abc\na.c (x*");
    Type("a.c (x*");
    QCOMPARE(Matches(), QString("Matches: 1"));
    QCOMPARE(Found(), QString("2:1"));
}

void TracePanelTest::EscapeEndsTheSearch()
{
    Type("list");
    QTest::keyClick(Search(), Qt::Key_Escape);
    QVERIFY(Search()->text().isEmpty() && Matches().isEmpty());
    QCOMPARE(Marked(1), QStringList());
    QVERIFY(m_panel->isVisible());
}

void TracePanelTest::SearchShowsThePanel()
{
    m_panel->hide();
    m_panel->StartSearch();
    QVERIFY(Search()->isVisible());
    QCOMPARE(m_window->focusWidget(), static_cast<QWidget *>(Search()));
}

void TracePanelTest::TextsFollowTheLanguage()
{
    Type("list");
    QVERIFY(DashboardLanguage::Apply("he"));
    m_panel->Retranslate();
    QCOMPARE(Matches(), QString::fromUtf8("תוצאות: 3"));
    QCOMPARE(Search()->placeholderText(), QString::fromUtf8("חיפוש ביומן"));
}

QTEST_MAIN(TracePanelTest)
#include "tst_tracepanel.moc"
