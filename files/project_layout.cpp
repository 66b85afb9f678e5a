#include "files/project_layout.h"

#include "files/catalogue.h"
#include "model/numbers.h"

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

// Writing ------------------------------------------------------------------------

class Writer {
public:
    void str(std::string_view text, std::string_view field)
    {
        if (!m_out.str(text)) {
            throw std::length_error(std::string(field) + " is longer than a project file can hold");
        }
    }
    void slots(const Slots& s, std::size_t count = kSlots)
    {
        for (std::size_t k = 0; k < count; ++k) {
            m_out.f32(s[k]);
        }
    }
    void span_slots(const Slots& s, std::size_t count, bool whole)
    {
        for (std::size_t k = 0; k < count; ++k) {
            if (whole) {
                m_out.i16(static_cast<std::int16_t>(s[k]));
            } else {
                m_out.f32(s[k]);
            }
        }
    }
    void loads(const LoadRecord& g, SlotCounts n)
    {
        span_slots(g.uni_span, n.uni, n.whole_spans);
        slots(g.uni_q, n.uni);
        m_out.i16(g.uni_n);
        span_slots(g.trap_span, n.trap, n.whole_spans);
        for (const Slots* s : {&g.trap_q1, &g.trap_q2, &g.trap_a, &g.trap_b}) {
            slots(*s, n.trap);
        }
        m_out.i16(g.trap_n);
        span_slots(g.pt_span, n.pt, n.whole_spans);
        slots(g.pt_P, n.pt);
        slots(g.pt_a, n.pt);
        m_out.i16(g.pt_n);
        span_slots(g.mom_span, n.mom, n.whole_spans);
        slots(g.mom_M, n.mom);
        slots(g.mom_a, n.mom);
        m_out.i16(g.mom_n);
    }

    void setup(const FileDatabase& db)
    {
        str(db.setup_language, "the language of the setup");
        str(db.spare_text, "the spare text of the setup");
        m_out.i16(db.setup_row);
        m_out.i16(db.setup_last_row);
        for (const std::string& line : db.setup_header_line) {
            str(line, "a head line of the setup");
        }
        for (const SetupRow& r : db.setup_table) {
            str(r.annex, "an annex code");
            str(r.annex_title, "an annex title");
            for (float v : {r.gamma_timb, r.gamma_lam, r.gamma_kerto, r.gamma_k_bjelke, r.kcr_timb, r.kcr_lam,
                            r.kcr_kerto, r.kcr_k_bjelke}) {
                m_out.f32(v);
            }
            for (std::int16_t v : {r.kcr_exposed, r.safety_class, r.psi0_1_index, r.psi0_2_index,
                                   r.psi2_1_index, r.psi2_2_index}) {
                m_out.i16(v);
            }
        }
    }

    void materials(const MaterialTable& t)
    {
        for (const MaterialRow& r : t.rows) {
            str(r.name, "a material name");
            str(r.grade_code, "a material code");
            str(r.spare_text, "a material's spare text");
            for (float v :
                 {r.fmk, r.ft0k, r.fc90k, r.fvk, r.E0mean, r.E005, r.spare, r.density, r.s_exponent}) {
                m_out.f32(v);
            }
        }
    }

    void profiles(const ProfileTable& t)
    {
        for (const ProfileRow& r : t.rows) {
            str(r.name, "a profile name");
            str(r.family_code, "a profile family code");
            str(r.spare_text, "a profile's spare text");
            m_out.f32(r.b);
            m_out.f32(r.h);
        }
    }

    void record(const ProjectRecord& p)
    {
        str(p.prosjekt_s, "the project text");
        str(p.id_s, "the beam identification");
        m_out.i16(p.nf);
        slots(p.ffl_s);
        str(p.nsupLeft_s, "the left support");
        str(p.nsupRight_s, "the right support");
        m_out.zeros(22 + 352);
        m_out.i16(p.loadcomb_option);
        m_out.fix(p.comb_rule, 4);
        m_out.i16(p.profile_weight_on);
        m_out.zeros(48);
        for (float v : {p.creep_G, p.gamma_G_a, p.gamma_G_b, p.creep_Q1, p.gamma_Q1_a, p.gamma_Q1_b,
                        p.creep_Q2, p.gamma_Q2_a, p.gamma_Q2_b}) {
            m_out.f32(v);
        }
        loads(p.G, kFloatSpans);
        loads(p.Q1, kFloatSpans);
        loads(p.Q2, kWholeSpans);
        str("", "a spare text");
        str("", "a spare text");
        m_out.zeros(96);
        m_out.fix(p.material_family, 10);
        m_out.i16(p.standard_section);
        for (float v : {p.section_b, p.section_h, p.section_d}) {
            m_out.f32(v);
        }
        m_out.i16(p.duration_class);
        m_out.i16(p.service_class);
        m_out.f32(p.ksys);
        m_out.fix(p.section_form, 4);
        for (const Slots* s : {&p.bearing_length, &p.bearing_kc90, &p.l_stag, &p.lef_factor}) {
            slots(*s);
        }
        m_out.zeros(2);
        m_out.f32(p.load_location);
        m_out.i16(p.vipping_off);
        m_out.zeros(26);
    }

