#include "design/factors.h"

#include <array>
#include <cmath>

namespace kvelder {

const char* family_code(int prof_type_index)
{
    static constexpr std::array<const char*, 4> codes{kTimber, kLaminated, kKerto, kKBeam};
    return codes.at(static_cast<std::size_t>(prof_type_index));
}

std::optional<float> kfi_of(const std::string& a, int c)
{
    if (a == "Nor" && (c == 1 || c == 2)) {
        return c == 1 ? 0.9F : 1.0F;
    }
    if (a == "Swe" && c >= 1 && c <= 3) {
        return std::array{0.83F, 0.91F, 1.0F}[static_cast<std::size_t>(c - 1)];
    }
    if ((a == "Fin" || a == "Den") && c >= 1 && c <= 3) {
        return std::array{0.9F, 1.0F, 1.1F}[static_cast<std::size_t>(c - 1)];
    }
    return std::nullopt;
}

float psi0_of(int index)
{
    return f32((index + 2) * 0.1);
}

float psi2_of(int index)
{
    return f32(index * 0.1);
}

void Calc_load_factors(Model& m)
{
    const std::string& a = m.annex;
    if (const std::optional<float> kfi = kfi_of(a, m.safety_class)) {
        m.kfi = *kfi;
    }

    const double psi0_1 = m.psi0_1;
    const double psi0_2 = m.psi0_2;
    const double kfi = m.kfi;
    if (a == "Euc" || a == "Uk ") {
        m.gamma_G_a = 1.35F;
        m.gamma_G_b = a == "Euc" ? f32(1.1475) : f32(1.24875);
        m.gamma_Q1_a = f32(1.5 * psi0_1);
        m.gamma_Q1_b = 1.5F;
        m.gamma_Q2_a = f32(1.5 * psi0_2);
        m.gamma_Q2_b = f32(1.5 * psi0_2);
    } else if (a == "Nor") {
        // The permanent factors carry no Kfi in Norway; all variable ones do.
        m.gamma_G_a = 1.35F;
        m.gamma_G_b = f32(1.2015);
        m.gamma_Q1_a = f32(kfi * 1.5 * psi0_1);
        m.gamma_Q1_b = f32(kfi * 1.5);
        m.gamma_Q2_a = f32(kfi * 1.5 * psi0_2);
        m.gamma_Q2_b = f32(kfi * 1.5 * psi0_2);
    } else if (a == "Swe") {
        // 6.10a is permanent load alone; a tiny factor keeps Q in the arithmetic.
        m.gamma_G_a = f32(kfi * 1.35);
        m.gamma_G_b = f32(kfi * 0.89 * 1.35);
        m.gamma_Q1_a = 0.00001F;
        m.gamma_Q1_b = f32(kfi * 1.5);
        m.gamma_Q2_a = 0.00001F;
        m.gamma_Q2_b = f32(kfi * 1.5 * psi0_2);
    } else {
        return;
    }
    m.creep_G = 1.0F;
    m.creep_Q1 = 1.0F;
    m.creep_Q2 = m.psi0_2;
}

void Read_material_data(Model& m, int row)
{
    if (row < 0 || row > m.material_table.last_row) {
        return;
    }
    const MaterialRow& r = m.material_table.rows[static_cast<std::size_t>(row)];
    m.fmk = r.fmk;
    m.ft0k = r.ft0k;
    m.fc90k = r.fc90k;
    m.fvk = r.fvk;
    m.E0_mean = r.E0mean;
    m.E0_05 = r.E005;
    m.spare = r.spare;
    m.density = r.density;
    m.s_exponent = r.s_exponent;
}

void Calc_kdef(Model& m)
{
    switch (m.service_class) {
    case 1:
        m.kdef = 0.6F;
        break;
    case 2:
        m.kdef = 0.8F;
        break;
    case 3:
        m.kdef = 2.0F;
        break;
    default:
        break;
    }
    const double kdef = m.kdef;
    m.creep_G = f32(1 + kdef);
    m.creep_Q1 = f32(1 + m.psi2_1 * kdef);
    m.creep_Q2 = f32(m.psi0_2 + m.psi2_2 * kdef);
}

void Calc_kcr(Model& m)
{
    const std::string& f = m.material_family;
    const bool swedish_rule = m.annex_s == "Swe" && m.kcr_exposed == 0;
    if (f == kTimber || f == kLaminated) {
        m.kcr = f == kTimber ? m.kcr_timb : m.kcr_lam;
        if (swedish_rule) {
            m.kcr = f32(3.0 / m.fvk);
            if (m.kcr > 1) {
                m.kcr = 1;
            }
        }
    } else if (f == kKerto) {
        m.kcr = m.kcr_kerto;
    } else if (f == kKBeam) {
        m.kcr = m.kcr_k_bjelke;
    }
}

void Calc_kmod(Model& m)
{
    static constexpr std::array<std::array<float, 2>, 5> table{
        {{0.6F, 0.5F}, {0.7F, 0.55F}, {0.8F, 0.65F}, {0.9F, 0.7F}, {1.1F, 0.9F}}};
    if (m.duration_class < 1 || m.duration_class > 5) {
        return;
    }
    const std::size_t column = m.service_class == 1 || m.service_class == 2 ? 0 : 1;
    m.kmod = table[static_cast<std::size_t>(m.duration_class - 1)][column];
}

void Calc_kh(Model& m)
{
    const double h = m.section_h;
    const std::string& f = m.material_family;
    // (reference / h) ^ exponent, capped; 1.0 above the reference height.
    const auto size_factor = [h](double reference, double exponent, float cap) {
        if (h > reference) {
            return 1.0F;
        }
        const float k = f32(std::pow(reference / h, exponent));
        return k >= cap ? cap : k;
    };
    if (f == kLaminated) {
        m.kh = m.section_form == "Firk" ? size_factor(600, 0.1, 1.1F) : 1.0F;
    } else if (f == kKBeam) {
        m.kh = 1.0F;
    } else if (f == kKerto) {
        m.kh = size_factor(300, m.s_exponent, 1.2F);
    } else if (f == kTimber) {
        m.kh = m.section_form == "Firk" ? size_factor(150, 0.2, 1.3F) : 1.0F;
    }
}

void Calc_gamma_M(Model& m)
{
    const std::string& f = m.material_family;
    if (f == kTimber) {
        m.gamma_M = m.gamma_timb;
    } else if (f == kLaminated) {
        m.gamma_M = m.gamma_lam;
    } else if (f == kKerto) {
        m.gamma_M = m.gamma_kerto;
    } else if (f == kKBeam) {
        m.gamma_M = m.gamma_k_bjelke;
    }
}

} // namespace kvelder
