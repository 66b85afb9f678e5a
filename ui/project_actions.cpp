#include "ui/project_actions.h"

#include "files/start_values.h"
#include "ui/input_checks.h"
#include "ui/load_checks.h"

namespace kvelder {
namespace {

// A new beam takes none of the flags of the one before: a span of no length or
// supports that cannot carry it stop the next run at its gate, and a beam that
// holds a load is no longer held there for one that held none.
void check_new_beam(Model& m)
{
    m.nf_at_change = m.nf;
    check_spans(m);
    check_supports(m);
    const bool loaded = !(m.G.empty() && m.Q1.empty() && m.Q2.empty()) || is_true(m.profile_weight_on);
    if (loaded) {
        m.err_section = kFalse;
    }
}

} // namespace

void new_project(Model& m, LoadDialogs& dialogs)
{
    StartProject(m);
    dialogs = load_dialogs(m);
    m.err_load_item = kFalse;
    check_new_beam(m);
}

std::optional<ProjectFailure> open_project(Model& m, const std::filesystem::path& path, LoadDialogs& dialogs)
{
    if (auto failure = ReadProject(m, path, dialogs)) {
        return failure;
    }
    check_new_beam(m);
    return std::nullopt;
}

std::optional<std::string> open_project_bytes(Model& m, std::span<const std::byte> bytes,
                                              LoadDialogs& dialogs)
{
    if (auto failure = ReadProjectBytes(m, bytes, dialogs)) {
        return failure;
    }
    check_new_beam(m);
    return std::nullopt;
}

std::optional<ProjectFailure> save_project(Model& m, const std::filesystem::path& path)
{
    return WriteProject(m, path);
}

} // namespace kvelder