    ByteWriter m_out;
};

// Reading ------------------------------------------------------------------------

[[noreturn]] void refuse(const std::string& why)
{
    throw NotAProject(why);
}

std::int16_t within(std::int16_t v, int low, int high, std::string_view what)
{
    if (v < low || v > high) {
        refuse(std::string(what) + " is " + std::to_string(v) + ", outside " + std::to_string(low) + ".." +
               std::to_string(high));
    }
    return v;
}

std::int16_t flag(std::int16_t v, std::string_view what)
{
    if (v != 0 && v != -1) {
        refuse(std::string(what) + " is " + std::to_string(v) + ", neither true (-1) nor false (0)");
    }
    return v;
}

std::string one_of(std::string v, std::initializer_list<std::string_view> allowed, std::string_view what)
{
    if (std::find(allowed.begin(), allowed.end(), v) == allowed.end()) {
        refuse(std::string(what) + " \"" + v + "\" is none the program knows");
    }
    return v;
}

// The index of the last filled row, as counted by the reader of the data file
// that the project was saved from: rows beyond the table were counted but never
// kept, so the count stops at the table.
std::int16_t last_row(std::int16_t v, int rows, std::string_view what)
{
    if (v < -1) {
        refuse(std::string(what) + " is " + std::to_string(v));
    }
    return static_cast<std::int16_t>(std::min<int>(v, rows - 1));
}

class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes) : m_in(bytes) {}

    Slots slots(std::string_view what, std::size_t count = kSlots)
    {
        Slots s{};
        for (std::size_t k = 0; k < count; ++k) {
            s[k] = m_in.f32(what);
        }
        return s;
    }
    Slots span_slots(std::string_view what, std::size_t count, bool whole)
    {
        if (!whole) {
            return slots(what, count);
        }
        Slots s{};
        for (std::size_t k = 0; k < count; ++k) {
            s[k] = m_in.i16(what);
        }
        return s;
    }
    // The row count of a table that has `rows` rows at most.
    std::int16_t count(int rows, std::string_view what) { return within(m_in.i16(what), 0, rows, what); }

    LoadRecord loads(SlotCounts n, const std::string& group)
    {
        LoadRecord g;
        const std::string uni = group + " uniform loads", trap = group + " trapezoidal loads",
                          pt = group + " point loads", mom = group + " moments";
        g.uni_span = span_slots(uni, n.uni, n.whole_spans);
        g.uni_q = slots(uni, n.uni);
        g.uni_n = count(5, uni);
        g.trap_span = span_slots(trap, n.trap, n.whole_spans);
        for (Slots* s : {&g.trap_q1, &g.trap_q2, &g.trap_a, &g.trap_b}) {
            *s = slots(trap, n.trap);
        }
        g.trap_n = count(10, trap);
        g.pt_span = span_slots(pt, n.pt, n.whole_spans);
        g.pt_P = slots(pt, n.pt);
        g.pt_a = slots(pt, n.pt);
        g.pt_n = count(10, pt);
        g.mom_span = span_slots(mom, n.mom, n.whole_spans);
        g.mom_M = slots(mom, n.mom);
        g.mom_a = slots(mom, n.mom);
        g.mom_n = count(6, mom);
        // A span number becomes a 16-bit whole number on opening, and the
        // point spans may be read again for as many rows as there are moments.
        for (const Slots* spans : {&g.uni_span, &g.trap_span, &g.pt_span, &g.mom_span}) {
            for (const float v : *spans) {
                if (std::abs(v) > 32767.0F) {
                    refuse("a span number of the " + group + " loads is beyond any span");
                }
            }
        }
        return g;
    }

    FileDatabase setup()
    {
        FileDatabase db;
        constexpr std::string_view what = "the setup";
        db.setup_language = m_in.str(what);
        db.spare_text = m_in.str(what);
        db.setup_row = m_in.i16(what);
        db.setup_last_row = last_row(m_in.i16(what), FileDatabase::kRows, "the last row of the setup");
        for (std::string& line : db.setup_header_line) {
            line = m_in.str(what);
        }
        for (SetupRow& r : db.setup_table) {
            r.annex = m_in.str(what);
            r.annex_title = m_in.str(what);
            for (float* v : {&r.gamma_timb, &r.gamma_lam, &r.gamma_kerto, &r.gamma_k_bjelke, &r.kcr_timb,
                             &r.kcr_lam, &r.kcr_kerto, &r.kcr_k_bjelke}) {
                *v = m_in.f32(what);
            }
            for (std::int16_t* v : {&r.kcr_exposed, &r.safety_class, &r.psi0_1_index, &r.psi0_2_index,
                                    &r.psi2_1_index, &r.psi2_2_index}) {
                *v = m_in.i16(what);
            }
        }
        return db;
    }

    MaterialTable materials()
    {
        MaterialTable t;
        constexpr std::string_view what = "the material catalogue";
        for (MaterialRow& r : t.rows) {
            r.name = m_in.str(what);
            r.grade_code = m_in.str(what);
            r.spare_text = m_in.str(what);
            for (float* v : {&r.fmk, &r.ft0k, &r.fc90k, &r.fvk, &r.E0mean, &r.E005, &r.spare, &r.density,
                             &r.s_exponent}) {
                *v = m_in.f32(what);
            }
        }
        return t;
    }

    ProfileTable profiles()
    {
        ProfileTable t;
        constexpr std::string_view what = "the profile catalogue";
        for (ProfileRow& r : t.rows) {
            r.name = m_in.str(what);
            r.family_code = m_in.str(what);
            r.spare_text = m_in.str(what);
            r.b = m_in.f32(what);
            r.h = m_in.f32(what);
        }
        return t;
    }

    ProjectRecord record()
    {
        ProjectRecord p;
        constexpr std::string_view what = "the project record";
        p.prosjekt_s = m_in.str(what);
        p.id_s = m_in.str(what);
        p.nf = within(m_in.i16(what), 1, 5, "the number of spans");
        p.ffl_s = slots(what);
        p.nsupLeft_s = one_of(m_in.str(what), {"F", "R", "I"}, "the left support");
        p.nsupRight_s = one_of(m_in.str(what), {"F", "R", "I"}, "the right support");
        m_in.skip(22 + 352, what);
        p.loadcomb_option = within(m_in.i16(what), 1, 2, "the load combination option");
        p.comb_rule = one_of(m_in.fix(4, what), {"610a", "610b"}, "the combination rule");
        p.profile_weight_on = flag(m_in.i16(what), "the self-weight switch");
        m_in.skip(48, what);
        for (float* v : {&p.creep_G, &p.gamma_G_a, &p.gamma_G_b, &p.creep_Q1, &p.gamma_Q1_a, &p.gamma_Q1_b,
                         &p.creep_Q2, &p.gamma_Q2_a, &p.gamma_Q2_b}) {
            *v = m_in.f32(what);
        }
        p.G = loads(kFloatSpans, "G");
        p.Q1 = loads(kFloatSpans, "Q1");
        p.Q2 = loads(kWholeSpans, "Q2");
        m_in.str(what); // two spare texts, never used
        m_in.str(what);
        m_in.skip(96, what);
        p.material_family =
            one_of(m_in.fix(10, what), {"tre_bjelke", "lam_bjelke", "kerto     ", "k_bjelke  "},
                   "the material family");
        p.standard_section = flag(m_in.i16(what), "the catalogue-section switch");
        p.section_b = m_in.f32(what);
        p.section_h = m_in.f32(what);
        p.section_d = m_in.f32(what);
        p.duration_class = within(m_in.i16(what), 1, 5, "the load-duration class");
        p.service_class = within(m_in.i16(what), 1, 3, "the service class");
        p.ksys = m_in.f32(what);
        p.section_form = one_of(m_in.fix(4, what), {"Firk", "Tube"}, "the section form");
        for (Slots* s : {&p.bearing_length, &p.bearing_kc90, &p.l_stag, &p.lef_factor}) {
            *s = slots(what);
        }
        m_in.skip(2, what);
        p.load_location = m_in.f32(what);
        if (std::abs(p.load_location) > 32767.0F) {
            refuse("the load location is " + std::to_string(p.load_location));
        }
        p.vipping_off = flag(m_in.i16(what), "the lateral-buckling switch");
        m_in.skip(26, what);
        return p;
    }

    ByteReader m_in;
};

} // namespace

