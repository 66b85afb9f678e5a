#pragma once

#include "model/model.h"

#include <string>

class QWidget;

namespace kvelder {

// The read-only forms around the section, each opened window-modal over
// `parent` on the beam as it stands, closed by its OK button and deleted then:
// the section properties per span (frm_Kvelder_Prop), the table of effective
// lengths in the beam's language (frm_Kvelder_vipp_le) and the about box
// (frmAbout).
void open_section_properties(const Model& m, QWidget* parent);
void open_lef_table(const std::string& language, QWidget* parent);
void open_about(const std::string& language, QWidget* parent);

} // namespace kvelder
