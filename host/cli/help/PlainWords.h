#pragma once

namespace CLI {
class App;
}  // namespace CLI

namespace host::cli {

/// Rejects texts on the command line that a document cannot hold: control characters, line ends among them,
/// and bytes that are not UTF-8. Names of files and folders may have them. `InputError` naming the option.
void RefuseControlCharacters(const CLI::App& program);

}  // namespace host::cli
