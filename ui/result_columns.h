#pragma once

#include "model/model.h"

#include <array>
#include <optional>
#include <string>

namespace kvelder {

// How a result label looks: its text, red for an overrun, bold, and its background.
enum class Shade { LightYellow, ButtonFace, WindowBackground };

struct ResultCell {
    std::string text;
    bool red = false;
    bool bold = false;
    Shade background = Shade::ButtonFace;

    friend bool operator==(const ResultCell&, const ResultCell&) = default;
};

// One column of the section check, for span k + 1.
struct SpanColumn {
    ResultCell span;     // lbl_bj
    ResultCell x_moment; // lbl_mxl
    ResultCell moment;   // lbl_mom
    ResultCell x_shear;  // Lbl_txl
    ResultCell shear;    // lbl_tau
    ResultCell buckling; // lbl_vipp
};

// One row of the support pressure, for node k + 1.
struct BearingRow {
    ResultCell node;  // Lbl_opp_nr
    ResultCell kc90;  // Lbl_kc90
    ResultCell usage; // Lbl_uf_trykk
};

// The five columns of the section check as the last recalculation leaves them:
// spans that do not exist are blank on the button colour, a usage factor above 1
// is red, and the buckling column is blank while that check is off.
std::array<SpanColumn, kMaxSpans> span_columns(const Model& m);

// The six rows of the support pressure; a circular section leaves them all blank.
std::array<BearingRow, kMaxNodes> bearing_rows(const Model& m);

// The labels of the factors and strengths, by control name in the window.
struct FactorLabels {
    std::string gamma_M, kcr, kmod, kdef, ksys, kh, service_class, psi_Q1, psi_Q2;
    std::string fmd, fvd, fc90d, fmk, fvk, fc90k;
    std::string duration; // the load-duration class in words
    // Caption of the class frame; empty where the annex hides it, none where
    // the annex leaves the frame as the last annex had it.
    std::optional<std::string> safety_frame;
    std::string safety_class; // Lbl_safe_fac
    std::string kfi;          // Lbl_kfi_1: "Kfi = " or "Sk = " and the factor
};
FactorLabels factor_labels(const Model& m);

} // namespace kvelder
