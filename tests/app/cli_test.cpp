// kvelder-cli from the outside: what it prints and how it exits.

#include "app/cli/beam_description.h"
#include "app/cli/pictures.h"
#include "files/path_text.h"
#include "files/project_file.h"
#include "tests/app/cli_run.h"
#include "tests/support/process.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

// A data folder of the shipped files whose material catalogue has `from` replaced by `to`.
std::string data_folder(const std::string& name, const std::string& from, const std::string& to)
{
    const fs::path folder = scratch_folder() / name;
    fs::create_directories(folder);
    for (const char* file : {"EC5Profile.csv", "Kveldersetup.csv"}) {
        fs::copy_file(source_data_dir() / file, folder / file, fs::copy_options::overwrite_existing);
    }
    std::string materials = file_text(source_data_dir() / "EC5Material.csv");
    materials.replace(materials.find(from), from.size(), to);
    std::ofstream(folder / "EC5Material.csv", std::ios::binary) << materials;
    return utf8_text(folder);
}

TEST(CliCalc, ABeamThatFailsACheckExitsOneWithTheProgramsMessage)
{
    CliRun r = run({"calc", description("bad_row.json", R"({"G": {"uni": [[1, 2.0], [3, 1.0]]}})")});
    EXPECT_EQ(r.exit, 1);
    EXPECT_EQ(json::parse(r.out)["messages"][0]["code"], 116);

    r = run({"calc", description("ksys.json", R"({"ksys": 1.3})")});
    EXPECT_EQ(r.exit, 1);
    EXPECT_NE(r.err.find(" 1 <= ksys <= 1.2"), std::string::npos);

    // Braces beyond their span are refused as typed; a project keeps them from
    // a span made shorter, and calculates with them as the window does.
    r = run({"calc", description("braces.json", R"({"vipping_off": false, "l_stag": [6.0, 5.0]})")});
    EXPECT_EQ(r.exit, 1);
    auto kept = example_beam();
    kept->vipping_off = kFalse;
    kept->l_stag(1) = 6.0F;
    ASSERT_FALSE(WriteProject(*kept, scratch("braces.kvel")));
    EXPECT_EQ(run({"calc", scratch("braces.kvel")}).exit, 0);

    // A check without a message in Norwegian still fails, and says which row;
    // Q2, the last group, is checked too.
    r = run({"calc", "--text",
             description("silent.json", R"({"language": "Nor", "Q2": {"pt": [[3, 2.0, 1.0]]}})")});
    EXPECT_EQ(r.exit, 1);
    EXPECT_NE(r.err.find("Q2 point load, row 1: the span number is not a span of the beam (check 163)"),
              std::string::npos)
        << r.err;
}

TEST(CliCalc, ADescriptionThatCannotBeReadExitsTwoNamingTheKey)
{
    const struct {
        const char* text;
        const char* says;
    } cases[] = {
        {R"({"nf": 2, "ffl_s": [5.0, 5.0], "colour": "red"})", "\"colour\""},
        {R"({"nf": "two", "ffl_s": [5.0, 5.0]})", "\"nf\""},
        {R"({"nf": 6, "ffl_s": [1, 1, 1, 1, 1, 1]})", "\"nf\""},
        {R"({"nf": 3})", "\"nf\""},
        {R"({"ffl_s": [5.0, 5.0], "l_stag": [5.0]})", "\"l_stag\""},
        {R"({"material_row": 500})", "\"material_row\""},
        {R"({"material": "C99"})", "\"material\""},
        {R"({"annex": "Xyz"})", "\"annex\""},
        {R"({"psi0_1": 0.75})", "\"psi0_1\""},
        {R"({"prof_type_index": 2, "service_class": 3})", "\"service_class\""},
        {R"({"nsupLeft_s": "X"})", "\"nsupLeft_s\""},
        {R"({"G": {"uni": [[1, 1], [1, 1], [1, 1], [1, 1], [1, 1], [2, 1]]}})", "\"G.uni\""},
        {R"({"Q1": {"pt": [[1.5, 1, 1]]}})", "\"Q1.pt[0][0]\""},
        {R"({"G": {"trap": [[1, 1, 1]]}})", "\"G.trap[0]\""},
        {R"({"nf": 2,)", "not valid JSON"},
        {R"([1, 2])", "JSON object"},
    };
    for (const auto& c : cases) {
        const CliRun r = run({"calc", description("bad.json", c.text)});
        EXPECT_EQ(r.exit, 2) << c.text;
        EXPECT_NE(r.err.find(c.says), std::string::npos) << c.text << " -> " << r.err;
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    }

    // A refused description leaves the beam as it was.
    auto m = example_beam();
    const auto before = std::make_unique<Model>(*m);
    const auto failed = cli::apply_description(
        *m,
        json::parse(R"({"ffl_s": [3.0, 4.0, 5.0], "nsupLeft_s": "I", "section_b": 90, "material": "C99"})"));
    ASSERT_TRUE(failed);
    EXPECT_NE(failed->find("\"material\""), std::string::npos) << *failed;
    EXPECT_TRUE(*m == *before);
}

