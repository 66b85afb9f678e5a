#include "app/cli/commands.h"

#include "app/cli/beam_description.h"
#include "app/cli/beam_dump.h"
#include "app/cli/pictures.h"
#include "app/cli/result_json.h"
#include "app/cli/result_text.h"
#include "design/factors.h"
#include "files/code_page.h"
#include "files/path_text.h"
#include "files/start_values.h"
#include "files/text_lines.h"
#include "recalc/annex_comparison.h"
#include "recalc/explain_governing.h"
#include "recalc/main_calc.h"
#include "recalc/section_search.h"
#include "ui/input_checks.h"
#include "ui/load_checks.h"
#include "ui/messages.h"
#include "ui/project_actions.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <optional>

namespace kvelder::cli {
namespace {

namespace fs = std::filesystem;

// Thrown and caught in this file only: the command ends with this exit code
// and line.
struct Stopped {
    Stop stop;
};

[[noreturn]] void stop(int code, std::string line)
{
    throw Stopped{Stop{code, std::move(line)}};
}

std::string message_line(const Message& msg)
{
    return msg.title.empty() ? msg.text : msg.title + ": " + msg.text;
}

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

const char* table_name(LoadTable t)
{
    constexpr std::array<const char*, 4> names{"uniform", "trapezoidal", "point", "moment"};
    return names[static_cast<std::size_t>(t)];
}

void read_description(Model& m, const fs::path& input)
{
    const std::optional<std::string> text = read_text_file(input);
    if (!text) {
        stop(kUsageError, utf8_text(input) + ": cannot be read");
    }
    nlohmann::json description;
    try {
        description = nlohmann::json::parse(*text);
    } catch (const nlohmann::json::parse_error& e) {
        stop(kUsageError, utf8_text(input) + ": not valid JSON (" + e.what() + ")");
    }
    if (const auto failed = apply_description(m, description)) {
        stop(kUsageError, utf8_text(input) + ": " + *failed);
    }
}

void read_project(Model& m, const fs::path& input, LoadDialogs& dialogs)
{
    if (const auto failed = open_project(m, input, dialogs)) {
        std::string line = utf8_text(input) + ": " + trimmed(project_message(m.language, *failed).text);
        if (failed->kind == ProjectFailure::Kind::NotAProject) {
            line += " (" + failed->detail + ")";
        }
        stop(kUsageError, line);
    }
}

// The program as it starts: the data folder's files and the example beam.
void start(Model& m, const Options& o, std::ostream& err)
{
    const fs::path data_dir = o.data_dir.value_or(o.installed_data_dir);
    if (o.data_dir && !fs::is_directory(data_dir)) {
        stop(kUsageError, "--data-dir " + utf8_text(data_dir) + ": no such folder");
    }
    for (const DataFileNote& note : start_up(m, data_dir)) {
        err << "kvelder-cli: " << message_line(data_file_message(m.language, note)) << '\n';
    }
}

// The beam ready for its recalculation: start-up, the input, and the messages
// of every check that typing it into the window would run. A project's loads
// are the texts of its load dialogs, as the window reads them; a description's
// rows are the tables as given. A project's braces are the window's, which
// keeps them when a span is made shorter; a description's are typed.
struct Prepared {
    std::vector<Message> checks;
    std::optional<LoadDialogs> dialogs;
    // The trace in the current folder, kept open from one run to the next.
    std::unique_ptr<ScratchFiles> trace = std::make_unique<ScratchFiles>(fs::path());
};

Prepared prepare(Model& m, const Options& o, std::ostream& err)
{
    start(m, o, err);
    Prepared p;
    const bool project = o.input && is_project(*o.input);
    if (project) {
        read_project(m, *o.input, p.dialogs.emplace());
    } else if (o.input) {
        read_description(m, *o.input);
    }
    p.checks = check_all_boxes(m);
    if (!project) {
        const std::vector<Message> buckling = check_buckling_boxes(m);
        p.checks.insert(p.checks.end(), buckling.begin(), buckling.end());
    }
    return p;
}

void recalculate(Model& m, Prepared& p, CalcScreen& screen)
{
    MainCalc(m, p.dialogs ? &*p.dialogs : nullptr, screen, *p.trace);
}

// The messages of the checks, then of one recalculation when the checks
// passed; `calculated` is false when anything failed, also a load row without
// a message of its own.
struct Outcome {
    std::vector<Message> messages;
    bool calculated = false;
};

Outcome calculate(Model& m, Prepared& p, std::ostream& err)
{
    if (!p.checks.empty()) {
        return {p.checks, false};
    }
    RecordingScreen screen;
    recalculate(m, p, screen);
    for (const LoadRowFailure& f : screen.load_failures) {
        if (!failure_message(m.language, f)) {
            err << "kvelder-cli: " << group_name(f.group) << " " << table_name(f.table) << " load, row "
                << f.row << ": the span number is not a span of the beam (check " << f.code << ")\n";
        }
    }
    return {screen.messages, screen.messages.empty() && screen.load_failures.empty()};
}

// The input of the command line, prepared and recalculated once.
struct Run {
    std::unique_ptr<Model> m = std::make_unique<Model>();
    Prepared input;
    Outcome outcome;
};

Run run_input(const Options& o, std::ostream& err)
{
    Run r;
    r.input = prepare(*r.m, o, err);
    r.outcome = calculate(*r.m, r.input, err);
    return r;
}

int report_failure(const std::vector<Message>& messages, std::ostream& err)
{
    for (const Message& msg : messages) {
        err << "kvelder-cli: " << message_line(msg) << '\n';
    }
    return kCheckFailed;
}

// A beam that fails its checks writes no file: the messages and exit 1.
std::optional<int> unwritten(const Outcome& run, const fs::path& output, std::ostream& err)
{
    if (run.calculated) {
        return std::nullopt;
    }
    err << "kvelder-cli: the beam fails its checks; " << utf8_text(output) << " is not written\n";
    return report_failure(run.messages, err);
}

// Runs a sub-command, turning its stop into the exit code and its line.
template <typename Body> int guarded(std::ostream& err, Body body)
{
    try {
        return body();
    } catch (const Stopped& s) {
        err << "kvelder-cli: " << s.stop.line << '\n';
        return s.stop.code;
    } catch (const std::exception& e) {
        err << "kvelder-cli: " << e.what() << '\n';
        return kUsageError;
    }
}

// The data a project brings along.
struct OwnData {
    MaterialTable materials;
    ProfileTable profiles;
    std::array<SetupRow, FileDatabase::kRows> annexes;

