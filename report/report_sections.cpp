#include "report/report_sections.h"

#include "design/section_checks.h"
#include "drawing/glyphs.h"
#include "files/code_page.h"
#include "files/number_format.h"
#include "model/load_rows.h"
#include "report/report_text.h"
#include "ui/result_columns.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace kvelder {
namespace {

using Align = TableCell::Align;

TableCell text(float x, std::string_view s, bool bold = false)
{
    return {x, std::string(s), Align::Left, bold};
}

TableCell right(float x, std::string s)
{
    return {x, std::move(s), Align::Right, false};
}

// Cell `k` of each column goes onto line `k`: blocks of rows that stand side
// by side, each as long as it is.
std::vector<TableLine> side_by_side(const std::vector<std::vector<std::vector<TableCell>>>& columns)
{
    std::vector<TableLine> lines;
    for (const auto& column : columns) {
        if (lines.size() < column.size()) {
            lines.resize(column.size());
        }
        for (std::size_t k = 0; k < column.size(); ++k) {
            auto& cells = lines[k].cells;
            cells.insert(cells.end(), column[k].begin(), column[k].end());
        }
    }
    return lines;
}

std::string_view family_words(const Model& m)
{
    const std::string_view family = m.material_family;
    if (family.starts_with("tre_bjelke")) {
        return "(trelast)";
    }
    if (family.starts_with("lam_bjelke")) {
        return "(laminert)";
    }
    if (family.starts_with("k_bjelke")) {
        return "(K-bjelken)";
    }
    if (family.starts_with("kerto")) {
        return "(Kerto-bjelken)";
    }
    return {};
}

std::string material_name(const Model& m)
{
    const auto& rows = m.material_table.rows;
    if (m.material_row < 0 || m.material_row >= static_cast<int>(rows.size())) {
        return {};
    }
    return as_utf8(rows[static_cast<std::size_t>(m.material_row)].name);
}

std::string profile_name(const Model& m)
{
    if (is_true(m.standard_section) && m.prof_type_index >= 0 && m.prof_type_index < 4) {
        const auto& list = m.profile_families.of(m.prof_type_index);
        if (m.prof_index >= 0 && m.prof_index < static_cast<int>(list.size())) {
            return as_utf8(list[static_cast<std::size_t>(m.prof_index)].name);
        }
    }
    return "Generell";
}

bool round_section(const Model& m)
{
    return m.section_form == "Tube";
}

} // namespace

std::string TableLine::at(float x) const
{
    for (const TableCell& c : cells) {
        if (std::abs(c.x - x) < 0.01F) {
            return c.text;
        }
    }
    return {};
}

float PrintLines(PlotSurface& surface, const std::vector<TableLine>& lines, float x, float y)
{
    SetTableFont(surface);
    const float font_pitch = LinePitch(surface);
    for (const TableLine& line : lines) {
        for (const TableCell& c : line.cells) {
            surface.SetFontBold(c.bold);
            if (c.align == Align::Right) {
                PrintRight(surface, x + c.x, y, c.text);
            } else {
                PrintAt(surface, x + c.x, y, c.text);
            }
        }
        surface.SetFontBold(false);
        y -= line.pitch > 0 ? line.pitch : font_pitch;
    }
    return y;
}

// --- 1.0 -----------------------------------------------------------------------------

