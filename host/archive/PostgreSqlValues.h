#pragma once

#include <libpq-fe.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/archive/Database.h"

namespace host::archive {

/// Values as the client library takes them: numbers and texts as text, bytes as they are. The values must
/// outlive it.
class PostgreSqlParameters {
 public:
  explicit PostgreSqlParameters(const std::vector<Value>& values);
  PostgreSqlParameters(const PostgreSqlParameters&) = delete;
  PostgreSqlParameters& operator=(const PostgreSqlParameters&) = delete;

  int Count() const { return static_cast<int>(types_.size()); }
  const Oid* Types() const { return types_.data(); }
  const char* const* Texts() const { return texts_.data(); }
  const int* Lengths() const { return lengths_.data(); }
  const int* Formats() const { return formats_.data(); }

 private:
  void Add(std::monostate) { Append(0, nullptr, 0, false); }
  void Add(std::int64_t number);
  void Add(double number);
  void Add(const std::string& text);
  void Add(const Bytes& bytes);
  void Append(Oid type, const char* text, std::size_t length, bool binary);

  std::vector<std::string> numbers_;
  std::vector<Oid> types_;
  std::vector<const char*> texts_;
  std::vector<int> lengths_, formats_;
};

/// A column that is not null, as the server writes it in text.
Value PostgreSqlValue(std::string_view text, Oid type);

}  // namespace host::archive
