// libFuzzer entry: any bytes as a project file. A file that opens is
// recalculated as the window would; a refused one must leave the model as it was.

#include "tests/fuzz/fuzz_model.h"
#include "ui/project_actions.h"

#include <cstdlib>

using namespace kvelder;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static auto m = std::make_unique<Model>();
    *m = fuzz::example();
    LoadDialogs dialogs;
    const std::span<const std::byte> bytes(reinterpret_cast<const std::byte*>(data), size);
    if (open_project_bytes(*m, bytes, dialogs)) {
        if (!(*m == fuzz::example())) {
            std::abort(); // a refused file changed the model
        }
        return 0;
    }
    fuzz::recalculate(*m);
    return 0;
}