std::vector<TableLine> material_lines(const Model& m)
{
    // Four columns of three: the material and its classes, then the moduli,
    // the factors and the strengths, each a label, a number and its unit.
    const auto value = [&m](float x, std::string_view label, float v, std::string_view unit = {}) {
        constexpr float kWidth = 22; // label and number
        std::vector<TableCell> cells{text(x, label),
                                     right(x + kWidth, format_number(m, v, unit.empty() ? "0.00" : "0.0"))};
        if (!unit.empty()) {
            cells.push_back(text(x + kWidth + 1, unit));
        }
        return cells;
    };
    std::string material = "Material : " + material_name(m);
    material += (material.back() == ' ' ? "" : " ") + std::string(family_words(m));
    return side_by_side({
        {{text(0, material)},
         {text(0, "Lastvarighetsklasse = " + factor_labels(m).duration)},
         {text(0, "Klimaklasse = " + std::to_string(m.service_class))}},
        {value(60, "E0,mean =", m.E0_mean, "MPa"), value(60, "E0,05 =", m.E0_05, "MPa"),
         value(60, "kdef =", m.kdef)},
        {value(100, "kmod =", m.kmod), value(100, "gm =", m.gamma_M), value(100, "ksys =", m.ksys)},
        {value(135, "fmk =", m.fmk, " MPa"), value(135, "fvk    =", m.fvk, " MPa"),
         value(135, "fc90k =", m.fc90k, " MPa")},
    });
}

float PrintMaterialTable(PlotSurface& surface, const Model& m, float x, float y)
{
    return PrintLines(surface, material_lines(m), x, y);
}

// --- 2.0 -----------------------------------------------------------------------------

namespace {

constexpr float kSketchSize = 22; // mm, square
constexpr float kDimensions = 24; // mm from the section's x: the three blocks beside the sketch
constexpr float kProperties = 68;
constexpr float kStrengths = 112;

} // namespace

std::vector<TableLine> section_lines(const Model& m)
{
    const auto row = [&m](float x, std::string_view label, float v, float width, std::string_view pattern) {
        return std::vector<TableCell>{text(x, label), right(x + width, format_number(m, v, pattern))};
    };
    std::vector<std::vector<TableCell>> dimensions{
        {text(kDimensions, pick(m, "Dimensions", "Dimensjoner (mm)"), true)},
        {text(kDimensions, pick(m, "Profile type", "Profil type")), text(kDimensions + 17, profile_name(m))},
    };
    if (round_section(m)) {
        dimensions.push_back(row(kDimensions, "d  = ", m.section_d, 28, "0.00"));
    } else {
        dimensions.push_back(row(kDimensions, "b  = ", m.section_b, 28, "0.00"));
        dimensions.push_back(row(kDimensions, "h  = ", m.section_h, 28, "0.00"));
    }
    const float value_at = kStrengths - kProperties - 6;
    return side_by_side({
        dimensions,
        {{text(kProperties, pick(m, "Section properties.", "Tverrsnittsdata (mm2,mm3,mm4)"), true)},
         row(kProperties, "Axx            =", m.Axx, value_at, "0.00E+00"),
         row(kProperties, "Iyy            =", m.I_mm4, value_at, "0.00E+00"),
         row(kProperties, "Wyy            =", m.Wyy, value_at, "0.00E+00"),
         row(kProperties, "kh            =", m.kh, value_at, "0.00"),
         row(kProperties, "kcr            =", m.kcr, value_at, "0.00")},
        {{text(kStrengths, pick(m, "Design strenght (MPa)", "Dimensjonerende materialfasthet (MPa)"), true)},
         row(kStrengths, "fv,d = kmod x ksys x fv,k / gm  =", m.fvd, 170 - kStrengths, "0.00"),
         row(kStrengths, "fm,y,d = kmod x ksys x kh x fm,k / gm  = ", m.fmd, 170 - kStrengths, "0.00"),
         row(kStrengths, "fc,90,d = kmod x ksys  x fc,90,k / gm  = ", m.fc90d, 170 - kStrengths, "0.00")},
    });
}

