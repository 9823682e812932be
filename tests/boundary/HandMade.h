#ifndef HANDMADE_H
#define HANDMADE_H

#include "Apart.h"

#include <cstddef>
#include <typeinfo>

/**
 * A table of operations made by hand, in the layout in which compilers make them. Every entry counts its
 * calls; there are more of them than any interface has, so that a call beyond an interface's end is counted
 * too. One table for each Owner.
 */
template <typename Owner> class HandMadeTable
{
public:
    static const int EntryCount = 40;

    /** @param type  what the objects with this table are taken for by code that checks types. */
    explicit HandMadeTable(const std::type_info &type)
    {
        m_table.offsetToTop = 0;
        m_table.type = &type;
        Filler<EntryCount>::Fill(m_table.entries);
        ClearCounts();
    }

    template <typename Operation> void Set(int position, Operation operation)
    {
        m_table.entries[position - 1] = reinterpret_cast<AnyOperation>(operation);
    }

    /** What an object's first word points to. */
    void *Entries() { return m_table.entries; }

    static void ClearCounts()
    {
        for (int i = 0; i < EntryCount; ++i) {
            counts[i] = 0;
        }
    }

    /** For operations that were set: they count themselves. */
    static void Count(int position) { ++counts[position - 1]; }
    static int Calls(int position) { return counts[position - 1]; }

private:
    typedef void (*AnyOperation)();

    template <int Position> static void CountOnly(void *) { Count(Position); }

    template <int Position, typename Dummy = void> struct Filler {
        static void Fill(AnyOperation *entries)
        {
            void (*const operation)(void *) = CountOnly<Position>;
            entries[Position - 1] = reinterpret_cast<AnyOperation>(operation);
            Filler<Position - 1>::Fill(entries);
        }
    };
    template <typename Dummy> struct Filler<0, Dummy> {
        static void Fill(AnyOperation *) {}
    };

    struct {
        std::ptrdiff_t offsetToTop;
        const std::type_info *type;
        AnyOperation entries[EntryCount];
    } m_table;

    static int counts[EntryCount];
};

template <typename Owner> int HandMadeTable<Owner>::counts[HandMadeTable<Owner>::EntryCount];

/** An object that is its table and nothing else. */
struct HandMadeObject {
    void *table;
};

#endif