    explicit OwnData(const Model& m)
        : materials(m.material_table), profiles(m.profile_table), annexes(m.setup.setup_table)
    {
        // The classes and psi values of the selected row are in the description.
        for (SetupRow& r : annexes) {
            r.safety_class = r.psi0_1_index = r.psi0_2_index = r.psi2_1_index = r.psi2_2_index = 0;
        }
    }
};

// Names the data the project carries that differs from the data folder's:
// a description of the beam refers to the folder's rows.
void note_own_data(const OwnData& folder, const OwnData& project, std::ostream& err)
{
    const auto note = [&err](const char* what) {
        err << "kvelder-cli: the project carries its own " << what
            << "; the description refers to the rows of the data folder's\n";
    };
    if (folder.materials != project.materials) {
        note("material catalogue");
    }
    if (folder.profiles != project.profiles) {
        note("profile catalogue");
    }
    if (folder.annexes != project.annexes) {
        note("setup table");
    }
}

} // namespace

int run_calc(const Options& o, std::ostream& out, std::ostream& err)
{
    return guarded(err, [&] {
        auto [m, input, run] = run_input(o, err);
        if (!run.calculated) {
            if (!o.text) {
                out << nlohmann::ordered_json{{"messages", messages_json(run.messages)}}.dump(2) << '\n';
            }
            return report_failure(run.messages, err);
        }
        if (o.text) {
            out << result_text(*m);
        } else {
            nlohmann::ordered_json results = result_json(*m, run.messages);
            const auto governing = explain_governing(*m);
            results["governing"] = governing ? governing_json(*m, *governing) : nullptr;
            out << results.dump(2) << '\n';
        }
        return kCalculated;
    });
}

int run_save(const Options& o, std::ostream&, std::ostream& err)
{
    return guarded(err, [&] {
        // The factors of the last recalculation travel in the file, as when the
        // window saves.
        auto [m, input, run] = run_input(o, err);
        if (const auto refused = unwritten(run, *o.output, err)) {
            return *refused;
        }
        if (const auto failed = save_project(*m, *o.output)) {
            stop(kUsageError, project_message(m->language, *failed).text);
        }
        return kCalculated;
    });
}

int run_dump(const Options& o, std::ostream& out, std::ostream& err)
{
    return guarded(err, [&] {
        auto m = std::make_unique<Model>();
        start(*m, o, err);
        const OwnData folder(*m);
        LoadDialogs dialogs;
        read_project(*m, *o.input, dialogs);
        read_all_rows(*m, dialogs); // the rows as the window holds them
        note_own_data(folder, OwnData(*m), err);
        out << describe_beam(*m).dump(2) << '\n';
        return kCalculated;
    });
}

namespace {

// Drawing needs Qt; a build without it says so before anything is read.
void need_pictures(const Options& o)
{
    if (!has_pictures()) {
        stop(kUsageError, o.command + " draws, and this build has no pictures (it was built without Qt)");
    }
}

} // namespace

int run_plot(const Options& o, std::ostream&, std::ostream& err)
{
    return guarded(err, [&] {
        need_pictures(o);
        auto [m, input, run] = run_input(o, err);
        if (!run.calculated) {
            return report_failure(run.messages, err);
        }
        if (const auto failed = write_pictures(*m, *o.output, o.width, o.height)) {
            stop(kUsageError, *failed);
        }
        return kCalculated;
    });
}

int run_report(const Options& o, std::ostream&, std::ostream& err)
{
    return guarded(err, [&] {
        need_pictures(o);
        auto [m, input, run] = run_input(o, err);
        if (const auto refused = unwritten(run, *o.output, err)) {
            return *refused;
        }
        const fs::path source = o.input.value_or("New File");
        if (const auto failed = write_report(*m, *o.output, source, o.detailed)) {
            stop(kUsageError, *failed);
        }
        return kCalculated;
    });
}

int run_bench(const Options& o, std::ostream& out, std::ostream& err)
{
    return guarded(err, [&] {
        auto [m, input, warm_up] = run_input(o, err);
        if (!warm_up.calculated) {
            return report_failure(warm_up.messages, err);
        }
        std::vector<double> times;
        times.reserve(static_cast<std::size_t>(o.runs));
        RecordingScreen screen;
        for (int r = 0; r < o.runs; ++r) {
            const auto begin = std::chrono::steady_clock::now();
            recalculate(*m, input, screen);
            const auto end = std::chrono::steady_clock::now();
            times.push_back(std::chrono::duration<double, std::micro>(end - begin).count());
        }
        std::sort(times.begin(), times.end());
        const std::size_t mid = times.size() / 2;
        const double median = times.size() % 2 == 1 ? times[mid] : (times[mid - 1] + times[mid]) / 2;
        out << nlohmann::ordered_json{{"runs", o.runs}, {"median_us", median}, {"min_us", times.front()}}
                   .dump()
            << '\n';
        return kCalculated;
    });
}

namespace {

nlohmann::ordered_json candidate_json(const SectionCandidate& c)
{
    nlohmann::ordered_json j{{"profile", c.profile}, {"prof_type_index", c.prof_type_index}};
    j["prof_index"] = c.prof_index >= 0 ? nlohmann::ordered_json(c.prof_index) : nlohmann::ordered_json();
    j["b"] = single(c.b);
    j["h"] = single(c.h);
    j["uf_max"] = single(c.uf_max);
    j["governing"] = check_name(c.governing);
    return j;
}

} // namespace

int run_size(const Options& o, std::ostream& out, std::ostream& err)
{
    return guarded(err, [&] {
        auto [m, input, run] = run_input(o, err);
        if (!run.calculated) {
            return report_failure(run.messages, err);
        }
        const SectionSearch found =
            find_lightest_section(*m, input.dialogs ? &*input.dialogs : nullptr, o.height_step);
        if (found.refused) {
            err << "kvelder-cli: "
                << (*found.refused == SearchRefusal::Circle ? "the section is a circle; size tries rectangles"
                    : *found.refused == SearchRefusal::BeamFails
                        ? "the beam fails its checks: " + found.detail
                        : std::string("the step of the heights is below 1 mm"))
                << '\n';
            return kCheckFailed;
        }
        if (found.candidates.empty()) {
            err << "kvelder-cli: no section of the family could be calculated\n";
            return kCheckFailed;
        }
        nlohmann::ordered_json j{{"passes", found.passes()}};
        const nlohmann::ordered_json lightest = candidate_json(found.candidates.front());
        for (const auto& [key, value] : lightest.items()) {
            j[key] = value;
        }
        j["candidates"] = nlohmann::ordered_json::array();
        for (std::size_t k = 1; k < found.candidates.size(); ++k) {
            j["candidates"].push_back(candidate_json(found.candidates[k]));
        }
        out << j.dump(2) << '\n';
        return kCalculated;
    });
}

int run_annexes(const Options& o, std::ostream& out, std::ostream& err)
{
    return guarded(err, [&] {
        auto [m, input, run] = run_input(o, err);
        if (!run.calculated) {
            return report_failure(run.messages, err);
        }
        nlohmann::ordered_json list = nlohmann::ordered_json::array();
        for (const AnnexRun& annex : calculate_annexes(*m, input.dialogs ? &*input.dialogs : nullptr)) {
            const Model& beam = *annex.beam;
            nlohmann::ordered_json all = result_json(beam, annex.messages);
            // An annex without classes has no Kfi: the field holds what the
            // annex before it left there, which nothing reads.
            if (!kfi_of(beam.annex, beam.safety_class)) {
                all["factors"]["kfi"] = nullptr;
            }
            list.push_back({{"annex", beam.annex},
                            {"setup_row", annex.setup_row},
                            {"title", as_utf8(beam.annex_title)},
                            {"messages", all["messages"]},
                            {"factors", all["factors"]},
                            {"strengths", all["strengths"]},
                            {"checks", all["checks"]},
                            {"supports", all["supports"]},
                            {"bearing", all["bearing"]}});
        }
        out << nlohmann::ordered_json{{"annexes", list}}.dump(2) << '\n';
        return kCalculated;
    });
}

int run_cli(const std::vector<std::string>& args, const fs::path& installed_data_dir, std::ostream& out,
            std::ostream& err)
{
    std::variant<Options, Stop> parsed = parse(args);
    if (const Stop* s = std::get_if<Stop>(&parsed)) {
        if (s->line.empty()) {
            (s->code == kCalculated ? out : err) << kUsage;
        } else {
            err << "kvelder-cli: " << s->line << '\n';
        }
        return s->code;
    }
    Options& o = std::get<Options>(parsed);
    o.installed_data_dir = installed_data_dir;
    if (o.command == "save") {
        return run_save(o, out, err);
    }
    if (o.command == "dump") {
        return run_dump(o, out, err);
    }
    if (o.command == "plot") {
        return run_plot(o, out, err);
    }
    if (o.command == "report") {
        return run_report(o, out, err);
    }
    if (o.command == "size") {
        return run_size(o, out, err);
    }
    if (o.command == "annexes") {
        return run_annexes(o, out, err);
    }
    return o.command == "calc" ? run_calc(o, out, err) : run_bench(o, out, err);
}

} // namespace kvelder::cli
