#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace host::cli {

/// A page of the manual, in the "man" macros of roff.
struct ManPage {
  std::string name;  ///< of the file, such as "orvik-bench-run.1"
  std::string text;
};

/// The manual of the program: one page for itself and one for each of its commands, made from the
/// declarations that `--help` shows. Hidden commands and options have none.
std::vector<ManPage> ManPages(const CLI::App& program);

}  // namespace host::cli
