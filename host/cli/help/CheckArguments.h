#pragma once

namespace CLI {
class App;
}  // namespace CLI

namespace host::cli {

/// Rejects what no option or argument may hold, with an `InputError` naming it:
/// - an empty file, folder or argument, such as from a script whose variable is not set: treating it as "not
///   given" would use another file than intended;
/// - control characters, line ends among them, and bytes that are not UTF-8, because a document cannot hold
///   them. Names of files and folders may have them.
void CheckArguments(const CLI::App& program);

}  // namespace host::cli
