// libFuzzer entry: any bytes as the profile catalogue. A catalogue without a
// row is refused and the program starts on its shipped copy; any other starts
// the example beam, and the point machine's reading is recalculated.

#include "files/catalogue.h"
#include "tests/fuzz/fuzz_model.h"

#include <cstdint>
#include <memory>
#include <string_view>

using namespace kvelder;

namespace {

bool start_on(Model& m, std::string_view text, std::int16_t decimal_comma)
{
    m = fuzz::example();
    ReadNotes notes;
    m.profile_table = ReadProfileCatalogue(text, decimal_comma, notes);
    if (row_count(m.profile_table) == 0) {
        return false;
    }
    m.profile_families = SplitProfileFamilies(m.profile_table);
    StartSection(m);
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::read_both_ways(data, size, start_on);
}
