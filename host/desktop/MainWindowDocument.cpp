// What the window does with the document.
#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "host/app/CatalogueEntries.h"
#include "host/app/InputError.h"
#include "host/app/ProgramFiles.h"
#include "host/app/archive/ArchiveCommandEntry.h"
#include "host/app/archive/ArchiveCommandOpen.h"
#include "host/desktop/AddTestsDialog.h"
#include "host/desktop/Dialogs.h"
#include "host/desktop/ElementTree.h"
#include "host/desktop/EquipmentBar.h"
#include "host/desktop/LimitSetDialog.h"
#include "host/desktop/MainWindow.h"
#include "host/desktop/Shown.h"
#include "host/desktop/WhileOpen.h"
#include "host/elements/ElementFactory.h"
#include "host/run/ElementText.h"
#include "host/services/Tr.h"
#include "platform/IForm.h"

namespace bench::desktop {

namespace {

std::string DocumentKinds() { return Tr("Test documents (*.orvik)") + ";;" + Tr("All files (*)"); }

/// "IEC 62353, 2014, class I:" and a line for each limit.
std::string LinesOf(const LimitSet& set, const AppliedLimits& told) {
  std::string lines = set.standard + ", " + set.Description() + ":\n";
  for (const auto& line : told.applied) lines += "  " + line + "\n";
  if (!told.uncovered.empty()) lines += "\n" + Tr("Not covered by this set:") + "\n";
  for (const auto& line : told.uncovered) lines += "  " + line + "\n";
  return lines;
}

}  // namespace

void MainWindow::New() {
  if (!MayLeaveDocument()) return;
  const auto file = AskForFile(this, {.title = Tr("New document"),
                                      .kinds = DocumentKinds(),
                                      .ending = "orvik",
                                      .at = Folder(),
                                      .toWrite = true});
  if (!file) return;
  desk_.Create(*file);
  Begin();
}

void MainWindow::NewFromThis() {
  if (!MayLeaveDocument()) return;
  const auto file = AskForFile(this, {.title = Tr("New document with the same tests and limits"),
                                      .kinds = DocumentKinds(),
                                      .ending = "orvik",
                                      .at = Folder(),
                                      .toWrite = true});
  if (!file) return;
  desk_.CreateFromThis(*file);
  Begin();
}

void MainWindow::OpenOther() {
  if (!MayLeaveDocument()) return;
  const auto file = AskForFile(
      this, {.title = Tr("Open a document"), .kinds = DocumentKinds(), .ending = "orvik", .at = Folder()});
  if (file) Open(*file);
}

void MainWindow::Save() {
  desk_.Save();
  TellSaved();
}

void MainWindow::SaveAs() {
  const auto file = AskForFile(this, {.title = Tr("Save under another name"),
                                      .kinds = DocumentKinds(),
                                      .ending = "orvik",
                                      .at = Folder(),
                                      .toWrite = true});
  if (!file) return;
  desk_.SaveAs(*file);
  TellSaved();
  if (view_.judged.run != 0)
    Remark(
        Tr("Saved: %%1. Its results are those of the same equipment; for another device make a new "
           "document with \"New for the next device\".",
           {desk_.TheDocument().Path().string()}));
}

void MainWindow::TellSaved() {
  Remark(Tr("Saved: %%1", {desk_.TheDocument().Path().string()}));
  Refresh();
}

void MainWindow::AddTests() {
  const auto entries = CatalogueEntries(desk_.Bench());
  if (entries.empty())
    throw InputError(Tr(
        "the catalogue has no tests; see error.log in the state folder, or name another with --catalogue"));
  AddTestsDialog dialog(entries, this);
  dialog.ShowPictures([this](std::int32_t testId) { return PictureOf(desk_.Bench(), testId); });
  if (dialog.exec() != QDialog::Accepted) return;
  const auto last = desk_.AddTests(dialog.Chosen());
  Refresh();
  tree_->Choose(last);
}

void MainWindow::Remove() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const auto element = desk_.TheDocument().Find(*id);
  const auto name = ElementName(*element, *desk_.Bench().Host()->Elements());
  if (Ask(this,
          Tr("Remove test %%1, %%2, from %%3, with its result and everything in it?",
             {std::to_string(*id), name, desk_.Device()}),
          {Tr("Remove"), Tr("Cancel")}) != 0)
    return;
  Change([&] { desk_.Remove(*id); });
}

