#pragma once

#include "files/byte_stream.h"
#include "files/project_record.h"

#include <cstddef>
#include <span>
#include <vector>

namespace kvelder {

// The six blocks of a project file. Throws std::length_error naming the field
// when a text is too long for its count.
std::vector<std::byte> encode_project(const ProjectFile& file);

// The six blocks from the bytes of a file; bytes after block 6 are ignored, as
// older versions left them there. Throws NotAProject, saying where and why,
// when the bytes are no project this program can open: a block that ends early,
// a number that is no number, a count beyond its table, or a choice (spans,
// supports, rules, classes, section form, material and profile rows) outside
// what the program offers.
ProjectFile decode_project(std::span<const std::byte> bytes);

} // namespace kvelder
