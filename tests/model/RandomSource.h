#ifndef RANDOMSOURCE_H
#define RANDOMSOURCE_H

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

/** The same numbers from the same seed with every standard library, so that a run can be replayed anywhere.
 */
class RandomSource
{
public:
    explicit RandomSource(std::uint64_t seed) : m_engine(seed) {}

    /** 0 to limit - 1. */
    int Below(int limit) { return int(m_engine() % std::uint64_t(limit)); }
    bool OneIn(int chances) { return Below(chances) == 0; }

    template <typename Value> const Value &OneOf(const std::vector<Value> &values)
    {
        return values[std::size_t(Below(int(values.size())))];
    }

private:
    std::mt19937_64 m_engine;
};

#endif
