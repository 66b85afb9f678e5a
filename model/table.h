#pragma once

#include <array>
#include <cassert>

namespace kvelder {

// A fixed-size table indexed from 1, the way every row and span of the beam is
// numbered. The bounds are checked in debug builds; release builds index directly.
template <typename T, int N> class Table {
public:
    T& operator()(int i)
    {
        assert(i >= 1 && i <= N);
        return m_v[static_cast<std::size_t>(i - 1)];
    }
    const T& operator()(int i) const
    {
        assert(i >= 1 && i <= N);
        return m_v[static_cast<std::size_t>(i - 1)];
    }

    static constexpr int size() { return N; }
    void fill(const T& value) { m_v.fill(value); }

    friend bool operator==(const Table&, const Table&) = default;

private:
    std::array<T, N> m_v{};
};

// A fixed-size two-index table, both indexes from 1 (span, then point or row).
template <typename T, int Rows, int Cols> class Table2 {
public:
    T& operator()(int i, int j)
    {
        assert(i >= 1 && i <= Rows && j >= 1 && j <= Cols);
        return m_v[static_cast<std::size_t>((i - 1) * Cols + (j - 1))];
    }
    const T& operator()(int i, int j) const
    {
        assert(i >= 1 && i <= Rows && j >= 1 && j <= Cols);
        return m_v[static_cast<std::size_t>((i - 1) * Cols + (j - 1))];
    }

    static constexpr int rows() { return Rows; }
    static constexpr int cols() { return Cols; }
    void fill(const T& value) { m_v.fill(value); }

    friend bool operator==(const Table2&, const Table2&) = default;

private:
    std::array<T, static_cast<std::size_t>(Rows* Cols)> m_v{};
};

} // namespace kvelder
