#ifndef TAVIK_TESTS_STORM_RANDOM_H
#define TAVIK_TESTS_STORM_RANDOM_H

#include <QtGlobal>

#include <iterator>
#include <random>

/// What one step of the storm draws. Each step has a generator of its own, so that it draws the same whether
/// the steps before it were run or not; and remainders instead of distributions, which differ by library.
class Random
{
public:
    Random(quint64 seed, quint64 step)
        : m_engine(seed * 0x9e3779b97f4a7c15 + step)
    {
    }

    /// 0 to bound - 1.
    int below(int bound) { return int(m_engine() % quint64(bound)); }

    /// From the first to the last, both included.
    int between(int first, int last) { return first + below(last - first + 1); }

    bool oneIn(int count) { return below(count) == 0; }

    template <class List>
    decltype(auto) pick(const List &list)
    {
        return *(std::begin(list) + below(int(std::size(list))));
    }

private:
    std::mt19937_64 m_engine;
};

#endif
