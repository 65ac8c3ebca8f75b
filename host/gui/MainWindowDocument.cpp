// The window's commands for the document.
#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "host/base/Tr.h"
#include "host/bench/ArchiveEntryOf.h"
#include "host/bench/CatalogueEntries.h"
#include "host/bench/InputError.h"
#include "host/bench/OpenArchive.h"
#include "host/bench/ProgramFiles.h"
#include "host/document/ElementText.h"
#include "host/elements/ElementFactory.h"
#include "host/gui/AddTestsDialog.h"
#include "host/gui/Dialogs.h"
#include "host/gui/ElementTree.h"
#include "host/gui/EquipmentBar.h"
#include "host/gui/LimitSetDialog.h"
#include "host/gui/MainWindow.h"
#include "host/qt/Conversions.h"
#include "platform/IForm.h"

namespace host::gui {

namespace {

std::string DocumentKinds() { return Tr("Test documents (*.orvik)") + ";;" + Tr("All files (*)"); }

/// "IEC 62353, 2014, class I:" and a line for each limit.
std::string LinesOf(const standards::LimitSet& set, const bench::AppliedLimits& limits) {
  std::string lines = set.standard + ", " + set.Description() + ":\n";
  for (const auto& line : limits.applied) lines += "  " + line + "\n";
  if (!limits.uncovered.empty()) lines += "\n" + Tr("Not covered by this set:") + "\n";
  for (const auto& line : limits.uncovered) lines += "  " + line + "\n";
  return lines;
}

}  // namespace

void MainWindow::New() {
  if (!MayLeaveDocument()) return;
  const auto file = AskForNewDocument(Tr("New document"));
  if (!file) return;
  session_.Create(*file);
  ShowOpened();
}

void MainWindow::NewFromThis() {
  if (!MayLeaveDocument()) return;
  const auto file = AskForNewDocument(Tr("New document with the same tests and limits"));
  if (!file) return;
  session_.CreateFromThis(*file);
  ShowOpened();
}

void MainWindow::OpenOther() {
  if (!MayLeaveDocument()) return;
  const auto file = AskForFile(
      this, {.title = Tr("Open a document"), .kinds = DocumentKinds(), .ending = "orvik", .at = Folder()});
  if (file) Open(*file);
}

void MainWindow::Save() {
  session_.Save();
  ShowSaved();
}

void MainWindow::SaveAs() {
  const auto file = AskForNewDocument(Tr("Save under another name"));
  if (!file) return;
  session_.SaveAs(*file);
  ShowSaved();
  if (view_.judged.run != 0)
    Remark(
        Tr("Saved: %%1. Its results are those of the same equipment; for another device make a new "
           "document with \"New for the next device\".",
           {session_.TheDocument().Path().string()}));
}

void MainWindow::ShowSaved() {
  Remark(Tr("Saved: %%1", {session_.TheDocument().Path().string()}));
  Refresh();
}

void MainWindow::AddTests() {
  const auto entries = bench::CatalogueEntries(session_.Bench());
  if (entries.empty())
    throw bench::InputError(Tr(
        "the catalogue has no tests; see error.log in the state folder, or name another with --catalogue"));
  AddTestsDialog dialog(entries, this);
  dialog.ShowPictures([this](std::int32_t testId) { return bench::PictureOf(session_.Bench(), testId); });
  if (dialog.exec() != QDialog::Accepted) return;
  const auto last = session_.AddTests(dialog.Chosen());
  Refresh();
  tree_->Choose(last);
}

void MainWindow::Remove() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const auto element = session_.TheDocument().Find(*id);
  const auto name = document::ElementName(*element, *session_.Bench().Host()->Elements());
  if (Ask(this,
          Tr("Remove test %%1, %%2, from %%3, with its result and everything in it?",
             {std::to_string(*id), name, session_.Device()}),
          {Tr("Remove"), Tr("Cancel")}) != 0)
    return;
  Change([&] { session_.Remove(*id); });
}

void MainWindow::SetLimits() {
  const auto id = tree_->Chosen();
  const auto element = id ? session_.TheDocument().Find(*id) : nullptr;
  const auto name = element ? document::ElementName(*element, *session_.Bench().Host()->Elements()) : "";
  LimitSetDialog dialog(standards::LimitSets(bench::files::StandardsFolders(session_.Options().state)).All(),
                        qt::ToQt(name), this);
  if (dialog.exec() != QDialog::Accepted) return;
  const auto& set = *dialog.Set();
  const auto before = session_.BeforeChange();
  const auto limits = session_.ApplySet(set, dialog.ForAll() ? std::nullopt : id);
  beforeEdit_.reset();
  Refresh();
  const auto consequences = before.Text();
  ShowMessage(this, Tr("These limits were set. They also judge readings that were measured before."),
              LinesOf(set, limits) + (consequences.empty() ? "" : "\n" + consequences));
}

