#include "combination/envelope.h"

#include <cmath>

namespace kvelder {

namespace {

void copy_rule(float c, float& max, float& min)
{
    if (c > 0) {
        max = c;
    } else {
        min = c;
    }
}

constexpr auto kUpdate = [](float c, float& max, float& min) { update_envelope(c, max, min); };
constexpr auto kCopy = [](float c, float& max, float& min) { copy_rule(c, max, min); };

template <typename Rule> void span_fields(Model& m, int i, Rule rule, bool forces)
{
    for (int j = 1; j <= m.nxtot_s(i); ++j) {
        if (forces) {
            rule(m.C_V(i, j), m.V_max(i, j), m.V_min(i, j));
            rule(m.C_M(i, j), m.M_max(i, j), m.M_min(i, j));
        } else {
            rule(m.C_W(i, j), m.W_max(i, j), m.W_min(i, j));
        }
    }
}

template <typename Rule> void support_fields(Model& m, Rule rule)
{
    for (int k = 1; k <= m.nsup; ++k) {
        rule(m.C_R(k), m.R_max(k), m.R_min(k));
        rule(m.C_MR(k), m.MR_max(k), m.MR_min(k));
    }
}

} // namespace

void deflection_envelope(Model& m, int i)
{
    span_fields(m, i, kUpdate, false);
}
void force_envelope(Model& m, int i)
{
    span_fields(m, i, kUpdate, true);
}
void reaction_envelope(Model& m)
{
    support_fields(m, kUpdate);
}

void copy_deflection_envelope(Model& m, int i)
{
    span_fields(m, i, kCopy, false);
}
void copy_force_envelope(Model& m, int i)
{
    span_fields(m, i, kCopy, true);
}
void copy_reaction_envelope(Model& m)
{
    support_fields(m, kCopy);
}

} // namespace kvelder
