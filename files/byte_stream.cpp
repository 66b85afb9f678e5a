#include "files/byte_stream.h"

#include "files/code_page.h"

#include <bit>
#include <cmath>
#include <limits>

namespace kvelder {

void ByteWriter::raw(std::uint32_t v, std::size_t width)
{
    for (std::size_t b = 0; b < width; ++b) {
        m_bytes.push_back(static_cast<std::byte>((v >> (8 * b)) & 0xFFU));
    }
}

void ByteWriter::i16(std::int16_t v)
{
    raw(static_cast<std::uint16_t>(v), 2);
}

void ByteWriter::f32(float v)
{
    raw(std::bit_cast<std::uint32_t>(v), 4);
}

bool ByteWriter::str(std::string_view utf8)
{
    const std::string bytes = to_windows_1252(utf8);
    if (bytes.size() > std::numeric_limits<std::uint16_t>::max()) {
        raw(0, 2);
        return false;
    }
    raw(static_cast<std::uint32_t>(bytes.size()), 2);
    for (const char c : bytes) {
        m_bytes.push_back(static_cast<std::byte>(c));
    }
    return true;
}

void ByteWriter::fix(std::string_view utf8, std::size_t width)
{
    std::string bytes = to_windows_1252(utf8);
    bytes.resize(width, ' ');
    for (const char c : bytes) {
        m_bytes.push_back(static_cast<std::byte>(c));
    }
}

void ByteWriter::zeros(std::size_t count)
{
    m_bytes.insert(m_bytes.end(), count, std::byte{0});
}

std::span<const std::byte> ByteReader::take(std::size_t count, std::string_view what)
{
    if (count > m_bytes.size() - m_at) {
        throw NotAProject("the file ends inside " + std::string(what) + " at byte " + std::to_string(m_at));
    }
    const std::span<const std::byte> field = m_bytes.subspan(m_at, count);
    m_at += count;
    return field;
}

std::int16_t ByteReader::i16(std::string_view what)
{
    const auto b = take(2, what);
    return static_cast<std::int16_t>(
        static_cast<std::uint16_t>(std::to_integer<unsigned>(b[0]) | (std::to_integer<unsigned>(b[1]) << 8)));
}

float ByteReader::f32(std::string_view what)
{
    const std::size_t at = m_at;
    const auto b = take(4, what);
    std::uint32_t v = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        v |= std::to_integer<std::uint32_t>(b[k]) << (8 * k);
    }
    const float f = std::bit_cast<float>(v);
    if (!std::isfinite(f)) {
        throw NotAProject(std::string(what) + " at byte " + std::to_string(at) + " is no number");
    }
    return f;
}

std::string ByteReader::str(std::string_view what)
{
    const auto count = static_cast<std::uint16_t>(i16(what));
    const auto b = take(count, what);
    return from_windows_1252(std::string_view(reinterpret_cast<const char*>(b.data()), b.size()));
}

std::string ByteReader::fix(std::size_t width, std::string_view what)
{
    const auto b = take(width, what);
    return from_windows_1252(std::string_view(reinterpret_cast<const char*>(b.data()), b.size()));
}

void ByteReader::skip(std::size_t count, std::string_view what)
{
    take(count, what);
}

} // namespace kvelder
