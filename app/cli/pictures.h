#pragma once

#include "model/model.h"

#include <filesystem>
#include <optional>
#include <string>

namespace kvelder::cli {

// The pictures of plot and report, drawn by Qt without a screen. A build
// without Qt has none: then both writers say so and nothing is written.
bool has_pictures();

// Draws the six pictures of the window for a calculated beam into `folder`
// as "<picture box>.png", each `width` x `height` pixels. What could not be
// written, if anything.
std::optional<std::string> write_pictures(const Model& m, const std::filesystem::path& folder, int width,
                                          int height);

// Writes the printed report of a calculated beam as a PDF, its pages stamped
// with the file `source` and the time now. What went wrong, if anything.
std::optional<std::string> write_report(const Model& m, const std::filesystem::path& file,
                                        const std::filesystem::path& source, bool detailed);

} // namespace kvelder::cli
