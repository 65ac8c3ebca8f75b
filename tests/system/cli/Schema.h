#pragma once

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

namespace cli {

/// A published schema of the program's JSON output.
class Schema {
 public:
  /// @param name of the file without ".schema.json"
  explicit Schema(const std::string& name) {
    std::ifstream file(std::string(SOURCE_PATH) + "/packaging/schemas/" + name + ".schema.json");
    if (!file) throw std::runtime_error("there is no schema " + name);
    text_ = nlohmann::json::parse(file);
    valijson::SchemaParser(valijson::SchemaParser::kDraft7)
        .populateSchema(valijson::adapters::NlohmannJsonAdapter(text_), schema_);
  }

  /// What the output breaks; empty when it keeps to the schema.
  std::string Broken(const nlohmann::json& output) const {
    valijson::Validator validator;
    valijson::ValidationResults results;
    std::string broken;
    if (validator.validate(schema_, valijson::adapters::NlohmannJsonAdapter(output), &results)) return broken;
    valijson::ValidationResults::Error error;
    while (results.popError(error)) {
      for (const auto& step : error.context) broken += step;
      broken += ": " + error.description + "\n";
    }
    return broken;
  }

  const nlohmann::json& Text() const { return text_; }

 private:
  nlohmann::json text_;
  valijson::Schema schema_;
};

}  // namespace cli
