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

/** Lets values of two types be compared, which the oldest generation declares and doesn't define. */
#if QT_VERSION < 0x050000
namespace QTest
{
template <typename T1, typename T2>
bool qCompare(T1 const &actual, T2 const &expected, const char *actualText, const char *expectedText,
              const char *file, int line)
{
    return qVerify(actual == expected, actualText, expectedText, file, line);
}
} // namespace QTest
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
