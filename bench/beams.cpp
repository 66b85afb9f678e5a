#include "bench/beams.h"

#include "app/cli/beam_description.h"
#include "files/start_values.h"
#include "files/text_lines.h"

#include <iostream>

namespace kvelder::bench {

std::unique_ptr<Model> example()
{
    auto m = std::make_unique<Model>();
    start_up(*m, KVELDER_SOURCE_DATA_DIR);
    return m;
}

std::unique_ptr<Model> worst_case()
{
    auto m = example();
    const std::optional<std::string> text = read_text_file(KVELDER_WORST_CASE);
    const nlohmann::json description = nlohmann::json::parse(text.value_or(""), nullptr, false);
    if (description.is_discarded()) {
        std::cerr << KVELDER_WORST_CASE << ": no beam description\n";
        return nullptr;
    }
    if (const auto failed = cli::apply_description(*m, description)) {
        std::cerr << KVELDER_WORST_CASE << ": " << *failed << '\n';
        return nullptr;
    }
    return m;
}

} // namespace kvelder::bench
