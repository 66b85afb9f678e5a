#include "files/project_layout.h"

#include "files/catalogue.h"
#include "files/setup_file.h"
#include "model/model.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kvelder {
namespace {

constexpr std::size_t kSlots = 11;

// The slots a table of each load kind has in the file: G and Q1 have eleven of
// each, Q2 six uniform and seven moment slots.
struct SlotCounts {
    std::size_t uni, trap, pt, mom;
    bool whole_spans; // spans as 16-bit integers (Q2) instead of floats
};
constexpr SlotCounts kFloatSpans{kSlots, kSlots, kSlots, kSlots, false};
constexpr SlotCounts kWholeSpans{6, kSlots, kSlots, 7, true};

// The layout of the file, written once for both directions: `io` is a Writer
// or a Reader, and the parts are const for the one and not for the other.

template <typename Io, typename Group> void load_fields(Io& io, Group& g, SlotCounts n)
{
    io.spans(g.uni_span, n.uni, n.whole_spans);
    io.slots(g.uni_q, n.uni);
    io.i16(g.uni_n);
    io.spans(g.trap_span, n.trap, n.whole_spans);
    for (auto* s : {&g.trap_q1, &g.trap_q2, &g.trap_a, &g.trap_b}) {
        io.slots(*s, n.trap);
    }
    io.i16(g.trap_n);
    io.spans(g.pt_span, n.pt, n.whole_spans);
    io.slots(g.pt_P, n.pt);
    io.slots(g.pt_a, n.pt);
    io.i16(g.pt_n);
    io.spans(g.mom_span, n.mom, n.whole_spans);
    io.slots(g.mom_M, n.mom);
    io.slots(g.mom_a, n.mom);
    io.i16(g.mom_n);
}

template <typename Io, typename Record> void record_fields(Io& io, Record& p)
{
    io.text(p.prosjekt_s);
    io.text(p.id_s);
    io.i16(p.nf);
    io.slots(p.ffl_s, kSlots);
    io.text(p.nsupLeft_s);
    io.text(p.nsupRight_s);
    io.reserved(22 + 352);
    io.i16(p.loadcomb_option);
    io.fix(p.comb_rule, 4);
    io.i16(p.profile_weight_on);
    io.reserved(48);
    for (auto* v : {&p.creep_G, &p.gamma_G_a, &p.gamma_G_b, &p.creep_Q1, &p.gamma_Q1_a, &p.gamma_Q1_b,
                    &p.creep_Q2, &p.gamma_Q2_a, &p.gamma_Q2_b}) {
        io.f32(*v);
    }
    load_fields(io, p.G, kFloatSpans);
    load_fields(io, p.Q1, kFloatSpans);
    load_fields(io, p.Q2, kWholeSpans);
    io.spare_text();
    io.spare_text();
    io.reserved(96);
    io.fix(p.material_family, 10);
    io.i16(p.standard_section);
    for (auto* v : {&p.section_b, &p.section_h, &p.section_d}) {
        io.f32(*v);
    }
    io.i16(p.duration_class);
    io.i16(p.service_class);
    io.f32(p.ksys);
    io.fix(p.section_form, 4);
    for (auto* s : {&p.bearing_length, &p.bearing_kc90, &p.l_stag, &p.lef_factor}) {
        io.slots(*s, kSlots);
    }
    io.reserved(2);
    io.f32(p.load_location);
    io.i16(p.vipping_off);
    io.reserved(26);
}

template <typename Io, typename File> void project_fields(Io& io, File& f)
{
    io.block("the setup");
    io.text(f.setup.setup_language);
    io.spare_text();
    io.i16(f.setup.setup_row);
    io.i16(f.setup.setup_last_row);
    for (auto& line : f.setup.setup_header_line) {
        io.text(line);
    }
    for (auto& r : f.setup.setup_table) {
        io.text(r.annex);
        io.text(r.annex_title);
        for (auto* v : {&r.gamma_timb, &r.gamma_lam, &r.gamma_kerto, &r.gamma_k_bjelke, &r.kcr_timb,
                        &r.kcr_lam, &r.kcr_kerto, &r.kcr_k_bjelke}) {
            io.f32(*v);
        }
        for (auto* v : {&r.kcr_exposed, &r.safety_class, &r.psi0_1_index, &r.psi0_2_index, &r.psi2_1_index,
                        &r.psi2_2_index}) {
            io.i16(*v);
        }
    }

    io.block("the material catalogue");
    for (auto& r : f.materials.rows) {
        io.text(r.name);
        io.text(r.grade_code);
        io.text(r.spare_text);
        for (auto* v :
             {&r.fmk, &r.ft0k, &r.fc90k, &r.fvk, &r.E0mean, &r.E005, &r.spare, &r.density, &r.s_exponent}) {
            io.f32(*v);
        }
    }

    io.block("the selection of material and profile");
    io.i16(f.material_row);
    io.i16(f.materials.last_row);
    io.i16(f.prof_type_index);
    io.i16(f.prof_index);
    io.i16(f.profiles.last_row);

    io.block("the profile catalogue");
    for (auto& r : f.profiles.rows) {
        io.text(r.name);
        io.text(r.family_code);
        io.text(r.spare_text);
        io.f32(r.b);
        io.f32(r.h);
    }

    io.block("the project record");
    record_fields(io, f.record);
}

class Writer {
public:
    void block(std::string_view name) { m_block = name; }
    void i16(std::int16_t v) { m_out.i16(v); }
    void f32(float v) { m_out.f32(v); }
    void text(const std::string& s)
    {
        if (!m_out.str(s)) {
            throw std::length_error("a text of " + std::string(m_block) +
                                    " is longer than a project file can hold");
        }
    }
    void spare_text() { m_out.i16(0); }
    void fix(const std::string& s, std::size_t width) { m_out.fix(s, width); }
    void reserved(std::size_t count) { m_out.zeros(count); }
    void slots(const Slots& s, std::size_t count)
    {
        for (std::size_t k = 0; k < count; ++k) {
            m_out.f32(s[k]);
        }
    }
    void spans(const Slots& s, std::size_t count, bool whole)
    {
        if (!whole) {
            slots(s, count);
            return;
        }
        for (std::size_t k = 0; k < count; ++k) {
            m_out.i16(static_cast<std::int16_t>(s[k]));
        }
    }

