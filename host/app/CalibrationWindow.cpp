#include "host/app/CalibrationWindow.h"

#include "OrvikTypeLib/As.h"
#include "host/app/TextColumns.h"
#include "host/judge/ReasonText.h"
#include "host/run/GuideToolbar.h"
#include "host/services/Tr.h"
#include "platform/Controls.h"
#include "platform/IForm.h"

namespace bench {

namespace {

constexpr char kClass[] = "orvikKELD.FCalibrateLeads";
constexpr char kCalibrate[] = "cmdCalibrate";
constexpr char kSave[] = "cmdSave";
constexpr char kCancel[] = "cmdCancel";
constexpr char kSerial[] = "txtSerial";
constexpr char kType[] = "txtMTIType";
constexpr char kValue[] = "lblValue";
/// More than any set of leads has, and than every limit of a protective earth: whatever reads less would
/// become 0 and pass.
constexpr double kMostOhmsOfLeads = 0.5;
constexpr std::int32_t kCalibration = 0;  // stands for an element's identifier

std::shared_ptr<orvik::platform::ITextBox> TextBox(const orvik::platform::IForm& form, const char* name) {
  return std::dynamic_pointer_cast<orvik::platform::ITextBox>(form.Find(name));
}

}  // namespace

CalibrationWindow::CalibrationWindow(Workbench& workbench, std::string serial)
    : workbench_(workbench),
      serial_(std::move(serial)),
      doubts_(*workbench.Ports().TheWire()),
      heard_(workbench.Ports().TheWire()->Subscribe([this](const WireRecord&) { DoubtTooMuch(); })),
      dialog_(orvik::As<orvik::IDialogForm>(workbench.Host()->CreateObject(kClass))),
      form_(orvik::Required(dialog_).Form()) {}

void CalibrationWindow::Run() {
  doubts_.ElementStarts(kCalibration);
  workbench_.Application()->Post([this] { Operate(); });
  form_->ShowModal(nullptr);
  form_->Unload();
}

void CalibrationWindow::Show() {
  doubts_.ElementStarts(kCalibration);
  const auto noted = doubts_.Noted().Subscribe([this](std::int32_t, const bench::Reason&) {
    workbench_.Application()->Post([this, alive = std::weak_ptr<int>(alive_)] {
      if (!alive.expired()) RefuseDoubtful();
    });
  });
  form_->ShowModal(nullptr);
  form_->Unload();
}

void CalibrationWindow::DoubtTooMuch() {
  const auto ohms = doubts_.LastOhms();
  if (!ohms || *ohms <= kMostOhmsOfLeads) return;
  doubts_.Add(kCalibration, {"leads-implausible", {ShortNumber(*ohms * 1000)}});
}

void CalibrationWindow::RefuseDoubtful() {
  if (cancelled_ || !form_->Visible()) return;
  reason_ = Obstacle();
  Cancel();
}

void CalibrationWindow::Cancel() {
  cancelled_ = true;
  ClickButton(*form_, kCancel);
}

void CalibrationWindow::Operate() {
  ClickButton(*form_, kCalibrate);  // returns when the session with the tester is over
  const auto serial = TextBox(*form_, kSerial);
  if (!serial_.empty() && serial) serial->TypeOver(serial_);
  reason_ = Obstacle();
  if (!reason_.empty()) return Cancel();
  const auto type = TextBox(*form_, kType);
  stored_ = Saved{type ? type->Text() : "", serial ? serial->Text() : "", CaptionOf(*form_, kValue)};
  ClickButton(*form_, kSave);
}

std::string CalibrationWindow::Obstacle() const {
  if (cancelled_) return Tr("stopped; nothing was stored");
  if (const auto& error = workbench_.Ports().LastError(); !error.empty()) return error;
  const auto& doubts = doubts_.Of(kCalibration);
  if (!doubts.empty())
    return Tr("the measurement is doubtful and was not stored: %%1", {judge::ReasonText(doubts.front())});
  const auto serial = TextBox(*form_, kSerial);
  if (serial && serial->Text().empty())
    return Tr("the tester told no serial number to store the value under; give one with --serial");
  const auto save = form_->Find(kSave);
  if (!save || !save->Enabled())
    return Tr(
        "the tester gave no reading; check that it is switched on and connected, and the clip at the ground "
        "of its power socket");
  return {};
}

}  // namespace bench
