#ifndef TABLE_H
#define TABLE_H

#include "Apart.h"

#include <cstring>

/**
 * The operation at a position in the table of an object's part. Positions count from one over all entries;
 * the first two are the destructor's. The part itself is the operation's first argument.
 */
template <typename Operation> Operation At(void *part, int position)
{
    void *const *table = *static_cast<void *const *const *>(part);
    Operation operation = nullptr;
    std::memcpy(&operation, table + position - 1, sizeof(operation));
    return operation;
}

/** The part that a class's second base is, when its first base is part and has no fields. */
inline void *NextPart(void *part)
{
    return static_cast<void **>(part) + 1;
}

const int completeDestructor = 1;
const int deletingDestructor = 2;
typedef void (*Destructor)(void *part);

/* Operations by their shape. */
typedef void (*PlainOperation)(void *part);
typedef int (*NumberOperation)(void *part);
typedef bool (*AnswerOperation)(void *part);

#endif
