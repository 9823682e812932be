#ifndef ROW_H
#define ROW_H

#include <QTest>

/** A row of a test's table: values in the order of its columns. */
template <typename... Values> void Row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}

#endif
