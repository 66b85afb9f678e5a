#pragma once

// What the data file targets share: the example beam as the program starts it,
// and the first recalculation that follows the reading of the data files.

#include "files/start_values.h"
#include "recalc/main_calc.h"
#include "ui/input_checks.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>

namespace kvelder::fuzz {

inline const Model& example()
{
    static const std::unique_ptr<Model> m = [] {
        auto beam = std::make_unique<Model>();
        start_up(*beam, KVELDER_SOURCE_DATA_DIR);
        return beam;
    }();
    return *m;
}

inline void recalculate(Model& m)
{
    check_all_boxes(m);
    RecordingScreen screen;
    MainCalc(m, screen, std::filesystem::temp_directory_path());
}

// A data file's bytes read as a machine with a decimal comma would, then with
// a point; what the point reading starts is recalculated. `start_on(m, text,
// decimal_comma)` reads the file into the example beam, false where it holds no row.
template <typename StartOn> int read_both_ways(const std::uint8_t* data, std::size_t size, StartOn start_on)
{
    static auto m = std::make_unique<Model>();
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    start_on(*m, text, 1);
    if (start_on(*m, text, 0)) {
        recalculate(*m);
    }
    return 0;
}

} // namespace kvelder::fuzz