TEST(CliCalc, UsageAndFileErrorsExitTwo)
{
    std::istringstream lines(
        "|draw|calc --colour|calc a.json b.json|calc /no/such/beam.json|calc beam.txt|"
        "calc --size 100x100|calc --data-dir /no/such/folder|bench -n 0|save|save -o beam.json|"
        "save a.kvel -o b.kvel|dump|dump beam.json|plot|plot -o x --size 10x10|"
        "plot -o x --size wide|report|report -o report.txt|calc --detailed");
    for (std::string line; std::getline(lines, line, '|');) {
        std::istringstream words(line);
        const CliRun r = run({std::istream_iterator<std::string>(words), {}});
        EXPECT_EQ(r.exit, 2) << line;
        EXPECT_FALSE(r.err.empty()) << line;
    }
    // Asked for, the usage is the answer and goes to the output.
    const CliRun help = run({"--help"});
    EXPECT_EQ(help.exit, 0);
    EXPECT_EQ(help.out.rfind("usage: kvelder-cli calc", 0), 0U) << help.out;
    EXPECT_TRUE(help.err.empty());
}

TEST(CliCalc, DataFoldersMissingFilesOrFromWindows)
{
    // Missing files are reported and the shipped ones used.
    const fs::path empty = scratch_folder() / "empty_data";
    fs::create_directories(empty);
    CliRun r = run({"calc", "--data-dir", utf8_text(empty)});
    EXPECT_EQ(r.exit, 0);
    for (const char* file : {"EC5Material.csv", "EC5Profile.csv", "Kveldersetup.csv"}) {
        EXPECT_NE(r.err.find(utf8_text(empty / file)), std::string::npos) << file;
    }
    EXPECT_EQ(json::parse(r.out)["material"]["name"], "GL30c");

    // A catalogue saved on Windows holds its names in Windows-1252; they read as
    // the same letters in the results and in a description.
    const std::string windows = data_folder("windows_data", "GL30c;", "GL30\xF8;");
    r = run({"calc", "--data-dir", windows});
    ASSERT_EQ(r.exit, 0) << r.err;
    EXPECT_EQ(json::parse(r.out)["material"]["name"], "GL30\u00f8");
    r = run({"calc", description("by_name.json", R"({"material": "GL30\u00f8"})"), "--data-dir", windows});
    EXPECT_EQ(r.exit, 0) << r.err;
}

TEST(CliOutput, TextAndBench)
{
    CliRun r = run({"calc", "--text"});
    EXPECT_EQ(r.exit, 0);
    EXPECT_NE(r.out.find("1.97*"), std::string::npos) << r.out; // the middle support's bearing overrun

    r = run({"bench", "-n", "5"});
    ASSERT_EQ(r.exit, 0) << r.err;
    const json line = json::parse(r.out);
    EXPECT_EQ(line["runs"], 5);
    EXPECT_GT(line["median_us"].get<double>(), 0);
    EXPECT_LE(line["min_us"].get<double>(), line["median_us"].get<double>());
}

