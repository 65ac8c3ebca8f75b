#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

/// The questions and messages of the window. Each returns when the user has answered.
namespace host::gui {

void ShowError(QWidget* parent, const std::string& text);
/// @param details further lines; empty for none
void ShowMessage(QWidget* parent, const std::string& text, const std::string& details = {});
/// Asks a question with a button for each answer. The last answer must change nothing: Return, Escape and
/// closing the question give it.
/// @return index of the answer
std::size_t Ask(QWidget* parent, const std::string& question, const std::vector<std::string>& answers);

/// The settings of a file dialog.
struct FileDialogOptions {
  std::string title;
  std::string kinds;         ///< such as "Test documents (*.orvik)", separated by ";;"
  std::string ending;        ///< appended to a name without one
  std::filesystem::path at;  ///< folder, or file to suggest
  bool toWrite = false;
  bool mayReplace = false;  ///< asks before a file that is there is taken
};
std::optional<std::filesystem::path> AskForFile(QWidget* parent, const FileDialogOptions& options);

/// Closes all open questions and messages, as Escape does.
void CloseQuestions();

}  // namespace host::gui
