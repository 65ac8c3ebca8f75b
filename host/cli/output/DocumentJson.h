#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "host/report/DocumentView.h"

namespace host::cli {

/// What `run --json` and `show --json` print of a document.
nlohmann::ordered_json JsonOf(const report::DocumentView& document);

/// What the object says of one element.
nlohmann::ordered_json JsonOf(const judge::JudgedElement& element);

/// The equipment under test.
nlohmann::ordered_json JsonOf(const document::Equipment& equipment);

/// The number, or null.
nlohmann::ordered_json NumberOrNull(const std::optional<double>& number);

/// The reasons with their codes, arguments and sentences.
nlohmann::ordered_json JsonOf(const std::vector<document::Reason>& reasons);

/// A tester as the object names it.
nlohmann::ordered_json JsonOf(const document::RecordedTester& tester);

/// JSON text of one line; bytes that are no UTF-8 are replaced.
std::string OneLine(const nlohmann::ordered_json& json);
/// JSON text, indented by two blanks.
std::string Indented(const nlohmann::ordered_json& json);

}  // namespace host::cli
