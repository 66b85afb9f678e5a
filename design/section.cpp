#include "design/section.h"

#include <cmath>

namespace kvelder {
namespace {

void set_selfweight(Model& m, double area_mm2)
{
    const float q = f32(m.density * (area_mm2 / 1000000) / 100);
    for (int i = 1; i <= m.nf; ++i) {
        m.selfweight_q(i) = q;
    }
}

} // namespace

void Calc_prop_firk(Model& m)
{
    const double b = m.section_b;
    const double h = m.section_h;
    m.I_mm4 = f32((1.0 / 12) * b * std::pow(h, 3));
    m.Wyy = f32(m.I_mm4 / (h / 2));
    m.Azz = f32(m.kcr * b * h);
    m.Axx = f32(b * h);
    set_selfweight(m, h * b);
}

void Calc_prop_tube(Model& m)
{
    const double d = m.section_d;
    const double r = d / 2;
    m.I_mm4 = f32(std::pow(r, 4) * (3.14 / 4));
    m.Wyy = f32(std::pow(r, 4) * (3.14 / (2 * d)));
    m.Azz = f32(std::pow(r, 2) * 3.14 * 0.5);
    m.Axx = f32(std::pow(r, 2) * 3.14);
    set_selfweight(m, std::pow(r, 2) * 3.14);
}

void Calc_design_strength(Model& m)
{
    const double kmod = m.kmod;
    m.fmd = f32(kmod * m.fmk * m.ksys * m.kh / m.gamma_M);
    m.fvd = f32(m.fvk * kmod * m.ksys / m.gamma_M);
    m.fc90d = f32(m.fc90k * kmod * m.ksys / m.gamma_M);
    if (m.section_form == "Firk") {
        Calc_prop_firk(m);
    } else if (m.section_form == "Tube") {
        Calc_prop_tube(m);
    }
}

bool Read_profile_dimensions(Model& m, int family, int row)
{
    if (family < 0 || family > 3) {
        return false;
    }
    const std::vector<ProfileRow>& list = m.profile_families.of(family);
    if (row < 0 || row >= static_cast<int>(list.size())) {
        return false;
    }
    m.section_b = list[static_cast<std::size_t>(row)].b;
    m.section_h = list[static_cast<std::size_t>(row)].h;
    return true;
}

int middle_profile_row(int count)
{
    return static_cast<int>(std::nearbyint(count / 2.0));
}

void Check_section_input(Model& m)
{
    bool invalid = m.section_d <= 0 || m.section_b <= 0 || m.section_h <= 0;
    for (int i = 1; i <= m.nf; ++i) {
        invalid = invalid || m.bearing_length(i) <= 0;
        if (m.vipping_off == 0) {
            invalid = invalid || m.l_stag(i) < 0.3F || m.l_stag(i) > m.ffl_s(i) || m.lef_factor(i) < 0.2F ||
                      m.lef_factor(i) > 2.0F;
        }
    }
    if (invalid) {
        m.calc_invalid = kTrue;
    }
}

} // namespace kvelder
