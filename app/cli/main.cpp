// kvelder-cli: the calculation without the window, for scripts and for tests.

#include "app/cli/beam_description.h"
#include "app/cli/beam_dump.h"
#include "app/cli/options.h"
#include "app/cli/plot_command.h"
#include "app/cli/result_json.h"
#include "app/cli/result_text.h"
#include "files/project_file.h"
#include "files/start_values.h"
#include "files/text_lines.h"
#include "model/main_calc.h"
#include "ui/input_checks.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using namespace kvelder;
using namespace kvelder::cli;

namespace {

// The data folder installed beside the program, or the one of the source tree
// that a build runs from.
fs::path installed_data_dir()
{
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (!ec) {
        const fs::path beside = exe.parent_path().parent_path() / "share" / "kvelder";
        if (fs::exists(beside / "EC5Material.csv", ec)) {
            return beside;
        }
    }
    return fs::path(KVELDER_SOURCE_DATA_DIR);
}

void read_description(Model& m, const fs::path& input)
{
    const std::optional<std::string> text = read_text_file(input);
    if (!text) {
        throw Stop{kUsageError, input.string() + ": cannot be read"};
    }
    nlohmann::json description;
    try {
        description = nlohmann::json::parse(*text);
    } catch (const nlohmann::json::parse_error& e) {
        throw Stop{kUsageError, input.string() + ": not valid JSON (" + e.what() + ")"};
    }
    try {
        cli::apply_description(m, description);
    } catch (const cli::DescriptionError& e) {
        throw Stop{kUsageError, input.string() + ": " + e.what()};
    }
}

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string message_line(const Message& msg)
{
    return msg.title.empty() ? msg.text : msg.title + ": " + msg.text;
}

void read_project(Model& m, const fs::path& input)
{
    LoadDialogs dialogs;
    if (const auto failed = ReadProject(m, input, dialogs)) {
        std::string line = input.string() + ": " + trimmed(project_message(m.language, *failed).text);
        if (failed->kind == ProjectFailure::Kind::NotAProject) {
            line += " (" + failed->detail + ")";
        }
        throw Stop{kUsageError, line};
    }
}

const char* group_name(LoadGroupId id)
{
    return id == LoadGroupId::G ? "G" : id == LoadGroupId::Q1 ? "Q1" : "Q2";
}

const char* table_name(LoadTable t)
{
    switch (t) {
    case LoadTable::Uniform:
        return "uniform";
    case LoadTable::Trapezoid:
        return "trapezoidal";
    case LoadTable::Point:
        return "point";
    case LoadTable::Moment:
        break;
    }
    return "moment";
}

// The beam ready for its recalculation: start-up, the description, and every
// check that typing it into the window would run. The failed checks' messages.
// The program as it starts: the data folder's files and the example beam.
void start(Model& m, const Options& o)
{
    const fs::path data_dir = o.data_dir.value_or(installed_data_dir());
    if (o.data_dir && !fs::is_directory(data_dir)) {
        throw Stop{kUsageError, "--data-dir " + data_dir.string() + ": no such folder"};
    }
    for (const DataFileNote& note : start_up(m, data_dir)) {
        std::cerr << "kvelder-cli: " << message_line(data_file_message(m.language, note)) << '\n';
    }
}

std::vector<Message> prepare(Model& m, const Options& o)
{
    start(m, o);
    if (o.input && is_project(*o.input)) {
        read_project(m, *o.input);
    } else if (o.input) {
        read_description(m, *o.input);
    }
    return check_all_boxes(m);
}

// One recalculation; the messages it raised. A failing load row without a
// message of its own still fails the run.
bool calculate(Model& m, std::vector<Message>& messages)
{
    RecordingScreen screen;
    MainCalc(m, screen);
    messages.insert(messages.end(), screen.messages.begin(), screen.messages.end());
    for (const LoadRowFailure& f : screen.load_failures) {
        if (!failure_message(m.language, f)) {
            std::cerr << "kvelder-cli: " << group_name(f.group) << " " << table_name(f.table) << " load, row "
                      << f.row << ": the span number is not a span of the beam (check " << f.code << ")\n";
        }
    }
    return screen.messages.empty() && screen.load_failures.empty();
}

int report_failure(const std::vector<Message>& messages)
{
    for (const Message& msg : messages) {
        std::cerr << "kvelder-cli: " << message_line(msg) << '\n';
    }
    return kCheckFailed;
}

int calc(const Options& o)
{
    auto m = std::make_unique<Model>();
    std::vector<Message> messages = prepare(*m, o);
    if (!messages.empty() || !calculate(*m, messages)) {
        if (!o.text) {
            std::cout << nlohmann::ordered_json{{"messages", cli::messages_json(messages)}}.dump(2) << '\n';
        }
        return report_failure(messages);
    }
    if (o.text) {
        std::cout << cli::result_text(*m);
    } else {
        std::cout << cli::result_json(*m, messages).dump(2) << '\n';
    }
    return kCalculated;
}

int save(const Options& o)
{
    auto m = std::make_unique<Model>();
    std::vector<Message> messages = prepare(*m, o);
    // The factors of the last recalculation travel in the file, as when the
    // window saves.
    if (!messages.empty() || !calculate(*m, messages)) {
        std::cerr << "kvelder-cli: the beam fails its checks; " << o.output->string() << " is not written\n";
        return report_failure(messages);
    }
    if (const auto failed = WriteProject(*m, *o.output)) {
        throw Stop{kUsageError, project_message(m->language, *failed).text};
    }
    return kCalculated;
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
void note_own_data(const OwnData& folder, const OwnData& project)
{
    const auto note = [](const char* what) {
        std::cerr << "kvelder-cli: the project carries its own " << what
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

int dump(const Options& o)
{
    auto m = std::make_unique<Model>();
    start(*m, o);
    const OwnData folder(*m);
    read_project(*m, *o.input);
    note_own_data(folder, OwnData(*m));
    std::cout << cli::describe_beam(*m).dump(2) << '\n';
    return kCalculated;
}

int plot(const Options& o, int argc, char** argv)
{
    choose_headless_platform();
    const QGuiApplication app(argc, argv);
    auto m = std::make_unique<Model>();
    std::vector<Message> messages = prepare(*m, o);
    if (!messages.empty() || !calculate(*m, messages)) {
        return report_failure(messages);
    }
    if (const std::string failed = write_pictures(*m, *o.output, o.width, o.height); !failed.empty()) {
        throw Stop{kUsageError, failed};
    }
    return kCalculated;
}

int bench(const Options& o)
{
    auto m = std::make_unique<Model>();
    std::vector<Message> messages = prepare(*m, o);
    if (!messages.empty() || !calculate(*m, messages)) { // the warm-up run
        return report_failure(messages);
    }
    std::vector<double> times;
    times.reserve(static_cast<std::size_t>(o.runs));
    RecordingScreen screen;
    for (int r = 0; r < o.runs; ++r) {
        const auto start = std::chrono::steady_clock::now();
        MainCalc(*m, screen);
        const auto stop = std::chrono::steady_clock::now();
        times.push_back(std::chrono::duration<double, std::micro>(stop - start).count());
    }
    std::sort(times.begin(), times.end());
    const std::size_t mid = times.size() / 2;
    const double median = times.size() % 2 == 1 ? times[mid] : (times[mid - 1] + times[mid]) / 2;
    std::cout
        << nlohmann::ordered_json{{"runs", o.runs}, {"median_us", median}, {"min_us", times.front()}}.dump()
        << '\n';
    return kCalculated;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const Options o = parse(std::vector<std::string>(argv + 1, argv + argc));
        if (o.command == "save") {
            return save(o);
        }
        if (o.command == "dump") {
            return dump(o);
        }
        if (o.command == "plot") {
            return plot(o, argc, argv);
        }
        return o.command == "calc" ? calc(o) : bench(o);
    } catch (const Stop& stop) {
        if (stop.line.empty()) {
            (stop.code == kCalculated ? std::cout : std::cerr) << kUsage;
        } else {
            std::cerr << "kvelder-cli: " << stop.line << '\n';
        }
        return stop.code;
    } catch (const std::exception& e) {
        std::cerr << "kvelder-cli: " << e.what() << '\n';
        return kUsageError;
    }
}
