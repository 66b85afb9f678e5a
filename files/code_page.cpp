#include "files/code_page.h"

#include <array>
#include <cstdint>

namespace kvelder {
namespace {

// The characters of bytes 0x80..0x9F; the rest of the code page is Latin-1.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t code_point(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : char32_t{byte};
}

void append_utf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

char byte_of(char32_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    for (std::size_t k = 0; k < kHighControls.size(); ++k) {
        if (kHighControls[k] == c) {
            return static_cast<char>(0x80 + k);
        }
    }
    return '?';
}

// The code point of the UTF-8 sequence at `at` and its length; length 0 when
// the bytes there are no valid sequence (overlong forms and surrogates included).
std::pair<char32_t, std::size_t> decode_utf8(std::string_view s, std::size_t at)
{
    const auto b = [&](std::size_t k) { return static_cast<unsigned char>(s[at + k]); };
    const unsigned char lead = b(0);
    std::size_t length = 0;
    char32_t c = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, c = lead & 0x1FU;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, c = lead & 0x0FU;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, c = lead & 0x07U;
    } else {
        return {0, 0};
    }
    if (at + length > s.size()) {
        return {0, 0};
    }
    for (std::size_t k = 1; k < length; ++k) {
        if ((b(k) & 0xC0U) != 0x80U) {
            return {0, 0};
        }
        c = (c << 6) | (b(k) & 0x3FU);
    }
    const bool overlong = (length == 3 && c < 0x800) || (length == 4 && c < 0x10000);
    if (overlong || (c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) {
        return {0, 0};
    }
    return {c, length};
}

} // namespace

std::string to_windows_1252(std::string_view utf8)
{
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const auto byte = static_cast<unsigned char>(utf8[at]);
        if (byte < 0x80) {
            out += utf8[at++];
            continue;
        }
        const auto [c, length] = decode_utf8(utf8, at);
        if (length == 0) {
            out += utf8[at++];
        } else {
            out += byte_of(c);
            at += length;
        }
    }
    return out;
}

std::string from_windows_1252(std::string_view bytes)
{
    std::string out;
    out.reserve(bytes.size());
    for (const char ch : bytes) {
        append_utf8(out, code_point(static_cast<unsigned char>(ch)));
    }
    return out;
}

std::string as_utf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        if (static_cast<unsigned char>(text[at]) < 0x80) {
            ++at;
            continue;
        }
        const std::size_t length = decode_utf8(text, at).second;
        if (length == 0) {
            return from_windows_1252(text);
        }
        at += length;
    }
    return std::string(text);
}

} // namespace kvelder