// A beam with loads in every table. A project file gives the span numbers of
// the moment rows of Q1 and Q2 only to the load dialogs' texts, which the
// beam is read from.
constexpr const char* kProjectBeam = R"({
  "prosjekt_s": "Lager \u00c5s", "id_s": "B3",
  "nf": 3, "ffl_s": [4.0, 5.5, 3.2], "nsupLeft_s": "I", "nsupRight_s": "F",
  "comb_rule": "610b", "loadcomb_option": 2, "profile_weight_on": true,
  "G": {"uni": [[1, 2.5], [3, 1.5]], "trap": [[2, 1.0, 2.0, 0.5, 3.5]], "pt": [[1, 10.0, 2.0]],
        "mom": [[3, 5.0, 1.0]]},
  "Q1": {"uni": [[2, 4.0]], "trap": [[1, 3.0, 0.0, 0.0, 4.0]], "pt": [[3, 7.5, 3.0], [1, 2.0, 1.0]],
         "mom": [[2, 3.0, 2.5]]},
  "Q2": {"uni": [[3, 0.75]], "pt": [[2, 4.0, 2.0]], "mom": [[1, -2.0, 1.5]]},
  "material": "GL28c", "prof_type_index": 1, "prof_index": 40,
  "duration_class": 2, "service_class": 2, "ksys": 1.1, "psi0_1": 0.5, "safety_class": 3,
  "vipping_off": false, "l_stag": [2.0, 2.5, 3.2], "lef_factor": [0.9, 1.0, 0.8], "load_location": 1
})";

// Saved, recalculated from the project and dumped back, each beam gives the
// results of its description; the dump names what the description named.
TEST(CliProject, ASavedBeamRecalculatesAndDumpsToTheSameBeam)
{
    for (const char* text :
         {R"({"prof_type_index": 0, "section_b": 98.0, "section_h": 223.0, "material": "C24"})",
          R"({"section_form": "Tube", "section_d": 315.0})", kProjectBeam}) {
        const std::string beam = description("project_beam.json", text);
        const std::string project = scratch("project_beam.kvel");
        const CliRun saved = run({"save", beam, "-o", project});
        ASSERT_EQ(saved.exit, 0) << saved.err;
        const CliRun from_description = run({"calc", beam});
        ASSERT_EQ(from_description.exit, 0) << from_description.err;
        EXPECT_EQ(json::parse(run({"calc", project}).out), json::parse(from_description.out)) << text;

        const CliRun dumped = run({"dump", project});
        ASSERT_EQ(dumped.exit, 0) << dumped.err;
        EXPECT_TRUE(dumped.err.empty()) << dumped.err; // same data folder, nothing to note
        const json back = json::parse(dumped.out);
        const json given = json::parse(text);
        for (const auto& [key, value] : given.items()) {
            if (key != "material") {
                EXPECT_EQ(back[key], value) << key;
            }
        }
        const CliRun from_dump = run({"calc", description("dumped.json", dumped.out)});
        EXPECT_EQ(json::parse(from_dump.out), json::parse(from_description.out)) << from_dump.err;
    }
    const std::string project = scratch("project_beam.kvel"); // kProjectBeam, saved last
    const CliRun from_project = run({"calc", project});
    EXPECT_EQ(json::parse(run({"dump", project}).out)["material_row"], 23) << "GL28c is row 23";

    // A catalogue edited after saving changes nothing of the project, and the
    // dump says that its description refers to the edited one.
    const std::string edited = data_folder("edited_data", "GL28c;EN 14080;S;28", "GL28c;EN 14080;S;31");
    const CliRun with_edited = run({"calc", project, "--data-dir", edited});
    EXPECT_EQ(json::parse(with_edited.out), json::parse(from_project.out));
    const CliRun noted = run({"dump", project, "--data-dir", edited});
    EXPECT_NE(noted.err.find("its own material catalogue"), std::string::npos) << noted.err;
}

TEST(CliProject, ProjectsThatCannotBeUsedExitTwoAndWriteNothing)
{
    const std::string garbage = scratch("garbage.kvel");
    std::ofstream(garbage) << "not a project at all";
    CliRun r = run({"calc", garbage});
    EXPECT_EQ(r.exit, 2);
    EXPECT_NE(r.err.find("Input file not compatible with Ferrelt Version  1.3.0 (the file ends"),
              std::string::npos)
        << r.err;

    r = run({"save", "-o", "/no/such/folder/x.kvel"});
    EXPECT_EQ(r.exit, 2);
    EXPECT_NE(r.err.find("Can't save /no/such/folder/x.kvel"), std::string::npos) << r.err;

    // A beam that fails its checks is not saved.
    const std::string refused = scratch("refused.kvel");
    r = run({"save", description("zero.json", R"({"nf": 2, "ffl_s": [5.0, 0.0]})"), "-o", refused});
    EXPECT_EQ(r.exit, 1);
    EXPECT_FALSE(fs::exists(refused));
}

