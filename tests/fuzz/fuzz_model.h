#pragma once

// What the data file targets share: the example beam as the program starts it,
// and the first recalculation that follows the reading of the data files.

#include "files/start_values.h"
#include "recalc/main_calc.h"
#include "ui/input_checks.h"

#include <filesystem>
#include <memory>

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

} // namespace kvelder::fuzz