void MainWindow::RemoveLimits() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const auto name =
      document::ElementName(*session_.TheDocument().Find(*id), *session_.Bench().Host()->Elements());
  if (Ask(this,
          Tr("Remove all limits of test %%1, %%2? Its readings are then judged by none.",
             {std::to_string(*id), name}),
          {Tr("Remove the limits"), Tr("Cancel")}) != 0)
    return;
  Change([&] { session_.RemoveLimits(*id); });
}

void MainWindow::SetRecordOnly() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const bool mark = !session_.IsRecordOnly(*id);
  if (mark && session_.HasLimits(*id))
    throw bench::InputError(Tr("Test %%1 has limits, so its readings are judged. Remove its limits first.",
                               {std::to_string(*id)}));
  Change([&] { session_.SetRecordOnly(*id, mark); });
}

void MainWindow::SetUp() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const auto configuration = session_.TheDocument().Find(*id)->Configuration();
  const auto dialog = configuration ? configuration->CreateDialog() : nullptr;
  const auto window = orvik::As<orvik::IDialogForm>(dialog);
  if (!window) throw bench::InputError(Tr("Element %%1 has no settings.", {std::to_string(*id)}));
  Change([&] {
    {
      const auto settingUp =
          state_.Begin(WindowState::Activity::kSettingUp, [window] { window->Form()->Close(); });
      UpdateActions();
      window->Form()->ShowModal(nullptr);
    }
    dialog->Unload();
  });
}

void MainWindow::Report() {
  auto suggestion = session_.TheDocument().Path();
  const auto file = AskForFile(this, {.title = Tr("Write a report"),
                                      .kinds = std::string("PDF (*.pdf)") + ";;" + Tr("Web page (*.html)") +
                                               ";;" + Tr("Plain text (*.txt)"),
                                      .ending = "pdf",
                                      .at = suggestion.replace_extension(".pdf"),
                                      .toWrite = true,
                                      .mayReplace = true});
  if (!file) return;
  session_.WriteReport(*file);
  Remark(Tr("Report written: %%1", {file->string()}));
}

void MainWindow::AddToArchive() {
  if (session_.Changed()) Save();
  const auto file = session_.TheDocument().Path().string();
  const auto entry = bench::ArchiveEntryOf(file, session_.Bench());
  if (entry.entry.simulated && Ask(this,
                                   Tr("%%1 was run on a simulated tester; nothing was measured. Add it to "
                                      "the archive all the same? It "
                                      "is marked there.",
                                      {file}),
                                   {Tr("Add it as it is"), Tr("Cancel")}) != 0)
    return;
  const auto reason = bench::UnfinishedReason(entry);
  if (!reason.empty() &&
      Ask(this,
          Tr("%%1 is not finished: %%2. Add it to the archive as it is? It is marked there.", {file, reason}),
          {Tr("Add it as it is"), Tr("Cancel")}) != 0)
    return;
  auto archive = bench::OpenArchiveToAdd({}, session_.Options());
  ShowMessage(this, bench::ReceiptText(entry, file, archive.Add(entry)));
}

bool MainWindow::MayLeaveDocument() {
  if (!session_.Changed()) return true;
  switch (Ask(this,
              Tr("%%1 has changes that were not saved.", {session_.TheDocument().Path().filename().string()}),
              {Tr("Save"), Tr("Drop the changes"), Tr("Cancel")})) {
    case 0:
      Save();
      return true;
    case 1:
      return true;
    default:
      return false;
  }
}

std::optional<std::filesystem::path> MainWindow::AskForNewDocument(const std::string& title) {
  return AskForFile(
      this, {.title = title, .kinds = DocumentKinds(), .ending = "orvik", .at = Folder(), .toWrite = true});
}

std::filesystem::path MainWindow::Folder() const {
  return session_.HasDocument() ? std::filesystem::absolute(session_.TheDocument().Path()).parent_path()
                                : std::filesystem::current_path();
}

}  // namespace host::gui