void PrintSectionSketch(PlotSurface& surface, const Model& m, float x, float y)
{
    // The section to scale in the upper part of the frame, its sizes beside and below.
    constexpr float kShape = 14;
    const float cx = x + kSketchSize / 2 - 2;
    const float cy = y - kShape / 2 - 1;
    SetTableFont(surface);
    surface.SetFillColor(kGrey);
    surface.SetFillStyle(FillStyle::Solid);
    if (round_section(m)) {
        // A circle filled as a polygon in device pixels.
        constexpr int kCorners = 72;
        const float r = kShape / 2;
        std::array<PixelPoint, kCorners> ring{};
        for (int k = 0; k < kCorners; ++k) {
            const double a = 2 * std::numbers::pi * k / kCorners;
            const double px = (cx + r * std::cos(a) - surface.ScaleLeft()) / surface.ScaleWidth();
            const double py = (cy + r * std::sin(a) - surface.ScaleTop()) / surface.ScaleHeight();
            ring[static_cast<std::size_t>(k)] = {to_pixel(px * surface.PixelWidth()),
                                                 to_pixel(py * surface.PixelHeight())};
        }
        surface.Polygon(ring);
        PrintAt(surface, cx - r, cy - r - 1, "d = " + format_number(m, m.section_d, "0"));
    } else {
        const float b = std::max(m.section_b, 0.0F), h = std::max(m.section_h, 0.0F);
        const float scale = kShape / std::max({b, h, 1.0F});
        const float w = std::max(b * scale, 0.5F), d = std::max(h * scale, 0.5F);
        surface.Line(cx - w / 2, cy + d / 2, cx + w / 2, cy - d / 2, kBlack, true);
        PrintAt(surface, cx - w / 2, cy - d / 2 - 1, "b = " + format_number(m, b, "0"));
        PrintAt(surface, cx + w / 2 + 1, cy + 1.5F, "h = " + format_number(m, h, "0"));
    }
    surface.SetFillStyle(FillStyle::Transparent);
}

float PrintSectionTable(PlotSurface& surface, const Model& m, float x, float y)
{
    // The sketch beside the table is drawn on its own; the table keeps clear of its height.
    return std::min(PrintLines(surface, section_lines(m), x, y), y - kSketchSize);
}

// --- 3.0 -----------------------------------------------------------------------------

std::vector<TableLine> factor_lines(const Model& m)
{
    const bool safety = m.annex == "Swe" || m.annex == "Fin" || m.annex == "Den";
    std::string safety_class = factor_labels(m).safety_class;
    if (safety_class.empty()) {
        safety_class = std::to_string(m.safety_class);
    }
    const auto psi = [&m](float x, std::string_view label, float v) {
        return std::vector<TableCell>{text(x, label), right(x + 28, format_number(m, v, "0.0"))};
    };
    return side_by_side({
        {{text(0, safety ? "  Safety class  =   "
                         : pick(m, "Reliability class   =   ", "P\u00e5litighets klasse   =   ")),
          right(45, safety_class)},
         psi(0, "Psi0 (Q1) = ", m.psi0_1),
         psi(0, "Psi2 (Q1) =     ", m.psi2_1)},
        {{}, psi(50, "Psi0 (Q2) = ", m.psi0_2), psi(50, "Psi2 (Q2) =  ", m.psi2_2)},
    });
}

float PrintFactors(PlotSurface& surface, const Model& m, float x, float y)
{
    return PrintLines(surface, factor_lines(m), x, y);
}

// --- 3.1 -----------------------------------------------------------------------------

