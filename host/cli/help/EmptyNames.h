#pragma once

namespace CLI {
class App;
}  // namespace CLI

namespace bench {

/// Refuses a file, a folder or an argument that was given as an empty text, as by a script whose variable is
/// not set: taken for "not given" it would be another file than was meant. `InputError`.
void RefuseEmptyNames(const CLI::App& program);

}  // namespace bench
