#include "app/cli/pictures.h"

namespace kvelder::cli {

// A build without Qt: the commands that draw refuse before they read a beam.

bool has_pictures()
{
    return false;
}

std::optional<std::string> write_pictures(const Model&, const std::filesystem::path&, int, int)
{
    return "this build has no pictures";
}

std::optional<std::string> write_report(const Model&, const std::filesystem::path&,
                                        const std::filesystem::path&, bool)
{
    return "this build has no pictures";
}

} // namespace kvelder::cli
