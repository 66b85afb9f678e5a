// The bytes of a project file, field by field, against offsets worked out by
// hand from the layout of the format.

#include "files/code_page.h"
#include "files/project_file.h"
#include "files/project_layout.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <string>
#include <vector>

namespace kvelder::test {
namespace {

using Bytes = std::vector<std::byte>;

std::int16_t i16_at(const Bytes& b, std::size_t at)
{
    return static_cast<std::int16_t>(std::to_integer<int>(b.at(at)) |
                                     (std::to_integer<int>(b.at(at + 1)) << 8));
}

float f32_at(const Bytes& b, std::size_t at)
{
    std::uint32_t v = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        v |= std::to_integer<std::uint32_t>(b.at(at + k)) << (8 * k);
    }
    return std::bit_cast<float>(v);
}

std::string text_at(const Bytes& b, std::size_t at, std::size_t length)
{
    std::string s(length, '\0');
    std::memcpy(s.data(), b.data() + at, length);
    return s;
}

// A project file whose every text is empty: blocks of fixed length.
ProjectFile empty_texts()
{
    ProjectFile f;
    f.setup.setup_language.clear();
    return f;
}

TEST(ProjectLayout, BlocksWithEmptyTextsHaveTheirFixedLengths)
{
    const Bytes bytes = encode_project(empty_texts());
    // setup 8 + 6 x 2 + 11 x (4 + 32 + 12) = 548; materials 101 x (6 + 36) = 4242;
    // selections 4 + 6; profiles 401 x (6 + 8) = 5614; record 2448.
    EXPECT_EQ(bytes.size(), 548U + 4242U + 4U + 6U + 5614U + 2448U);
    EXPECT_EQ(kEmptyRecordBytes, 2448U);
}

TEST(ProjectLayout, CatalogueAndSelectionFieldsSitAtTheirOffsets)
{
    ProjectFile f = empty_texts();
    f.setup.setup_row = 2;
    f.setup.setup_last_row = 3;
    f.setup.setup_table[0].gamma_timb = 1.25F;
    f.setup.setup_table[0].psi2_2_index = 7;
    f.setup.setup_table[1].kcr_timb = 0.67F;
    f.materials.rows[1].fmk = 24.0F;
    f.materials.rows[1].s_exponent = 0.15F;
    f.materials.last_row = 41;
    f.material_row = 24;
    f.prof_type_index = 1;
    f.prof_index = 52;
    f.profiles.last_row = 399;
    f.profiles.rows[0].b = 140.0F;
    f.profiles.rows[2].h = 405.0F;
    const Bytes b = encode_project(f);

    EXPECT_EQ(i16_at(b, 4), 2); // after the language and the spare text
    EXPECT_EQ(i16_at(b, 6), 3);
    EXPECT_EQ(f32_at(b, 20 + 4), 1.25F);       // row 0: two empty texts, then gamma_timb
    EXPECT_EQ(i16_at(b, 20 + 4 + 32 + 10), 7); // the sixth integer of row 0
    EXPECT_EQ(f32_at(b, 68 + 4 + 16), 0.67F);  // row 1, the fifth float
    EXPECT_EQ(f32_at(b, 548 + 42 + 6), 24.0F); // material row 1, fmk
    EXPECT_EQ(f32_at(b, 548 + 42 + 6 + 32), 0.15F);
    EXPECT_EQ(i16_at(b, 4790), 24);
    EXPECT_EQ(i16_at(b, 4792), 41);
    EXPECT_EQ(i16_at(b, 4794), 1);
    EXPECT_EQ(i16_at(b, 4796), 52);
    EXPECT_EQ(i16_at(b, 4798), 399);
    EXPECT_EQ(f32_at(b, 4800 + 6), 140.0F); // profile row 0, b
    EXPECT_EQ(f32_at(b, 4800 + 28 + 6 + 4), 405.0F);
}

// Offsets in the record are those of a beam with empty project texts and
// one-letter end supports, worked out from the field list of the format.
TEST(ProjectLayout, RecordFieldsOfABeamWithLoadsInEveryTable)
{
    auto m = loaded_beam();
    m->prosjekt_s = "\u00c5lesund"; // 7 bytes in the file
    m->id_s = "B\u20131";           // en dash, one byte: 0x96
    m->creep_G = 1.6F, m->gamma_G_a = 1.35F, m->gamma_G_b = 1.2F;
    m->creep_Q1 = 1.18F, m->gamma_Q1_a = 1.05F, m->gamma_Q1_b = 1.5F;
    m->creep_Q2 = 1.21F, m->gamma_Q2_a = 0.98F, m->gamma_Q2_b = 1.4F;
    m->bearing_length(6) = 120.0F;
    m->bearing_kc90(2) = 1.5F;
    m->ffl_s(4) = 7.0F; // left from a beam of more spans
    const Bytes b = project_bytes(*m);
    const std::size_t texts = 7 + 3;
    const std::size_t start = b.size() - (2448 + texts + 2);
    const auto at = [&](std::size_t offset) { return start + texts + offset; };

    EXPECT_EQ(i16_at(b, start), 7);
    EXPECT_EQ(text_at(b, start + 2, 7), "\xc5lesund");
    EXPECT_EQ(text_at(b, start + 9, 5), std::string("\x03\x00"
                                                    "B\x96"
                                                    "1",
                                                    5));

    EXPECT_EQ(i16_at(b, at(4)), 3);            // nf
    EXPECT_EQ(f32_at(b, at(6)), 0.0F);         // ffl_s slot 0
    EXPECT_EQ(f32_at(b, at(6 + 3 * 4)), 6.0F); // ffl_s(3)
    EXPECT_EQ(f32_at(b, at(6 + 4 * 4)), 0.0F); // above nf
    EXPECT_EQ(text_at(b, at(50), 3), std::string("\x01\x00"
                                                 "I",
                                                 3));
    EXPECT_EQ(text_at(b, at(53), 3), std::string("\x01\x00"
                                                 "F",
                                                 3));
    for (std::size_t k = 56; k < 430; ++k) {
        ASSERT_EQ(b[at(k)], std::byte{0}) << "reserved byte " << k;
    }
    EXPECT_EQ(i16_at(b, at(430)), 2); // loadcomb_option
    EXPECT_EQ(text_at(b, at(432), 4), "610b");
    EXPECT_EQ(i16_at(b, at(436)), -1);    // profile_weight_on
    EXPECT_EQ(f32_at(b, at(486)), 1.6F);  // creep_G
    EXPECT_EQ(f32_at(b, at(502)), 1.05F); // gamma_Q1_a
    EXPECT_EQ(f32_at(b, at(518)), 1.4F);  // gamma_Q2_b

    // G: spans as floats, eleven slots a table.
    EXPECT_EQ(f32_at(b, at(522 + 2 * 4)), 3.0F); // G_uni_span(2)
    EXPECT_EQ(f32_at(b, at(566 + 2 * 4)), 1.5F); // G_uni_q(2)
    EXPECT_EQ(i16_at(b, at(610)), 2);            // G_uni_n
    EXPECT_EQ(f32_at(b, at(612 + 4)), 2.0F);     // G_trap_span(1)
    EXPECT_EQ(f32_at(b, at(788 + 4)), 3.5F);     // G_trap_b(1)
    EXPECT_EQ(i16_at(b, at(832)), 1);
    EXPECT_EQ(f32_at(b, at(878 + 4)), 10.0F); // G_pt_P(1)
    EXPECT_EQ(f32_at(b, at(1012 + 4)), 5.0F); // G_mom_M(1)
    EXPECT_EQ(i16_at(b, at(1100)), 1);        // G_mom_n

    // Q1: the same shape.
    EXPECT_EQ(f32_at(b, at(1102 + 4)), 2.0F);     // Q1_uni_span(1)
    EXPECT_EQ(f32_at(b, at(1236 + 4)), 3.0F);     // Q1_trap_q1(1)
    EXPECT_EQ(f32_at(b, at(1414 + 2 * 4)), 1.0F); // Q1_pt_span(2)
    EXPECT_EQ(f32_at(b, at(1502 + 2 * 4)), 1.0F); // Q1_pt_a(2)
    EXPECT_EQ(i16_at(b, at(1546)), 2);            // Q1_pt_n
    EXPECT_EQ(f32_at(b, at(1548 + 4)), 2.0F);     // Q1_mom_span(1)
    EXPECT_EQ(f32_at(b, at(1592 + 4)), -3.0F);    // Q1_mom_M(1)
    EXPECT_EQ(i16_at(b, at(1680)), 1);

    // Q2: spans as integers, six uniform and seven moment slots.
    EXPECT_EQ(i16_at(b, at(1682 + 2)), 3);     // Q2_uni_span(1)
    EXPECT_EQ(f32_at(b, at(1694 + 4)), 0.75F); // Q2_uni_q(1)
    EXPECT_EQ(i16_at(b, at(1718)), 1);         // Q2_uni_n
    EXPECT_EQ(i16_at(b, at(1720 + 2)), 3);     // Q2_trap_span(1)
    EXPECT_EQ(f32_at(b, at(1830 + 4)), 1.0F);  // Q2_trap_a(1)
    EXPECT_EQ(i16_at(b, at(1918)), 1);
    EXPECT_EQ(i16_at(b, at(1920 + 2)), 2);    // Q2_pt_span(1)
    EXPECT_EQ(f32_at(b, at(1942 + 4)), 4.0F); // Q2_pt_P(1)
    EXPECT_EQ(i16_at(b, at(2030)), 1);
    EXPECT_EQ(i16_at(b, at(2032 + 2)), 1);     // Q2_mom_span(1)
    EXPECT_EQ(f32_at(b, at(2046 + 4)), 1.25F); // Q2_mom_M(1)
    EXPECT_EQ(f32_at(b, at(2074 + 4)), 3.0F);  // Q2_mom_a(1)
    EXPECT_EQ(i16_at(b, at(2102)), 1);

    EXPECT_EQ(i16_at(b, at(2104)), 0); // two empty spare texts
    EXPECT_EQ(i16_at(b, at(2106)), 0);
    EXPECT_EQ(text_at(b, at(2204), 10), "lam_bjelke");
    EXPECT_EQ(i16_at(b, at(2214)), -1); // standard_section
    EXPECT_EQ(f32_at(b, at(2216)), m->section_b);
    EXPECT_EQ(f32_at(b, at(2220)), m->section_h);
    EXPECT_EQ(f32_at(b, at(2224)), 400.0F);
    EXPECT_EQ(i16_at(b, at(2228)), 3);    // duration_class
    EXPECT_EQ(i16_at(b, at(2230)), 1);    // service_class
    EXPECT_EQ(f32_at(b, at(2232)), 1.0F); // ksys
    EXPECT_EQ(text_at(b, at(2236), 4), "Firk");
    EXPECT_EQ(f32_at(b, at(2240 + 6 * 4)), 120.0F); // bearing_length(6)
    EXPECT_EQ(f32_at(b, at(2284 + 2 * 4)), 1.5F);   // bearing_kc90(2)
    EXPECT_EQ(f32_at(b, at(2328 + 2 * 4)), 2.5F);   // l_stag(2)
    EXPECT_EQ(f32_at(b, at(2372 + 3 * 4)), 0.8F);   // lef_factor(3)
    EXPECT_EQ(f32_at(b, at(2418)), 1.0F);           // load_location
    EXPECT_EQ(i16_at(b, at(2422)), 0);              // vipping_off
    EXPECT_EQ(start + texts + 2450, b.size());
}

TEST(ProjectLayout, BucklingDataIsWrittenOnlyWhileTheCheckIsOn)
{
    auto m = loaded_beam();
    m->vipping_off = kTrue;
    const Bytes b = project_bytes(*m);
    const std::size_t tail = b.size() - 2450; // the record's offsets behind its two texts
    for (std::size_t k = 2328; k < 2422; ++k) {
        ASSERT_EQ(b[tail + k], std::byte{0}) << "byte " << k << " of the record";
    }
    EXPECT_EQ(i16_at(b, tail + 2422), -1);
}

TEST(CodePage, TextsOutsideWindows1252)
{
    EXPECT_EQ(to_windows_1252("\u20ac \u0160 \u0178"), "\x80 \x8a \x9f");
    EXPECT_EQ(to_windows_1252("\u4e2d \U0001F600"), "? ?"); // not in the code page
    EXPECT_EQ(to_windows_1252("gr\xf8nn"), "gr\xf8nn");     // already a Windows-1252 byte
    EXPECT_EQ(to_windows_1252("\xc0\xaf"), "\xc0\xaf");     // an overlong form is no character
    for (int byte = 1; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        ASSERT_EQ(to_windows_1252(from_windows_1252(one)), one) << "byte " << byte;
    }
}

} // namespace
} // namespace kvelder::test
