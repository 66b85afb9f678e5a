#pragma once

#include "files/data_files.h"
#include "model/message.h"

#include <filesystem>
#include <optional>
#include <string>

namespace kvelder {

struct ProjectFailure;

// The numbered message of `code` in a language ("Eng" or "Nor"); none where that
// language has no entry for the code.
std::optional<Message> ShowMessageEng(int code);
std::optional<Message> ShowMessageNor(int code);
std::optional<Message> numbered_message(const std::string& language, int code);

// Messages that carry no number.
Message span_length_missing(const std::string& language);
Message supports_unstable(const std::string& language);

// What became of a data file that could not be used as it stands.
Message data_file_message(const std::string& language, const DataFileNote& note);

// Why a project could not be opened or saved. A missing file, a missing folder
// and a file that is no project keep the words the program has always used,
// in English whatever the language.
Message project_message(const std::string& language, const ProjectFailure& failure);

// Save As onto a file that is there already.
Message overwrite_question(const std::string& language, const std::filesystem::path& path);

// A document of the help menu that is not there or that the desktop cannot open.
Message document_missing(const std::string& language, const std::filesystem::path& path);

// A report asked for while the results do not belong to the input: the last
// run stopped at its gate, or a box holds a value that failed.
Message report_refused(const std::string& language);

// A report that could not be written.
Message report_unwritten(const std::string& language, const std::string& why);

} // namespace kvelder
