#ifndef TOOLKITTEST_H
#define TOOLKITTEST_H

/*
 * What the toolkit's test library spells differently from one generation to the next.
 */

#include <QCoreApplication>
#include <QtTest>

/** Ends the running test function, and prints why. */
#if QT_VERSION >= 0x050000
#define SKIP_TEST(reason) QSKIP(reason)
#else
#define SKIP_TEST(reason) QSKIP(reason, SkipSingle)
#endif

/** The program of a test that has no windows. */
#if QT_VERSION < 0x050000
#define QTEST_GUILESS_MAIN(TestClass)                                                                        \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        QCoreApplication application(argc, argv);                                                            \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
#endif

#endif