namespace {

// One table of a group: where it stands, its title and its value columns.
struct LoadColumns {
    LoadTable table;
    float x;
    std::string_view title_eng, title_nor;
    std::vector<std::string_view> heads; // after the span
};

constexpr float kSpanColumn = 8;   // right edge of the span number in a table
constexpr float kValueColumn = 12; // width of each value column

// In the order of the report, which puts the moments before the points.
const std::array<LoadColumns, 4> kLoadColumns{{
    {LoadTable::Uniform, 0, "Uniform loads", "Jevnt fordelt last", {"q"}},
    {LoadTable::Trapezoid, 30, "Trapezoidal loads", "Trapes laster", {"q1", "q2 ", "x1", "x2"}},
    {LoadTable::Moment, 94, "Moment loads", "Moment laster", {"M", "x "}},
    {LoadTable::Point, 132, "Point loads", "Punkt laster", {"P", "x "}},
}};

void add_group(std::vector<TableLine>& lines, const Model& m, const LoadGroup& g, std::string_view heading,
               bool empty)
{
    const auto line = [&lines] {
        lines.push_back(TableLine{{}, kLoadPitch});
        return lines.size() - 1;
    };
    auto& first = lines[line()].cells;
    first.push_back(text(0, heading, true));
    if (&g == &m.G && is_true(m.profile_weight_on)) {
        first.push_back(text(25, pick(m, "(Selfweight of beam included as permanent load)",
                                      "(Egenvekt av bjelke er inkludert som permanent last)")));
    }
    if (empty) {
        lines[line()].cells = {text(0, "* "),
                               text(3, pick(m, "No permanent load: ", "Ingen permanent last: "))};
    } else {
        const std::size_t titles = line();
        const std::size_t heads = line();
        for (const LoadColumns& t : kLoadColumns) {
            const int rows = row_count(g, t.table);
            if (rows <= 0) {
                continue;
            }
            const auto column = [&t](std::size_t c) {
                return t.x + kSpanColumn + kValueColumn * static_cast<float>(c);
            };
            lines[titles].cells.push_back(text(t.x, pick(m, t.title_eng, t.title_nor)));
            lines[heads].cells.push_back(right(column(0), std::string(pick(m, "Span", "Felt"))));
            for (std::size_t c = 0; c < t.heads.size(); ++c) {
                lines[heads].cells.push_back(right(column(c + 1), std::string(t.heads[c])));
            }
            for (int k = 1; k <= rows; ++k) {
                const std::size_t at = heads + static_cast<std::size_t>(k);
                if (lines.size() <= at) {
                    lines.resize(at + 1, TableLine{{}, kLoadPitch});
                }
                const LoadRow r = row(g, t.table, k);
                lines[at].cells.push_back(right(column(0), format_number(m, r.span, "0")));
                for (std::size_t c = 0; c < t.heads.size(); ++c) {
                    lines[at].cells.push_back(right(column(c + 1), format_number(m, r.values[c], "0.00")));
                }
            }
        }
    }
    // A little air before the next group.
    lines.back().pitch += 1.5F;
}

} // namespace

std::vector<TableLine> load_lines(const Model& m)
{
    std::vector<TableLine> lines;
    const std::string_view g_heading = is_true(m.profile_weight_on)
                                           ? pick(m, "Permanent loads G:", "Permanent last G:")
                                           : pick(m, "Permanent loads G: ", "Permanent last G: ");
    add_group(lines, m, m.G, g_heading, is_true(m.G_empty) || m.G.empty());
    if (!is_true(m.Q1_empty) && !m.Q1.empty()) {
        add_group(lines, m, m.Q1, pick(m, "Variable loads Q1: ", "Variabel last Q1: "), false);
    }
    if (!is_true(m.Q2_empty) && !m.Q2.empty()) {
        add_group(lines, m, m.Q2, pick(m, "Variable loads Q2: ", "Variabel last Q2: "), false);
    }
    return lines;
}

float PrintLoadTables(PlotSurface& surface, const Model& m, float x, float y)
{
    return PrintLines(surface, load_lines(m), x, y);
}

// --- 4.0 -----------------------------------------------------------------------------

std::string_view load_place_text(const Model& m)
{
    return m.load_location == 0 ? pick(m, "(Load applied at the top of the beam (compression side)",
                                       "(All last virker p\u00e5 ok. bjelke (trykk side))")
                                : pick(m, "(Load applied at the bottom of the beam (tension side)",
                                       "(All last virker p\u00e5 uk. bjelke (strekk side))");
}

