#include "Eventually.h"

#include <QtTest>

bool Eventually(const std::function<bool()> &condition)
{
    const int stepMilliseconds = 10;
    const int steps = 1000;
    for (int i = 0; i < steps && !condition(); ++i) {
        QTest::qWait(stepMilliseconds);
    }
    return condition();
}
