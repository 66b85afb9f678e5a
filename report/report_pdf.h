#pragma once

#include "model/model.h"
#include "report/page_header.h"
#include "report/print_report.h"

#include <filesystem>
#include <optional>
#include <string>

namespace kvelder {

// The stamp of a report made now: the file the beam came from, the machine's
// short date and the time as "hh:mm:ss".
ReportStamp report_stamp(const std::filesystem::path& source);

// Writes the printed report of a calculated beam as a PDF on A4 with vector
// text. What went wrong, if anything; a file that cannot be written is left
// as it was.
std::optional<std::string> write_report_pdf(const Model& m, const std::filesystem::path& file,
                                            const ReportStamp& stamp, const PrintSession& session);

} // namespace kvelder
