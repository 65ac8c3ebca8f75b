#pragma once

namespace CLI {
class App;
}  // namespace CLI

namespace host::cli {

/// Rejects an empty file, folder or argument, such as from a script whose variable is not set: treating it as
/// "not given" would use another file than intended. `InputError`.
void RefuseEmptyNames(const CLI::App& program);

}  // namespace host::cli
