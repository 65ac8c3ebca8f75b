#include "host/bench/CalibrationWindow.h"

#include "OrvikTypeLib/As.h"
#include "host/base/Tr.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/run/GuideToolbar.h"
#include "platform/Controls.h"
#include "platform/IForm.h"

namespace host::bench {

namespace {

std::shared_ptr<orvik::platform::ITextBox> TextBox(const orvik::platform::IForm& form, const char* name) {
  return std::dynamic_pointer_cast<orvik::platform::ITextBox>(form.Find(name));
}

}  // namespace

CalibrationWindow::CalibrationWindow(Workbench& workbench, std::string serial)
    : workbench_(workbench),
      serial_(std::move(serial)),
      dialog_(
          orvik::As<orvik::IDialogForm>(workbench.Host()->CreateObject(plugins::keld::kLeadsDialogClass))),
      form_(orvik::Required(dialog_).Form()) {}

void CalibrationWindow::Run() {
  workbench_.Application()->Post([this] { Operate(); });
  Show();
}

void CalibrationWindow::Show() {
  form_->ShowModal(nullptr);
  form_->Unload();
}

void CalibrationWindow::Operate() {
  run::ClickButton(*form_,
                   plugins::keld::guide::kLeadsMeasure);  // returns when the session with the tester is over
  if (!form_->Visible()) return;
  const auto serial = TextBox(*form_, plugins::keld::guide::kLeadsSerial);
  if (serial && !serial_.empty()) serial->TypeOver(serial_);
  if (serial && serial->Text().empty()) {
    obstacle_ = Tr("the tester reported no serial number; give one with --serial to store the value");
    return run::ClickButton(*form_, plugins::keld::guide::kLeadsCancel);
  }
  run::ClickButton(*form_, plugins::keld::guide::kLeadsSave);
  if (!form_->Visible()) return;
  obstacle_ = Tr("the value could not be saved; measure again");
  run::ClickButton(*form_, plugins::keld::guide::kLeadsCancel);
}

std::string CalibrationWindow::TesterType() const {
  const auto type = TextBox(*form_, plugins::keld::guide::kLeadsType);
  return type ? type->Text() : std::string();
}

std::string CalibrationWindow::Reason() const {
  return obstacle_.empty() ? workbench_.Leads().Reason() : obstacle_;
}

}  // namespace host::bench
