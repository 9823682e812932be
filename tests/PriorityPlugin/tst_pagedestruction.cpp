#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <qprioritywidget.h>

#include <QPointer>
#include <QPushButton>
#include <QtTest>

/** One life of the page each: every function runs in a process of its own. */
class tst_PageDestruction : public QObject
{
    Q_OBJECT

public:
    tst_PageDestruction() : m_page(nullptr), m_isAnother(false) { StandInHost::Reset(m_directory.Path()); }

public slots:
    void AskForThePage()
    {
        m_askedFor = QPriorityWidget::GetInstance();
        m_isAnother = m_askedFor && m_askedFor != m_page;
    }

private slots:
    void thereIsNoPageAfterwards();
    void thereIsNoPageWithoutOneBefore();
    void pageAskedForWhileItsWidgetsGoIsAnotherAndGoesToo();
    void pageAskedForWhileItGoesIsAnotherAndGoesToo();

private:
    void DestroyAndAskDuringTheEndOf(QObject *dying);

    TemporaryDirectory m_directory;
    QPriorityWidget *m_page;
    QPointer<QPriorityWidget> m_askedFor;
    bool m_isAnother;
};

void tst_PageDestruction::thereIsNoPageAfterwards()
{
    const QPointer<QPriorityWidget> page = QPriorityWidget::GetInstance();
    QVERIFY(page);
    QCOMPARE(QPriorityWidget::GetInstance(), page.data());
    QPriorityWidget::Destroy();
    QVERIFY(!page);
    QVERIFY(!QPriorityWidget::GetInstance());
    QPriorityWidget::Destroy();
    QVERIFY(!QPriorityWidget::GetInstance());
}

void tst_PageDestruction::thereIsNoPageWithoutOneBefore()
{
    QPriorityWidget::Destroy();
    QVERIFY(!QPriorityWidget::GetInstance());
}

void tst_PageDestruction::DestroyAndAskDuringTheEndOf(QObject *dying)
{
    connect(dying, SIGNAL(destroyed()), this, SLOT(AskForThePage()));
    QPriorityWidget::Destroy();
    QVERIFY(m_isAnother);
    QVERIFY(!m_askedFor);
    QVERIFY(!QPriorityWidget::GetInstance());
    QVERIFY(QApplication::allWidgets().isEmpty());
}

void tst_PageDestruction::pageAskedForWhileItsWidgetsGoIsAnotherAndGoesToo()
{
    m_page = QPriorityWidget::GetInstance();
    DestroyAndAskDuringTheEndOf(m_page->findChild<QPushButton *>("upButton"));
}

void tst_PageDestruction::pageAskedForWhileItGoesIsAnotherAndGoesToo()
{
    m_page = QPriorityWidget::GetInstance();
    DestroyAndAskDuringTheEndOf(m_page);
}

QTEST_MAIN(tst_PageDestruction)
#include "tst_pagedestruction.moc"
