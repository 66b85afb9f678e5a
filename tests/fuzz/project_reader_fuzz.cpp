// libFuzzer entry: any bytes as a project file. A file that opens is
// recalculated as the window would; a refused one must leave the model as it was.

#include "files/project_file.h"
#include "files/start_values.h"
#include "recalc/main_calc.h"
#include "ui/input_checks.h"

#include <cstdlib>
#include <memory>

using namespace kvelder;

namespace {

const Model& example()
{
    static const std::unique_ptr<Model> m = [] {
        auto beam = std::make_unique<Model>();
        start_up(*beam, KVELDER_SOURCE_DATA_DIR);
        return beam;
    }();
    return *m;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static auto m = std::make_unique<Model>();
    *m = example();
    LoadDialogs dialogs;
    const std::span<const std::byte> bytes(reinterpret_cast<const std::byte*>(data), size);
    if (ReadProjectBytes(*m, bytes, dialogs)) {
        if (!(*m == example())) {
            std::abort(); // a refused file changed the model
        }
        return 0;
    }
    check_all_boxes(*m);
    RecordingScreen screen;
    MainCalc(*m, screen, "/tmp");
    return 0;
}