std::vector<TableLine> buckling_lines(const Model& m)
{
    if (!buckling_checked(m)) {
        return {{{text(0, pick(m, "No lateral tosional buckling , circular profile",
                               "Ingen vipping , sirkul\u00e6r profil"))}},
                {{text(0, pick(m, "or compression side of span is contiuously supported",
                               "eller trykksiden i felt er kontinuerlig fastholdt."))}}};
    }
    // Column edges: span, length, lef / l, lef, slenderness, k_crit.
    constexpr std::array<float, 6> edge{8, 45, 75, 105, 125, 145};
    const auto head = [&edge](std::array<std::string_view, 6> texts) {
        TableLine line;
        for (std::size_t c = 0; c < texts.size(); ++c) {
            if (!texts[c].empty()) {
                line.cells.push_back(right(edge[c], std::string(texts[c])));
            }
        }
        return line;
    };
    std::vector<TableLine> lines{
        head({pick(m, "Span ", "Felt "), pick(m, "Length of span or", "Feltlengde eller"), "lef / l",
              pick(m, "Effective", "Effektive"), "Lamda", " k_crit"}),
        head({pick(m, "no. ", "nr "), pick(m, "c/c lateral support", "c/c stagpunkter"),
              pick(m, "Table 6.1, EC5", "Tabell 6.1, EC5"), pick(m, "lenght, lef", "vippelengde"), "", ""}),
        TableLine{},
    };
    for (int i = 1; i <= m.nf; ++i) {
        const std::array<float, 5> values{m.l_stag(i), m.lef_factor(i), m.l_eff(i), m.lambda_rel_m(i),
                                          m.k_crit(i)};
        TableLine& line = lines.emplace_back();
        line.cells.push_back(right(edge[0], format_number(m, i, "0")));
        for (std::size_t c = 0; c < values.size(); ++c) {
            line.cells.push_back(right(edge[c + 1], format_number(m, values[c], "0.00")));
        }
    }
    return lines;
}

float PrintBucklingTable(PlotSurface& surface, const Model& m, float x, float y)
{
    return PrintLines(surface, buckling_lines(m), x, y);
}

// --- 7.0 -----------------------------------------------------------------------------

std::vector<TableLine> support_lines(const Model& m)
{
    // Column edges: node, reaction, sigma, bearing length, kc90, usage; the
    // usage head starts left of its numbers.
    constexpr float kNode = 12, kForce = 42, kSigma = 64, kLength = 90, kKc90 = 104, kUfHead = 108, kUf = 140;
    const bool rectangle = !round_section(m);
    std::vector<TableLine> lines(2);
    lines[0].cells = {right(kNode, std::string(pick(m, "Support", "Knutepkt."))),
                      right(kForce, std::string(pick(m, "Support reaction ", "Oppleggskraft")))};
    lines[1].cells = {right(kNode, std::string(pick(m, "no. ", "nr ")))};
    if (rectangle) {
        lines[0].cells.insert(lines[0].cells.end(),
                              {right(kSigma, "Sigma c,90,d"),
                               right(kLength, std::string(pick(m, "Support length", "Oppleggslengde"))),
                               right(kKc90, "kc90"), text(kUfHead, "      Uf = Sigma c,90,d / fc,90,d ")});
        lines[1].cells.push_back(right(kLength, "(lef)"));
    }
    for (int i = 1; i <= m.nnodes; ++i) {
        TableLine& line = lines.emplace_back();
        line.cells.push_back(right(kNode, format_number(m, i, "0")));
        const char kind = bearing_kind(m, i);
        if (kind == kFree) {
            line.cells.push_back(right(kForce, std::string(pick(m, "Free", "Fri"))));
            continue;
        }
        line.cells.push_back(right(kForce, format_number(m, m.R_max(reaction_index(m, i)), "##0.00 ")));
        if (kind == kBuiltIn) {
            line.cells.push_back(right(kSigma, std::string(pick(m, "Fixed", "Innspent"))));
        } else if (rectangle) {
            line.cells.insert(line.cells.end(),
                              {right(kSigma, format_number(m, m.sigma_c90(i), "0.00")),
                               right(kLength, format_number(m, m.bearing_length(i), "##0.0 ")),
                               right(kKc90, format_number(m, m.bearing_kc90(i), "0.00")),
                               right(kUf, " = " + format_number(m, m.Uf_c90(i), " 0.00"))});
        }
    }
    return lines;
}

float PrintSupportTable(PlotSurface& surface, const Model& m, float x, float y)
{
    return PrintLines(surface, support_lines(m), x, y);
}

} // namespace kvelder
