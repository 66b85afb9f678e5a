#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// The field types of the project file, written one after the other with no
// gaps, little-endian. A `str` is a 16-bit byte count and its Windows-1252
// bytes; a `fix` field is exactly N bytes, padded with blanks.
class ByteWriter {
public:
    void i16(std::int16_t v);
    void f32(float v);
    // False when the text needs more bytes than a count can give; an empty
    // text is written in its place, and the caller refuses the whole file.
    bool str(std::string_view utf8);
    void fix(std::string_view utf8, std::size_t width);
    void zeros(std::size_t count);

    const std::vector<std::byte>& bytes() const { return m_bytes; }

private:
    void raw(std::uint32_t v, std::size_t width);
    std::vector<std::byte> m_bytes;
};

// Why a file is no project: where reading stopped, in words.
class NotAProject : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Reads the same field types from bytes that are trusted in nothing: a field
// that runs past the end, or a number that is no finite value, throws
// NotAProject naming `what` and the field's place.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::byte> bytes) : m_bytes(bytes) {}

    std::int16_t i16(std::string_view what);
    float f32(std::string_view what);
    std::string str(std::string_view what);
    // A fixed field as it stands, padding blanks included.
    std::string fix(std::size_t width, std::string_view what);
    void skip(std::size_t count, std::string_view what);

    std::size_t offset() const { return m_at; }

private:
    std::span<const std::byte> take(std::size_t count, std::string_view what);

    std::span<const std::byte> m_bytes;
    std::size_t m_at = 0;
};

} // namespace kvelder
