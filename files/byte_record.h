#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kvelder {

// The low `width` bytes of `v` at `at`, the lowest first, whatever the machine.
inline void store_le(std::byte* at, std::uint64_t v, std::size_t width)
{
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(at, &v, width);
    } else {
        for (std::size_t b = 0; b < width; ++b) {
            at[b] = static_cast<std::byte>((v >> (8 * b)) & 0xFFU);
        }
    }
}

// A fixed-length record of a binary file, little-endian whatever the machine.
// Every field sits at a stated byte offset; writes past the end are a bug.
class ByteRecord {
public:
    explicit ByteRecord(std::size_t length) : m_bytes(length, std::byte{0}) {}

    std::size_t size() const { return m_bytes.size(); }
    std::byte* data() { return m_bytes.data(); }
    const std::byte* data() const { return m_bytes.data(); }
    void clear() { std::memset(m_bytes.data(), 0, m_bytes.size()); }

    void put_i16(std::size_t offset, std::int16_t v) { put(offset, static_cast<std::uint16_t>(v), 2); }
    void put_f32(std::size_t offset, float v) { put(offset, std::bit_cast<std::uint32_t>(v), 4); }
    std::int16_t get_i16(std::size_t offset) const { return static_cast<std::int16_t>(get(offset, 2)); }
    float get_f32(std::size_t offset) const
    {
        return std::bit_cast<float>(static_cast<std::uint32_t>(get(offset, 4)));
    }

private:
    void put(std::size_t offset, std::uint64_t v, std::size_t width)
    {
        store_le(&m_bytes.at(offset + width - 1) - (width - 1), v, width);
    }
    std::uint64_t get(std::size_t offset, std::size_t width) const
    {
        std::uint64_t v = 0;
        for (std::size_t b = 0; b < width; ++b) {
            v |= static_cast<std::uint64_t>(m_bytes.at(offset + b)) << (8 * b);
        }
        return v;
    }

    std::vector<std::byte> m_bytes;
};

} // namespace kvelder
