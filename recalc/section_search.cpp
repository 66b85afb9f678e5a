#include "recalc/section_search.h"

#include "combination/scratch_files.h"
#include "design/section_checks.h"
#include "files/code_page.h"
#include "files/number_format.h"
#include "recalc/calc_screen.h"
#include "recalc/main_calc.h"
#include "ui/edits.h"
#include "ui/section_finder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <set>

namespace kvelder {
namespace {

// The largest usage factor of a calculated beam and its check; a factor that
// is no number counts as the worst of all.
void worst_usage(const Model& m, SectionCandidate& c)
{
    c.uf_max = -std::numeric_limits<float>::infinity();
    const auto consider = [&c](float uf, GoverningCheck check) {
        const float u = std::isnan(uf) ? std::numeric_limits<float>::infinity() : uf;
        if (u > c.uf_max) {
            c.uf_max = u, c.governing = check;
        }
    };
    const bool rectangle = m.section_form == "Firk";
    for (int i = 1; i <= m.nf; ++i) {
        consider(m.Uf_mom(i), GoverningCheck::Bending);
        consider(m.Uf_tau(i), GoverningCheck::Shear);
        if (buckling_checked(m)) {
            consider(m.Uf_ltb(i), GoverningCheck::Buckling);
        }
    }
    for (int node = 1; rectangle && node <= m.nnodes; ++node) {
        if (bearing_kind(m, node) == kSimple) {
            consider(m.Uf_c90(node), GoverningCheck::Bearing);
        }
    }
}

// One beam recalculated again and again with another section, without a
// trace, so that the engineer's own trace stays as the last real run left it.
class Trials {
public:
    Trials(const Model& m, const LoadDialogs* dialogs)
        : m_beam(std::make_unique<Model>(m)), m_dialogs(dialogs ? std::optional(*dialogs) : std::nullopt)
    {
    }

    // The first message of a recalculation of the beam as it stands.
    std::optional<std::string> failure()
    {
        RecordingScreen screen;
        run(screen);
        if (!screen.messages.empty()) {
            return screen.messages.front().text;
        }
        if (!screen.load_failures.empty()) {
            return std::string("a load row fails its check");
        }
        return std::nullopt;
    }

    // The section as the engineer's choice of it would set it, calculated;
    // none when the beam then fails a check.
    std::optional<SectionCandidate> trial(SectionCandidate c)
    {
        choose_candidate(*m_beam, c);
        RecordingScreen screen;
        run(screen);
        if (!screen.messages.empty() || !screen.load_failures.empty()) {
            return std::nullopt;
        }
        c.prof_type_index = m_beam->prof_type_index;
        c.b = m_beam->section_b;
        c.h = m_beam->section_h;
        worst_usage(*m_beam, c);
        return c;
    }

private:
    void run(RecordingScreen& screen)
    {
        MainCalc(*m_beam, m_dialogs ? &*m_dialogs : nullptr, screen, m_no_trace);
    }

    std::unique_ptr<Model> m_beam;
    std::optional<LoadDialogs> m_dialogs;
    ScratchFiles m_no_trace;
};

bool lighter(const SectionCandidate& a, const SectionCandidate& b)
{
    const float area_a = a.b * a.h;
    const float area_b = b.b * b.h;
    return area_a != area_b ? area_a < area_b : a.h < b.h;
}

// The three to show: the lightest that pass, or the closest to passing.
std::vector<SectionCandidate> ranked(std::vector<SectionCandidate> tried)
{
    std::vector<SectionCandidate> passing;
    std::copy_if(tried.begin(), tried.end(), std::back_inserter(passing),
                 [](const SectionCandidate& c) { return c.passes(); });
    if (!passing.empty()) {
        std::stable_sort(passing.begin(), passing.end(), lighter);
        tried = std::move(passing);
    } else {
        std::stable_sort(tried.begin(), tried.end(),
                         [](const SectionCandidate& a, const SectionCandidate& b) {
                             return a.uf_max != b.uf_max ? a.uf_max < b.uf_max : lighter(a, b);
                         });
    }
    tried.resize(std::min<std::size_t>(tried.size(), 3));
    return tried;
}

std::string rectangle_name(float b, float h)
{
    return format_number(b, "0") + "x" + format_number(h, "0");
}

} // namespace

SectionSearch find_lightest_section(const Model& m, const LoadDialogs* dialogs, float height_step)
{
    SectionSearch found;
    if (m.section_form == "Tube") {
        found.refused = SearchRefusal::Circle;
        return found;
    }
    if (!(height_step >= 1)) {
        found.refused = SearchRefusal::StepTooSmall;
        return found;
    }
    Trials trials(m, dialogs);
    if (auto failure = trials.failure()) {
        found.refused = SearchRefusal::BeamFails;
        found.detail = *failure;
        return found;
    }
    const std::vector<ProfileRow>& rows = m.profile_families.of(m.prof_type_index);
    std::vector<SectionCandidate> tried;

    // Kerto and k_bjelke beams are free rectangles, whatever the option says.
    const bool catalogue = is_true(m.standard_section) && section_option_enabled(m, SectionOption::Standard);
    if (catalogue) {
        for (int k = 0; k < static_cast<int>(rows.size()); ++k) {
            SectionCandidate profile;
            profile.prof_index = k;
            profile.profile = as_utf8(rows[static_cast<std::size_t>(k)].name);
            if (auto c = trials.trial(std::move(profile))) {
                tried.push_back(*c);
            }
        }
        found.candidates = ranked(std::move(tried));
        return found;
    }

    // A free rectangle: each width of the catalogue, its heights from the least
    // up, until three pass or a height would be heavier than the third lightest.
    std::set<float> widths;
    float least = std::numeric_limits<float>::max();
    float greatest = 0;
    for (const ProfileRow& row : rows) {
        if (row.b > 0 && row.h > 0) {
            widths.insert(row.b);
            least = std::min(least, row.h);
            greatest = std::max(greatest, row.h);
        }
    }
    std::vector<float> third_lightest; // areas of the passing sections so far
    // However far apart a catalogue's heights lie, a width tries no more than
    // this many, so that the search ends within seconds.
    constexpr int kMostHeights = 2000;
    for (const float b : widths) {
        int passed = 0;
        for (int k = 0; passed < 3 && k < kMostHeights; ++k) {
            const float h = least + static_cast<float>(k) * height_step;
            if (h > greatest) {
                break;
            }
            if (third_lightest.size() >= 3 && b * h > third_lightest[2]) {
                break;
            }
            SectionCandidate rectangle;
            rectangle.profile = rectangle_name(b, h);
            rectangle.b = b, rectangle.h = h;
            auto c = trials.trial(std::move(rectangle));
            if (!c) {
                continue;
            }
            tried.push_back(*c);
            if (c->passes()) {
                ++passed;
                third_lightest.push_back(b * h);
                std::sort(third_lightest.begin(), third_lightest.end());
            } else if (c->governing == GoverningCheck::Bearing) {
                // The bearing stress of a width only grows with the height's
                // weight: no taller section of this width passes.
                break;
            }
        }
    }
    found.candidates = ranked(std::move(tried));
    return found;
}

} // namespace kvelder
