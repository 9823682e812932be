#include <Appearance.h>
#include <Banner.h>
#include <DashboardLanguage.h>
#include <HostControl.h>
#include <Tones.h>

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace
{

QList<Banner::Problem> Problems(const QStringList &titles)
{
    QList<Banner::Problem> problems;
    for (const QString &title : titles) {
        Banner::Problem problem;
        problem.kind = title.toUtf8();
        problem.title = title;
        problem.text = title + " is wrong.";
        problems.append(problem);
    }
    return problems;
}

} // namespace

/** What is wrong, one problem at a time. */
class BannerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void NothingIsShownWhileNothingIsWrong();
    void WorstIsShownFirst();
    void NextOneIsShownAndThenTheFirstAgain();
    void WhatIsSeenStaysUntilOthersComeOrGo();
    void RemedyIsThatOfWhatIsShown();
    void TextCanBeReadWhenTheColoursChange();
    void TextIsInTheToolTipWhereThereIsLittleRoom();

private:
    QString Title() const { return m_banner->findChild<QLabel *>("bannerTitle")->text(); }
    QPushButton *Button(const char *name) const { return m_banner->findChild<QPushButton *>(name); }

    QScopedPointer<Banner> m_banner;
};

void BannerTest::init()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
    QVERIFY(DashboardLanguage::Apply("en"));
    m_banner.reset(new Banner);
}

void BannerTest::NothingIsShownWhileNothingIsWrong()
{
    m_banner->Show(Problems({"The list"}));
    QVERIFY(m_banner->isVisible());
    m_banner->Show({});
    QVERIFY(!m_banner->isVisible());
}

void BannerTest::WorstIsShownFirst()
{
    m_banner->Show(Problems({"The list"}));
    QCOMPARE(m_banner->findChild<QLabel *>("bannerText")->text(), QString("The list is wrong."));
    QVERIFY(!Button("bannerNextButton")->isVisible());
    m_banner->Show(Problems({"The disk", "The list"}));
    QCOMPARE(Title(), QString("The disk"));
    QCOMPARE(Button("bannerNextButton")->text(), QString::fromUtf8("1 of 2 ›"));
}

void BannerTest::NextOneIsShownAndThenTheFirstAgain()
{
    m_banner->Show(Problems({"The disk", "The list"}));
    QTest::mouseClick(Button("bannerNextButton"), Qt::LeftButton);
    QCOMPARE(Title(), QString("The list"));
    QTest::mouseClick(Button("bannerNextButton"), Qt::LeftButton);
    QCOMPARE(Title(), QString("The disk"));
}

void BannerTest::WhatIsSeenStaysUntilOthersComeOrGo()
{
    m_banner->Show(Problems({"The disk", "The list"}));
    QTest::mouseClick(Button("bannerNextButton"), Qt::LeftButton);
    m_banner->Show(Problems({"The disk", "The list"}));
    QCOMPARE(Title(), QString("The list"));
    m_banner->Show(Problems({"The key", "The list"}));
    QCOMPARE(Title(), QString("The key"));
}

void BannerTest::RemedyIsThatOfWhatIsShown()
{
    QAction mend(QString("Mend it"), nullptr);
    int mended = 0;
    connect(&mend, &QAction::triggered, this, [&mended] { ++mended; });
    QList<Banner::Problem> problems = Problems({"The disk", "The list"});
    problems[1].remedy = &mend;
    m_banner->Show(problems);
    QVERIFY(!Button("bannerRemedyButton")->isVisible());
    QTest::mouseClick(Button("bannerNextButton"), Qt::LeftButton);
    QCOMPARE(Button("bannerRemedyButton")->text(), QString("Mend it"));
    QTest::mouseClick(Button("bannerRemedyButton"), Qt::LeftButton);
    QCOMPARE(mended, 1);
}

void BannerTest::TextCanBeReadWhenTheColoursChange()
{
    m_banner->Show(Problems({"The list"}));
    for (const bool isDark : {true, false}) {
        QApplication::setPalette(Appearance::Colours(isDark));
        const QColor ground = Tones::OfApplication().warning.ground;
        for (const char *name : {"bannerTitle", "bannerText"}) {
            const QLabel *label = m_banner->findChild<QLabel *>(name);
            // Newer Qt tells the widgets a moment later.
            QTRY_VERIFY(Tones::Contrast(label->palette().color(QPalette::WindowText), ground) >= 4.5);
        }
    }
}

void BannerTest::TextIsInTheToolTipWhereThereIsLittleRoom()
{
    m_banner->Show(Problems({"The list"}));
    QLabel *text = m_banner->findChild<QLabel *>("bannerText");
    QVERIFY(text->isVisible());
    m_banner->SetBrief(true);
    QVERIFY(!text->isVisible());
    QCOMPARE(m_banner->findChild<QLabel *>("bannerTitle")->toolTip(), text->text());
    m_banner->SetBrief(false);
    QVERIFY(text->isVisible());
}

QTEST_MAIN(BannerTest)
#include "tst_banner.moc"