    ByteWriter m_out;

private:
    std::string_view m_block;
};

class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes) : m_in(bytes) {}

    void block(std::string_view name) { m_block = name; }
    void i16(std::int16_t& v) { v = m_in.i16(m_block); }
    void f32(float& v) { v = m_in.f32(m_block); }
    void text(std::string& s) { s = m_in.str(m_block); }
    void spare_text() { m_in.str(m_block); }
    void fix(std::string& s, std::size_t width) { s = m_in.fix(width, m_block); }
    void reserved(std::size_t count) { m_in.skip(count, m_block); }
    void slots(Slots& s, std::size_t count)
    {
        for (std::size_t k = 0; k < count; ++k) {
            s[k] = m_in.f32(m_block);
        }
    }
    void spans(Slots& s, std::size_t count, bool whole)
    {
        if (!whole) {
            slots(s, count);
            return;
        }
        for (std::size_t k = 0; k < count; ++k) {
            s[k] = m_in.i16(m_block);
        }
    }

private:
    ByteReader m_in;
    std::string_view m_block;
};

// Checking what was read ------------------------------------------------------------

[[noreturn]] void refuse(const std::string& why)
{
    throw NotAProject(why);
}

void within(int v, int low, int high, std::string_view what)
{
    if (v < low || v > high) {
        refuse(std::string(what) + " is " + std::to_string(v) + ", outside " + std::to_string(low) + ".." +
               std::to_string(high));
    }
}

void flag(std::int16_t v, std::string_view what)
{
    if (v != kTrue && v != kFalse) {
        refuse(std::string(what) + " is " + std::to_string(v) + ", neither true (-1) nor false (0)");
    }
}

void one_of(const std::string& v, std::initializer_list<std::string_view> allowed, std::string_view what)
{
    if (std::find(allowed.begin(), allowed.end(), v) == allowed.end()) {
        refuse(std::string(what) + " \"" + v + "\" is none the program knows");
    }
}

// The index of the last filled row, as counted by the reader of the data file
// that the project was saved from: rows beyond the table were counted but never
// kept, so the count stops at the table.
void last_row(std::int16_t& v, int rows, std::string_view what)
{
    if (v < -1) {
        refuse(std::string(what) + " is " + std::to_string(v));
    }
    v = static_cast<std::int16_t>(std::min<int>(v, rows - 1));
}

