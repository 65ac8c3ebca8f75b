#include "host/gui/Dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include "host/base/Tr.h"
#include "host/qt/Conversions.h"

namespace host::gui {

namespace {

constexpr QSize kMessageSize(900, 460);
constexpr char kProgramName[] = "orvik-bench";

/// The innermost window that is open above this one, such as the guide, or the window itself.
QWindow* TopAbove(QWindow* window) {
  for (auto* other : QGuiApplication::topLevelWindows())
    if (other->transientParent() == window && other->isVisible() && other->type() == Qt::Dialog)
      return TopAbove(other);
  return window;
}

/// Shows the dialog until it is closed, above all other windows: a click into one must not cover the dialog
/// that the program waits for.
int ExecOnTop(QDialog& dialog) {
  dialog.winId();
  auto* const owner = dialog.parentWidget() ? dialog.parentWidget()->window()->windowHandle() : nullptr;
  if (owner) dialog.windowHandle()->setTransientParent(TopAbove(owner));
  return dialog.exec();
}

/// A message with a list below it.
void ShowList(QWidget* parent, const std::string& text, const std::string& details) {
  QDialog dialog(parent);
  dialog.setObjectName("message");
  dialog.setWindowTitle(kProgramName);
  dialog.resize(kMessageSize);
  auto* heading = new QLabel(qt::ToQt(text), &dialog);
  heading->setTextFormat(Qt::PlainText);
  heading->setWordWrap(true);
  auto* list = new QPlainTextEdit(qt::ToQt(details), &dialog);
  list->setReadOnly(true);
  list->setLineWrapMode(QPlainTextEdit::NoWrap);
  list->setTabChangesFocus(true);
  list->setAccessibleName(heading->text());
  QFont font("monospace");
  font.setStyleHint(QFont::Monospace);
  list->setFont(font);
  auto* buttons = new QDialogButtonBox(&dialog);
  buttons->addButton(qt::ToQt(Tr("Close")), QDialogButtonBox::AcceptRole)->setDefault(true);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(heading);
  layout->addWidget(list, 1);
  layout->addWidget(buttons);
  ExecOnTop(dialog);
}

void ShowBox(QWidget* parent, QMessageBox::Icon icon, const std::string& text) {
  QMessageBox box(icon, kProgramName, qt::ToQt(text), QMessageBox::NoButton, parent);
  box.setObjectName("message");
  box.setTextFormat(Qt::PlainText);
  box.addButton(qt::ToQt(Tr("Close")), QMessageBox::AcceptRole);
  ExecOnTop(box);
}

}  // namespace

void ShowError(QWidget* parent, const std::string& text) { ShowBox(parent, QMessageBox::Critical, text); }

void ShowMessage(QWidget* parent, const std::string& text, const std::string& details) {
  if (details.empty())
    ShowBox(parent, QMessageBox::Information, text);
  else
    ShowList(parent, text, details);
}

std::size_t Ask(QWidget* parent, const std::string& question, const std::vector<std::string>& answers) {
  QMessageBox box(QMessageBox::Question, kProgramName, qt::ToQt(question), QMessageBox::NoButton, parent);
  box.setObjectName("question");
  box.setTextFormat(Qt::PlainText);
  std::vector<QAbstractButton*> buttons;
  for (std::size_t i = 0; i < answers.size(); ++i) {
    const auto role = i + 1 == answers.size() ? QMessageBox::RejectRole : QMessageBox::AcceptRole;
    auto* button = box.addButton(qt::ToQt(answers[i]), role);
    button->setObjectName("answer" + QString::number(i));
    buttons.push_back(button);
  }
  // Neither Return, which a scanner sends too, nor Escape may change or end anything.
  box.setDefaultButton(static_cast<QPushButton*>(buttons.back()));
  box.setEscapeButton(buttons.back());
  ExecOnTop(box);
  for (std::size_t i = 0; i < buttons.size(); ++i)
    if (box.clickedButton() == buttons[i]) return i;
  return answers.size() - 1;
}

std::optional<std::filesystem::path> AskForFile(QWidget* parent, const FileDialogOptions& options) {
  QFileDialog dialog(parent, qt::ToQt(options.title));
  dialog.setObjectName("fileDialog");
  dialog.setNameFilters(qt::ToQt(options.kinds).split(";;"));
  dialog.setDefaultSuffix(qt::ToQt(options.ending));
  dialog.setAcceptMode(options.toWrite ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(options.toWrite ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !options.mayReplace);
  std::error_code none;
  const bool folder = std::filesystem::is_directory(options.at, none);
  const auto start = folder ? options.at : options.at.parent_path();
  if (!start.empty()) dialog.setDirectory(QFile::decodeName(start.c_str()));
  if (!folder && options.at.has_filename())
    dialog.selectFile(QFile::decodeName(options.at.filename().c_str()));
  // The ending follows the kind that is chosen: "Report as PDF (*.pdf)".
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& kind) {
    const auto from = kind.lastIndexOf("*.") + 2;
    const auto ending = kind.mid(from, kind.lastIndexOf(')') - from);
    if (from > 1 && !ending.contains('*')) dialog.setDefaultSuffix(ending);
  });
  if (ExecOnTop(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return std::filesystem::path(QFile::encodeName(dialog.selectedFiles().first()).toStdString());
}

void CloseQuestions() {
  while (auto* question = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
    question->reject();
    if (QApplication::activeModalWidget() == question) return;
  }
}

}  // namespace host::gui
