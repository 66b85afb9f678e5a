#include "report/print_report.h"

#include "drawing/glyphs.h"
#include "drawing/paper_plot.h"
#include "drawing/plot_scale.h"
#include "model/load_rows.h"
#include "recalc/explain_governing.h"
#include "report/code_check_report.h"
#include "report/detail_tables.h"
#include "report/report_sections.h"
#include "report/report_text.h"

#include <algorithm>
#include <array>

namespace kvelder {
namespace {

constexpr float kPageTop = 290;
constexpr float kLeft = 15;
constexpr float kHeaderY = kPageTop - 5;
// No section starts below this: what would not fit goes to the next page.
constexpr float kBottom = 8;

// The pages of one report: the driver alone starts a page, and each new page
// carries the header with its number.
class Pages {
public:
    Pages(PlotSurface& s, const Model& m, const ReportStamp& stamp) : m_s(s), m_m(m), m_stamp(stamp)
    {
        header();
    }
    void next()
    {
        m_s.NewPage();
        ++m_page;
        header();
    }
    // Starts a new page unless `height` mm fit above the bottom from `y`; the
    // y to go on from.
    float room(float y, float height)
    {
        if (y - height >= kBottom) {
            return y;
        }
        next();
        return kPageTop - 26;
    }
    int count() const { return m_page; }

private:
    void header()
    {
        // The logical page keeps its proportions inside the paper, centred.
        const float k = std::min(static_cast<float>(m_s.PixelWidth()) / 200,
                                 static_cast<float>(m_s.PixelHeight()) / kPageTop);
        const float dx = (static_cast<float>(m_s.PixelWidth()) / k - 200) / 2;
        const float dy = (static_cast<float>(m_s.PixelHeight()) / k - kPageTop) / 2;
        SetPlotScale(m_s, -dx, kPageTop + dy, 200 + dx, -dy);
        PrintPageHeader(m_s, m_m, m_stamp, kLeft, kHeaderY, m_page);
    }
    PlotSurface& m_s;
    const Model& m_m;
    const ReportStamp& m_stamp;
    int m_page = 1;
};

// The plots of section 3.2: a group's caption, then a band for each kind of
// load it has, then the beam.
constexpr float kCaptionHeight = 8;
constexpr float kBeamHeight = 11;

float load_plots_height(const Model& m)
{
    float h = kBeamHeight;
    for (const LoadGroupId id : kLoadGroups) {
        const LoadGroup& g = group_of(m, id);
        if (g.empty()) {
            continue;
        }
        h += kCaptionHeight;
        constexpr std::array<float, 4> kBand{8, 8, 4, 6}; // uniform, trapezoid, point, moment
        for (const LoadTable table : kLoadTables) {
            h += row_count(g, table) > 0 ? kBand[static_cast<std::size_t>(table)] : 0.0F;
        }
    }
    return h;
}

// From a heading's top to the line below it: its height in points, with leading.
float heading_gap(float size = 15)
{
    return size * 0.3528F * 1.3F;
}

float first_pages(PlotSurface& s, const Model& m, Pages& pages)
{
    PrintHeading(s, kLeft, kPageTop - 26, "1.0  Material data (MPa) ");
    PrintMaterialTable(s, m, kLeft, kPageTop - 26 - 5.8F);

    // Heading 2.0 always takes its "(mm)" form.
    PrintHeading(s, kLeft, kPageTop - 42,
                 pick(m, "2.0  Section Properties (mm) ", "2.0  Tverrsnitts data (mm)"));
    PrintSectionSketch(s, m, 13, kPageTop - 42 - 5);
    PrintSectionTable(s, m, kLeft, kPageTop - 42 - 7);

    PrintHeading(s, kLeft, kPageTop - 76,
                 pick(m, "3.0  Beam geometry and loadings (m,kN,kN/m,kNm) ",
                      "3.0  Bjelke geometri og laster (m,kN,kN/m,kNm)"));
    float y = PrintFactors(s, m, kLeft, kPageTop - 76 - 7);
    PrintHeading(s, kLeft, y - 2, pick(m, "3.1 Load input ", "3.1  Last input"), 12);
    y = PrintLoadTables(s, m, kLeft, y - 2 - heading_gap(12));

    // The plots stand below the room the tables take, and go to the next page
    // when they would pass the bottom of this one.
    y = std::min(y - 2, kPageTop - ReportHeightOfLoads(m));
    y = pages.room(y, heading_gap(12) + load_plots_height(m));
    PrintHeading(s, kLeft, y, pick(m, "3.2  Plots of beam and loadings ", "3.2  Plot av bjelke og laster"),
                 12);
    return PrintLoadPlots(s, m, kLeft, y - heading_gap(12));
}

void results_pages(PlotSurface& s, const Model& m, Pages& pages)
{
    pages.next();
    const std::string_view place = load_place_text(m);
    PrintHeading(s, kLeft, kPageTop - 26, pick(m, "4.0 Lateral torsional buckling", "4.0 Vippeparametre "));
    SetTableFont(s);
    PrintAt(s, kLeft + 95, kPageTop - 26, place);
    PrintBucklingTable(s, m, kLeft, kPageTop - 26 - 7);

    const bool a = m.comb_rule != "610b";
    PrintHeading(
        s, kLeft, kPageTop - 65,
        pick(m, a ? "5.0 Results: Design situation (6.10a)" : "5.0 Results: Design situation (6.10b)",
             a ? "5.0 Resultater: Design situasjon (6.10a)" : "5.0 Results: Design situasjon (6.10b)"));
    float y = kPageTop - 65 - heading_gap() - 1;
    PrintHeading(s, kLeft, y, pick(m, "5.1  Diagrams (kN, kNm, mm)", "5.1  Diagrammer (kN, kNm, mm) "), 12);
    y -= heading_gap(12);
    const bool total = m.loadcomb_option == 1;
    PrintAt(s, kLeft, y,
            pick(m,
                 total ? "(Based upon Permanet load and total Variable load in all span)"
                       : "(Based upon Permanet load and different Variable load cases)",
                 total ? "(Basert p\u00e5 Permanent last og total Variabel last i alle felt)"
                       : "(Basert p\u00e5 Permanent last og ulike Variabel lasttilfelle)"));
    y = PrintResults(s, m, kLeft, y - LinePitch(s) - 3);

    y -= 4;
    PrintHeading(s, kLeft, y,
                 pick(m, "6.0 Stress and stability controll ", "6.0 Spennings- og vippekontroll"));
    y = PrintCodeCheck(s, m, kLeft, y - heading_gap(), 1, std::min<int>(m.nf, 2));
    if (m.nf > 2) {
        pages.next();
        SetTableFont(s);
        y = PrintCodeCheck(s, m, kLeft, kPageTop - 26, 3, m.nf);
    }

    const bool round = m.section_form == "Tube";
    y = pages.room(y - 4, heading_gap() + LinePitch(s) * static_cast<float>(m.nnodes + 4));
    PrintHeading(s, kLeft, y,
                 round ? pick(m, "7.0 Support reactions", "7.0 Oppleggskrefter (kN)")
                       : pick(m, "7.0 Support reactions and pressure control",
                              "7.0 Oppleggskrefter og kontroll av flatetrykk  (kN, mm)"));
    PrintSupportTable(s, m, kLeft, y - heading_gap());
}

// The lines of a table whose first `heads` lines are its head. Where the page
// ends, the rest goes on under the header of the next page, its head again
// first; the head starts a page where its first `together` lines would not fit.
float print_paged(PlotSurface& s, Pages& pages, const std::vector<TableLine>& lines, std::size_t heads,
                  float x, float y, std::size_t together = 1)
{
    SetTableFont(s);
    const float pitch = LinePitch(s);
    const std::vector<TableLine> head(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(heads));
    y = PrintLines(s, head, x, pages.room(y, pitch * static_cast<float>(heads + together)));
    for (std::size_t k = heads; k < lines.size(); ++k) {
        if (y - pitch < kBottom) {
            pages.next();
            y = PrintLines(s, head, x, kPageTop - 26);
        }
        y = PrintLines(s, {lines[k]}, x, y);
    }
    return y;
}

void detail_pages(PlotSurface& s, const Model& m, Pages& pages)
{
    pages.next();
    PrintHeading(s, kLeft, kPageTop - 28,
                 pick(m, "8.0 Max. and min. forces and deformations(m, kN, kNm, mm) ",
                      "8.0 Maks. og min. krefter og deformasjoner (m, kN, kNm, mm)"));
    float y = print_paged(s, pages, force_lines(m), kDetailHeads, kLeft, kPageTop - 28 - 4 - heading_gap());
    y = print_paged(s, pages, reaction_lines(m), kDetailHeads, kLeft, y - LinePitch(s));
    if (const auto governing = explain_governing(m)) {
        // A short table, kept whole.
        const std::vector<TableLine> lines = governing_lines(m, *governing);
        print_paged(s, pages, lines, kGoverningHeads, kLeft, y - LinePitch(s),
                    lines.size() - kGoverningHeads);
    }
}

} // namespace

float ReportHeightOfLoads(const Model& m)
{
    float height = m.G.empty() ? 110.0F : 87.0F;
    bool first = true;
    for (const LoadGroupId id : kLoadGroups) {
        const LoadGroup& g = group_of(m, id);
        if (g.empty()) {
            continue;
        }
        int rows = 0;
        for (const LoadTable table : kLoadTables) {
            rows = std::max(rows, row_count(g, table));
        }
        height += kLoadPitch * static_cast<float>(rows);
        height += first ? 0.0F : 12.0F;
        first = false;
    }
    return height;
}

int PrintReport(PlotSurface& s, const Model& m, const ReportStamp& stamp, const PrintSession& session)
{
    Pages pages(s, m, stamp);
    first_pages(s, m, pages);
    results_pages(s, m, pages);
    if (session.detail_mode) {
        detail_pages(s, m, pages);
    }
    return pages.count();
}

} // namespace kvelder