void check_loads(const LoadRecord& g, const std::string& group)
{
    within(g.uni_n, 0, LoadGroup::kUniRows, group + ": the count of uniform loads");
    within(g.trap_n, 0, LoadGroup::kTrapRows, group + ": the count of trapezoidal loads");
    within(g.pt_n, 0, LoadGroup::kPointRows, group + ": the count of point loads");
    within(g.mom_n, 0, LoadGroup::kMomentRows, group + ": the count of moments");
    // A span number becomes a 16-bit whole number on opening, and the point
    // spans may be read again for as many rows as there are moments.
    for (const Slots* spans : {&g.uni_span, &g.trap_span, &g.pt_span, &g.mom_span}) {
        for (const float v : *spans) {
            if (std::abs(v) > 32767.0F) {
                refuse("a span number of the " + group + " loads is beyond any span");
            }
        }
    }
}

// Everything the program needs to hold true of a project before it takes it.
void check_project(ProjectFile& f)
{
    last_row(f.setup.setup_last_row, FileDatabase::kRows, "the last row of the setup");
    last_row(f.materials.last_row, MaterialTable::kRows, "the last material row");
    last_row(f.profiles.last_row, ProfileTable::kRows, "the last profile row");

    const ProjectRecord& p = f.record;
    within(p.nf, 1, kMaxSpans, "the number of spans");
    one_of(p.nsupLeft_s, {"F", "R", "I"}, "the left support");
    one_of(p.nsupRight_s, {"F", "R", "I"}, "the right support");
    within(p.loadcomb_option, 1, 2, "the load combination option");
    one_of(p.comb_rule, {"610a", "610b"}, "the combination rule");
    flag(p.profile_weight_on, "the self-weight switch");
    check_loads(p.G, "G");
    check_loads(p.Q1, "Q1");
    check_loads(p.Q2, "Q2");
    one_of(p.material_family, {"tre_bjelke", "lam_bjelke", "kerto     ", "k_bjelke  "},
           "the material family");
    flag(p.standard_section, "the catalogue-section switch");
    within(p.duration_class, 1, 5, "the load-duration class");
    within(p.service_class, 1, 3, "the service class");
    one_of(p.section_form, {"Firk", "Tube"}, "the section form");
    if (std::abs(p.load_location) > 32767.0F) {
        refuse("the load location is " + std::to_string(p.load_location));
    }
    flag(p.vipping_off, "the lateral-buckling switch");

    within(f.material_row, 0, f.materials.last_row, "the material row");
    within(f.prof_type_index, 0, 3, "the profile family");
    const ProfileFamilies families = SplitProfileFamilies(f.profiles);
    const std::vector<ProfileRow>& family = families.of(f.prof_type_index);
    const int listed = static_cast<int>(family.size());
    within(f.prof_index, 0, is_true(p.standard_section) ? listed - 1 : ProfileTable::kRows - 1,
           "the profile row");

    // The rows the beam is calculated with must hold numbers a calculation can use.
    const auto usable = [](const std::vector<std::string>& fields, const std::string& row) {
        if (!fields.empty()) {
            refuse(row + " has no usable " + fields.front());
        }
    };
    const MaterialRow& material = f.materials.rows[static_cast<std::size_t>(f.material_row)];
    usable(unusable_fields(material), "the material \"" + material.name + "\"");
    const int annex =
        f.setup.setup_row >= 0 && f.setup.setup_row <= f.setup.setup_last_row ? f.setup.setup_row : 0;
    const SetupRow& setup = f.setup.setup_table[static_cast<std::size_t>(annex)];
    usable(unusable_fields(setup), "the annex \"" + setup.annex + "\"");
    if (is_true(p.standard_section)) {
        const ProfileRow& profile = family[static_cast<std::size_t>(f.prof_index)];
        usable(unusable_fields(profile), "the profile \"" + profile.name + "\"");
    }
}

} // namespace

std::vector<std::byte> encode_project(const ProjectFile& file)
{
    Writer w;
    project_fields(w, file);
    return w.m_out.bytes();
}

ProjectFile decode_project(std::span<const std::byte> bytes)
{
    Reader r(bytes);
    ProjectFile f;
    project_fields(r, f);
    check_project(f);
    return f;
}

} // namespace kvelder
