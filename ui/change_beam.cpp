#include "ui/change_beam.h"

#include "files/text_number.h"
#include "ui/input_checks.h"
#include "ui/load_checks.h"

namespace kvelder {
namespace {

// Empties the rows of a dialog that stand on a span the beam no longer has;
// the others keep their places.
void empty_rows_beyond(LoadDialogTexts& dialog, int nf, std::int16_t decimal_comma)
{
    for (std::vector<RowTexts>& frame : dialog.frames) {
        for (RowTexts& row : frame) {
            const std::optional<std::int16_t> span = TextToInt16(row[0], decimal_comma).value;
            if (!row[0].empty() && span && *span > nf) {
                row = RowTexts{};
            }
        }
    }
}

} // namespace

std::optional<Message> ChangeBeam(Model& m, LoadDialogs& dialogs)
{
    m.nnodes = static_cast<std::int16_t>(m.nf + 1);
    m.nsup = m.nnodes;
    for (int n = 1; n <= kMaxNodes; ++n) {
        m.support_kind(n) = kSimple;
    }
    m.nsupLeft_s = kSimple;
    m.nsupRight_s = kSimple;
    const std::optional<Message> message = check_supports(m);
    // Not the count of the last run: a new span without a length stops runs,
    // and its rows must still go when the count falls back.
    if (m.nf < m.nf_at_change) {
        for (LoadGroupId id : kLoadGroups) {
            LoadDialogTexts& dialog = dialogs[static_cast<std::size_t>(id)];
            empty_rows_beyond(dialog, m.nf, m.decimal_comma);
            ReadRows(m, id, dialog);
        }
    }
    m.nf_at_change = m.nf;
    m.err_load_item = kFalse;
    return message;
}

} // namespace kvelder