TEST(CliProject, NamesBeyondTheCodePageAreSavedCalculatedAndNamedInMessages)
{
    const fs::path folder = scratch_folder() / "names";
    fs::remove_all(folder);
    std::set<std::string> names{"bjelke p\u00e5 loftet.kvel", "B\u201312 \u20ac.kvel", "\u03a9-bjelke.kvel"};
    for (const std::string& name : names) {
        const CliRun saved = run({"save", "-o", name}, folder);
        ASSERT_EQ(saved.exit, 0) << name << saved.err;
        const CliRun calculated = run({"calc", name}, folder);
        EXPECT_EQ(calculated.exit, 0) << name << calculated.err;
        const CliRun gone = run({"calc", "gone " + name}, folder);
        EXPECT_NE(gone.err.find("gone " + name + ": Can't find file"), std::string::npos) << gone.err;
    }
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.erase(utf8_text(entry.path().filename())); // the trace files are there too
    }
    EXPECT_TRUE(names.empty()) << *names.begin();
}

// A family is chosen before the section form, as in the window: the profile
// list of the new family falls to its middle and the circle follows, which has
// neither a buckling check nor a bearing check.
TEST(CliCalc, AFamilyThenACircleCalculatesTheCircle)
{
    const CliRun r = run({"calc", description("family_circle.json", R"({"prof_type_index": 0,
        "section_form": "Tube", "section_d": 240, "vipping_off": false})")});
    ASSERT_EQ(r.exit, 0) << r.err;
    const json result = json::parse(r.out);
    EXPECT_EQ(result["section"]["section_form"], "Tube");
    EXPECT_EQ(result["section"]["d"], 240.0);
    EXPECT_TRUE(result["checks"][0]["Uf_ltb"].is_null());
    EXPECT_FALSE(result["bearing"][1].contains("Uf_c90"));
}

// The program itself, once: what main adds to run_cli is the data folder it
// finds and the exit code it passes on. A path of blanks, quotes and a letter
// beyond ASCII reaches it whole.
TEST(CliBinary, CalculatesTheExampleAndRefusesAnUnknownCommand)
{
    ProcessResult r = run_program(KVELDER_CLI, {"calc", "--text"}, scratch_folder());
    EXPECT_EQ(r.exit, 0) << r.err;
    EXPECT_NE(r.out.find("Material GL30c"), std::string::npos) << r.out;
    r = run_program(KVELDER_CLI, {"draw"}, scratch_folder());
    EXPECT_EQ(r.exit, 2);
    EXPECT_NE(r.err.find("unknown command"), std::string::npos) << r.err;

    const fs::path odd = scratch_folder() / fs::path(u8"bjelke p\u00e5 'loft'.json");
    std::ofstream(odd) << R"({"ffl_s": [4.0, 6.0]})";
    const std::u8string utf8 = odd.u8string();
    r = run_program(KVELDER_CLI, {"calc", std::string(utf8.begin(), utf8.end())}, scratch_folder());
    EXPECT_EQ(r.exit, 0) << r.err;
}

// A build without Qt draws nothing: plot and report say so before they read a
// beam, and write nothing. A build with Qt draws (cli_picture_tests).
TEST(CliBinary, WithoutQtPlotAndReportSayThereAreNoPictures)
{
    if (cli::has_pictures()) {
        GTEST_SKIP() << "this build has pictures";
    }
    for (const auto& [command, output] : {std::pair{"plot", "pictures"}, {"report", "report.pdf"}}) {
        fs::remove_all(scratch(output));
        const CliRun r = run({command, "-o", scratch(output)});
        EXPECT_EQ(r.exit, 2) << command;
        EXPECT_NE(r.err.find("this build has no pictures"), std::string::npos) << r.err;
        EXPECT_FALSE(fs::exists(scratch(output))) << command;
    }
}

// The largest usage factor that calc gives a beam, and its section's area.
struct Usage {
    double uf = 0;
    double area = 0;
    double h = 0;
};

Usage usage_of(const std::string& beam)
{
    const CliRun r = run({"calc", beam});
    EXPECT_EQ(r.exit, 0) << r.err;
    const json j = json::parse(r.out);
    Usage u{0, j["section"]["b"].get<double>() * j["section"]["h"].get<double>(), j["section"]["h"]};
    for (const json& span : j["checks"]) {
        for (const char* key : {"Uf_mom", "Uf_tau", "Uf_ltb"}) {
            if (!span[key].is_null()) {
                u.uf = std::max(u.uf, span[key].get<double>());
            }
        }
    }
    for (const json& node : j["bearing"]) {
        if (node["kind"] == "R") {
            u.uf = std::max(u.uf, node["Uf_c90"].get<double>());
        }
    }
    return u;
}

TEST(CliSize, TheLightestProfileThatPassesAndTheBestWhereNoneDoes)
{
    const std::string light = R"("bearing_length": [150, 300, 150], "vipping_off": false,
        "G": {"uni": [[1, 0.5], [2, 0.5]]}, "Q1": {"uni": [[1, 1.0], [2, 1.0]]})";
    for (const auto& [family, loads] : {std::pair{0, light}, {1, std::string(R"("vipping_off": false)")}}) {
        const std::string beam = "{\"prof_type_index\": " + std::to_string(family) + ", " + loads + "}";
        const CliRun r = run({"size", description("size.json", beam)});
        ASSERT_EQ(r.exit, 0) << r.err;
        const json found = json::parse(r.out);

        // Every profile of the family, through calc.
        std::vector<Usage> usages;
        for (int k = 0;; ++k) {
            const std::string one = "{\"prof_type_index\": " + std::to_string(family) +
                                    ", \"prof_index\": " + std::to_string(k) + ", " + loads + "}";
            const CliRun c = run({"calc", description("profile.json", one)});
            if (c.exit == 2) {
                break; // past the end of the list
            }
            usages.push_back(usage_of(description("profile.json", one)));
        }
        ASSERT_GT(usages.size(), 10U);
        const auto lighter = [](const Usage& a, const Usage& b) {
            return a.area != b.area ? a.area < b.area : a.h < b.h;
        };
        const int index = found["prof_index"];
        const Usage chosen = usages.at(static_cast<std::size_t>(index));
        EXPECT_NEAR(found["uf_max"].get<double>(), chosen.uf, 1e-6);
        if (found["passes"]) {
            EXPECT_LE(chosen.uf, 1.0);
            for (const Usage& u : usages) {
                EXPECT_TRUE(u.uf > 1.0 || !lighter(u, chosen)) << u.area << " passes and is lighter";
            }
            EXPECT_EQ(found["candidates"].size(), 2U);
        } else {
            for (const Usage& u : usages) {
                EXPECT_GE(u.uf, chosen.uf - 1e-6);
            }
        }
        EXPECT_EQ(found["passes"], family == 0) << "family " << family;
    }

    // A circle has no rectangle to try.
    const CliRun circle = run({"size", description("circle.json", R"({"section_form": "Tube"})")});
    EXPECT_TRUE(circle.exit == 1 && circle.err.find("circle") != std::string::npos) << circle.err;
}

