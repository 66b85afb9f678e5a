// libFuzzer entry: any bytes as the beam description of kvelder-cli. A
// description that is refused must leave the beam as it was; one that is taken
// is checked and recalculated as the command would.

#include "app/cli/beam_description.h"
#include "tests/fuzz/fuzz_model.h"

#include <cstdlib>

using namespace kvelder;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const nlohmann::json description =
        nlohmann::json::parse(data, data + size, nullptr, /*allow_exceptions=*/false);
    if (description.is_discarded()) {
        return 0;
    }
    static auto m = std::make_unique<Model>();
    *m = fuzz::example();
    if (cli::apply_description(*m, description)) {
        if (!(*m == fuzz::example())) {
            std::abort(); // a refused description changed the beam
        }
        return 0;
    }
    fuzz::recalculate(*m);
    return 0;
}
