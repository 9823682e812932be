#include <FunctonTrick.h>
#include <TextPattern.h>
#include <TraceCapture.h>

#include <QtTest>

#include <cstdlib>
#include <ctime>

class tst_Tracer : public QObject
{
    Q_OBJECT

private slots:
    void entryAndExitLines();
    void emptyDetailLeavesOneTrailingBlank();
    void detailIsFormatted();
    void namesAreWrittenInTheLocalEncoding();
    void earlyReturnStillWritesTheExitLine();
    void timeOfDayHasMilliseconds();
    void timeOfDayGoesOn();
    void timeOfDayFollowsTheTimeZone();
    void percentSignsInNamesStay();
    void sharedLines();
};

void tst_Tracer::entryAndExitLines()
{
    TraceCapture trace;
    {
        CFunctonTrick trick("a/b.cpp", "Work", "");
        QCOMPARE(trace.Normalised(), QStringList() << "TIME: a/b.cpp: Work: Entered ");
    }
    QCOMPARE(trace.Normalised(), QStringList() << "TIME: a/b.cpp: Work: Entered "
                                               << "TIME: a/b.cpp: Work: Exit");
}

void tst_Tracer::emptyDetailLeavesOneTrailingBlank()
{
    TraceCapture trace;
    CFunctonTrick trick("s", "f", "");
    QVERIFY(trace.Lines().first().endsWith(": Entered "));
    QVERIFY(!trace.Lines().first().endsWith("  "));
}

void tst_Tracer::detailIsFormatted()
{
    TraceCapture trace;
    const QString name = QString::fromUtf8("Café");
    CFunctonTrick trick("s", "f", ",strIcon:%s,strName:%s,%d", "wifi.png", name.toUtf8().constData(), 7);
    QCOMPARE(trace.Normalised().first(),
             QString::fromUtf8("TIME: s: f: Entered ,strIcon:wifi.png,strName:Café,7"));
}

void tst_Tracer::namesAreWrittenInTheLocalEncoding()
{
    TraceCapture trace;
    const QString path = QString::fromUtf8("Quellen/Größe.cpp");
    const QString function = QString::fromUtf8("数据");
    {
        CFunctonTrick trick(path, function, "");
    }
    QCOMPARE(trace.Normalised(), QStringList() << "TIME: " + path + ": " + function + ": Entered "
                                               << "TIME: " + path + ": " + function + ": Exit");
}

static int ReturnEarly(bool early)
{
    CFunctonTrick trick("s", "ReturnEarly", "");
    if (early) {
        return 1;
    }
    return 2;
}

void tst_Tracer::earlyReturnStillWritesTheExitLine()
{
    TraceCapture trace;
    QCOMPARE(ReturnEarly(true), 1);
    QCOMPARE(trace.Normalised().last(), QString("TIME: s: ReturnEarly: Exit"));
}

void tst_Tracer::timeOfDayHasMilliseconds()
{
    const QString time = QString::fromLatin1(TraceLine::CurrentTime());
    QVERIFY2(TextPattern::Fits(time, "([01]\\d|2[0-3]):[0-5]\\d:[0-5]\\d:\\d\\d\\d"), qPrintable(time));
}

void tst_Tracer::timeOfDayGoesOn()
{
    const QString format = "hh:mm:ss:zzz";
    for (int second = 0; second < 3; ++second) {
        const QString before = QTime::currentTime().toString(format);
        const QString time = QString::fromLatin1(TraceLine::CurrentTime());
        const QString after = QTime::currentTime().toString(format);
        // Nothing can be said while midnight passes.
        if (before <= after) {
            QVERIFY2(before <= time && time <= after, qPrintable(time));
        }
        QTest::qSleep(600);
    }
}

void tst_Tracer::timeOfDayFollowsTheTimeZone()
{
    const QByteArray before = qgetenv("TZ");
    const char *const zones[] = {"AAA0", "BBB-5:30"};
    QStringList minutes;
    for (int i = 0; i < 4; ++i) {
        qputenv("TZ", zones[i % 2]);
        tzset();
        minutes << QString::fromLatin1(TraceLine::CurrentTime()).mid(3, 2);
    }
    if (before.isNull()) {
        unsetenv("TZ");
    } else {
        qputenv("TZ", before);
    }
    tzset();
    // The zones are half an hour apart, whichever minute it is; all of this takes less than one.
    for (int i = 1; i < 4; ++i) {
        const int apart = qAbs(minutes.at(i).toInt() - minutes.at(i - 1).toInt());
        QVERIFY2(apart >= 29 && apart <= 31, qPrintable(minutes.join(" ")));
    }
}

void tst_Tracer::percentSignsInNamesStay()
{
    TraceCapture trace;
    CFunctonTrick trick("%s", "%d", "%s", "100 %n");
    QCOMPARE(trace.Normalised().first(), QString("TIME: %s: %d: Entered 100 %n"));
}

void tst_Tracer::sharedLines()
{
    TraceCapture trace;
    TraceLine::Called("p.cpp", "f");
    TraceLine::InitCalled("p.cpp", "f");
    TraceLine::Exited("p.cpp", "f");
    TraceLine::ArgumentIsNull("p.cpp", "f", 142);
    QCOMPARE(trace.Normalised(), QStringList() << "p.cpp: f called"
                                               << "p.cpp: f: called"
                                               << "p.cpp: f exit"
                                               << "Arg is NULL: TIME: p.cpp: f 142");
}

QTEST_MAIN(tst_Tracer)
#include "tst_tracer.moc"