TEST(CliAnnexes, EachColumnIsTheBeamCalculatedUnderItsAnnex)
{
    const std::string beam = R"({"ffl_s": [4.0, 6.0], "comb_rule": "610b", "Q2": {"uni": [[2, 1.5]]}})";
    const CliRun r = run({"annexes", description("annexes.json", beam)});
    ASSERT_EQ(r.exit, 0) << r.err;
    const json annexes = json::parse(r.out)["annexes"];
    ASSERT_EQ(annexes.size(), 3U);
    for (const json& column : annexes) {
        const int row = column["setup_row"];
        json alone = json::parse(beam);
        alone["setup_row"] = row;
        const CliRun c = run({"calc", description("annex.json", alone.dump())});
        ASSERT_EQ(c.exit, 0) << c.err;
        json calc = json::parse(c.out);
        if (column["factors"]["kfi"].is_null()) {
            calc["factors"]["kfi"] = nullptr; // the annex has no classes
        }
        for (const char* key : {"factors", "strengths", "checks", "supports", "bearing"}) {
            EXPECT_EQ(column[key], calc[key]) << "row " << row << ": " << key;
        }
    }
    EXPECT_NE(annexes[0]["checks"], annexes[1]["checks"]);
}

} // namespace
} // namespace kvelder::test
