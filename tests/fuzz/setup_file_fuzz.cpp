// libFuzzer entry: any bytes as the setup file. A file without an annex row is
// refused and the program starts on its shipped copy; any other is applied to
// the example beam and must read back as the setup dialog saves it, and the
// point machine's reading is recalculated.

#include "files/setup_file.h"
#include "tests/fuzz/fuzz_model.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

using namespace kvelder;

namespace {

bool start_on(Model& m, std::string_view text, std::int16_t decimal_comma)
{
    m = fuzz::example();
    ReadNotes notes;
    m.setup = ReadSetupFile(text, decimal_comma, notes);
    if (m.setup.setup_last_row < 0) {
        return false;
    }
    ApplySetupRow(m);
    StoreSetupRow(m); // as the setup dialog does before it saves
    ReadNotes again;
    if (!(ReadSetupFile(SetupFileText(m.setup, decimal_comma), decimal_comma, again) == m.setup)) {
        std::abort(); // the saved setup reads back otherwise
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::read_both_ways(data, size, start_on);
}
