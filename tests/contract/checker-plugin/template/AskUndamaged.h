#pragma once

#include <string>

namespace check {

enum class Answer { kNone, kUndamaged, kDamaged };

/// Shows a window with the question, and waits for the operator. `kNone` when the window is closed.
Answer AskUndamaged(const std::string& title);

}  // namespace check