std::vector<std::byte> encode_project(const ProjectFile& file)
{
    Writer w;
    w.setup(file.setup);
    w.materials(file.materials);
    w.m_out.i16(file.material_row);
    w.m_out.i16(file.materials.last_row);
    w.m_out.i16(file.prof_type_index);
    w.m_out.i16(file.prof_index);
    w.m_out.i16(file.profiles.last_row);
    w.profiles(file.profiles);
    w.record(file.record);
    return w.m_out.bytes();
}

ProjectFile decode_project(std::span<const std::byte> bytes)
{
    Reader r(bytes);
    ProjectFile f;
    f.setup = r.setup();
    f.materials = r.materials();
    constexpr std::string_view selection = "the selection of material and profile";
    f.material_row = r.m_in.i16(selection);
    f.materials.last_row = last_row(r.m_in.i16(selection), MaterialTable::kRows, "the last material row");
    f.prof_type_index = within(r.m_in.i16(selection), 0, 3, "the profile family");
    f.prof_index = r.m_in.i16(selection);
    f.profiles.last_row = last_row(r.m_in.i16(selection), ProfileTable::kRows, "the last profile row");
    f.profiles = [&] {
        ProfileTable t = r.profiles();
        t.last_row = f.profiles.last_row;
        return t;
    }();
    f.record = r.record();

    within(f.material_row, 0, f.materials.last_row, "the material row");
    const auto listed = static_cast<int>(SplitProfileFamilies(f.profiles).of(f.prof_type_index).size());
    within(f.prof_index, 0, is_true(f.record.standard_section) ? listed - 1 : ProfileTable::kRows - 1,
           "the profile row");
    return f;
}

} // namespace kvelder
