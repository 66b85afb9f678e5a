#pragma once

#include "files/project_record.h"
#include "model/load_dialogs.h"
#include "model/model.h"

#include <array>

namespace kvelder {

// Saving: the beam and its loads, then the section and design options, into a
// record that starts from zero. The setup block takes the active factors into
// its selected row.
void RecordFromModel(const Model& m, ProjectFile& file);
void RecordFromSection(const Model& m, ProjectFile& file);

// Opening: the catalogues and setup of the file take the place of those in the
// model, then the beam, its loads and its section follow. The load rows also
// fill `dialogs`, span numbers with "0" and values with "0.00".
//
// Kept as the format has always been read:
// - the bearing lengths and kc90 of the file are not read back;
// - the moment rows of Q1 and Q2 keep the span numbers already in the model
//   (the point rows receive theirs once more instead), while their dialogs show
//   the file's own span numbers, which become the model's when that dialog is
//   confirmed;
// - of each variable group's two factor fields, both go to gamma_a, the latter
//   last, and gamma_b keeps its value; every recalculation computes them anew.
void ModelFromRecord(Model& m, const ProjectFile& file, LoadDialogs& dialogs);
void SectionFromRecord(Model& m, const ProjectFile& file);

} // namespace kvelder
