#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

/// The questions and messages of the window. Each returns when the person has answered.
namespace bench::desktop {

/// What went wrong, in the words of the command line.
void ShowError(QWidget* parent, const std::string& text);
/// What was done.
/// @param details further lines; empty for none
void ShowMessage(QWidget* parent, const std::string& text, const std::string& details = {});
/// Puts a question; the answers are buttons. The last is the safe one, which changes nothing: Return and
/// Escape give it, and so does closing the question.
/// @return the place of the answer, from 0
std::size_t Ask(QWidget* parent, const std::string& question, const std::vector<std::string>& answers);

/// What a file dialog is for.
struct FileWish {
  std::string title;
  std::string kinds;         ///< such as "Test documents (*.orvik)", separated by ";;"
  std::string ending;        ///< appended to a name without one
  std::filesystem::path at;  ///< folder, or file to suggest
  bool toWrite = false;
  bool mayReplace = false;  ///< asks before a file that is there is taken
};
std::optional<std::filesystem::path> AskForFile(QWidget* parent, const FileWish& wish);

/// Closes whatever question or message is open, as escape does.
void CloseQuestions();

}  // namespace bench::desktop