void MainWindow::SetLimits() {
  const auto id = tree_->Chosen();
  const auto element = id ? desk_.TheDocument().Find(*id) : nullptr;
  const auto name = element ? ElementName(*element, *desk_.Bench().Host()->Elements()) : "";
  LimitSetDialog dialog(LimitSets(files::StandardsFolders(desk_.Options().state)).All(), Shown(name), this);
  if (dialog.exec() != QDialog::Accepted) return;
  const auto& set = *dialog.Set();
  const auto before = desk_.BeforeChange();
  const auto told = desk_.ApplySet(set, dialog.ForAll() ? std::nullopt : id);
  beforeEdit_.reset();
  Refresh();
  const auto consequences = before.Text();
  ShowMessage(this, Tr("These limits were set. They also judge readings that were measured before."),
              LinesOf(set, told) + (consequences.empty() ? "" : "\n" + consequences));
}

void MainWindow::RemoveLimits() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const auto name = ElementName(*desk_.TheDocument().Find(*id), *desk_.Bench().Host()->Elements());
  if (Ask(this,
          Tr("Remove all limits of test %%1, %%2? Its readings are then judged by none.",
             {std::to_string(*id), name}),
          {Tr("Remove the limits"), Tr("Cancel")}) != 0)
    return;
  Change([&] { desk_.RemoveLimits(*id); });
}

void MainWindow::SetRecordOnly() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const bool mark = !desk_.IsRecordOnly(*id);
  if (mark && desk_.HasLimits(*id))
    throw InputError(Tr("Test %%1 has limits, so its readings are judged. Remove its limits first.",
                        {std::to_string(*id)}));
  Change([&] { desk_.SetRecordOnly(*id, mark); });
}

void MainWindow::SetUp() {
  const auto id = tree_->Chosen();
  if (!id) return;
  const auto configuration = desk_.TheDocument().Find(*id)->Configuration();
  const auto dialog = configuration ? configuration->CreateDialog() : nullptr;
  const auto window = orvik::As<orvik::IDialogForm>(dialog);
  if (!window) throw InputError(Tr("Element %%1 has no settings.", {std::to_string(*id)}));
  Change([&] {
    {
      const WhileOpen open(dialog_, window->Form().get());
      UpdateActions();
      window->Form()->ShowModal(nullptr);
    }
    dialog->Unload();
  });
}

void MainWindow::Report() {
  auto suggestion = desk_.TheDocument().Path();
  const auto file = AskForFile(this, {.title = Tr("Write a report"),
                                      .kinds = std::string("PDF (*.pdf)") + ";;" + Tr("Web page (*.html)") +
                                               ";;" + Tr("Plain text (*.txt)"),
                                      .ending = "pdf",
                                      .at = suggestion.replace_extension(".pdf"),
                                      .toWrite = true,
                                      .mayReplace = true});
  if (!file) return;
  desk_.WriteReport(*file);
  Remark(Tr("Report written: %%1", {file->string()}));
}

void MainWindow::AddToArchive() {
  if (desk_.Changed()) Save();
  const auto file = desk_.TheDocument().Path().string();
  const auto entry = EntryOf(file, desk_.Bench());
  if (entry.entry.simulated && Ask(this,
                                   Tr("%%1 was run on a simulated tester; nothing was measured. Add it to "
                                      "the archive all the same? It "
                                      "is marked there.",
                                      {file}),
                                   {Tr("Add it as it is"), Tr("Cancel")}) != 0)
    return;
  const auto reason = UnfinishedReason(entry);
  if (!reason.empty() &&
      Ask(this,
          Tr("%%1 is not finished: %%2. Add it to the archive as it is? It is marked there.", {file, reason}),
          {Tr("Add it as it is"), Tr("Cancel")}) != 0)
    return;
  auto archive = OpenArchiveToAdd({}, desk_.Options());
  ShowMessage(this, ReceiptText(entry, file, archive.Add(entry)));
}

bool MainWindow::MayLeaveDocument() {
  if (!desk_.Changed()) return true;
  switch (Ask(this,
              Tr("%%1 has changes that were not saved.", {desk_.TheDocument().Path().filename().string()}),
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

std::filesystem::path MainWindow::Folder() const {
  return desk_.HasDocument() ? std::filesystem::absolute(desk_.TheDocument().Path()).parent_path()
                             : std::filesystem::current_path();
}

}  // namespace bench::desktop
