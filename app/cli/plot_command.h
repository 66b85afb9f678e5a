#pragma once

#include "model/model.h"

#include <filesystem>
#include <optional>
#include <string>

namespace kvelder::cli {

// Draws the six pictures of the window for a calculated beam into `folder`
// as "<picture box>.png", each `width` x `height` pixels. What could not be
// written, if anything.
std::optional<std::string> write_pictures(const Model& m, const std::filesystem::path& folder, int width,
                                          int height);

} // namespace kvelder::cli
