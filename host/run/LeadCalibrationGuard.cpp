#include "host/run/LeadCalibrationGuard.h"

#include <utility>
#include <vector>

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/base/Tr.h"
#include "host/judge/ReasonText.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/run/DoubtTracker.h"
#include "host/run/GuideToolbar.h"
#include "host/run/LeadsReading.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"
#include "platform/Controls.h"
#include "platform/IForm.h"

namespace host::run {

namespace platform = orvik::platform;

namespace {

constexpr std::int32_t kCalibration = 0;  // instead of an element's identifier

/// "123 mOhm (measured 2026-11-22 14:03)"
std::string TextOf(const std::optional<LeadCalibration>& leads) {
  if (!leads || !leads->milliohms) return Tr("0 mOhm, since no value is stored");
  return std::to_string(*leads->milliohms) + " mOhm (" + MeasuredText(leads->measured) + ")";
}

std::string NoReading() {
  return Tr(
      "the tester gave no reading; check that it is switched on and connected, and the clip at the ground "
      "of its power socket");
}

}  // namespace

/// The plug-in's dialog, and the tester's replies since its measurement started.
struct LeadCalibrationGuard::Dialog {
  Dialog(std::shared_ptr<platform::IForm> shown, serial::Wire& wire) : form(std::move(shown)), doubts(wire) {
    doubts.ElementStarts(kCalibration);
  }

  void Begin() {
    sessionOpen = true;
    asked = false;
    reading.reset();
    refusal.clear();
    saved.reset();
    doubts.ElementStarts(kCalibration);
  }
  void OnReply(const serial::Message& reply) {
    if (reply.MnemonicText() == plugins::keld::kError) refusal = reply.Line();
    if (reply.MnemonicText() != plugins::keld::kReading) return;
    reading = ReadLeads(reply);
    if (!asked)
      reading->fault = Tr("the reading \"%%1\" came without being asked for; measure again",
                          {serial::VisibleLatin1(reply.Line())});
  }
  std::shared_ptr<platform::IButton> Button(const char* name) const {
    return std::dynamic_pointer_cast<platform::IButton>(form->Find(name));
  }
  std::shared_ptr<platform::ITextBox> Serial() const {
    return std::dynamic_pointer_cast<platform::ITextBox>(form->Find(plugins::keld::guide::kLeadsSerial));
  }

  const std::shared_ptr<platform::IForm> form;
  DoubtTracker doubts;
  bool sessionOpen = false;
  bool asked = false;  ///< the last command was "GRES"
  std::optional<LeadsReading> reading;
  std::string refusal;               ///< the last error reply
  std::optional<std::string> saved;  ///< serial number, while its value waits for the end of the session
  std::vector<platform::Subscription> subscriptions;
};

LeadCalibrationGuard::LeadCalibrationGuard(Parts parts)
    : parts_(std::move(parts)),
      shown_(parts_.application.FormShown().Subscribe(
          [this](const std::shared_ptr<platform::IForm>& form) { Shown(form); })),
      writing_(parts_.registry.GuardWrites(
          plugins::keld::kRegistryHive, plugins::keld::kLeadsKey,
          [this](const std::string& serial, const orvik::Variant& value) { Write(serial, value); })) {}

LeadCalibrationGuard::~LeadCalibrationGuard() = default;

void LeadCalibrationGuard::Shown(const std::shared_ptr<platform::IForm>& form) {
  if (form->Name() != plugins::keld::guide::kLeadsForm || (dialog_ && dialog_->form == form)) return;
  dialog_ = std::make_shared<Dialog>(form, *parts_.ports.TheWire());
  value_.reset();
  reason_.clear();
  cancelled_ = false;
  registryWasBusy_ = false;
  // The plug-in subscribed first, so these handlers run after its own.
  auto& subscriptions = dialog_->subscriptions;
  subscriptions.push_back(
      parts_.ports.TheWire()->Subscribe([this](const serial::WireRecord& record) { Watch(record); }));
  subscriptions.push_back(form->Unloading().Subscribe([this] { Closed(); }));
  if (const auto measure = dialog_->Button(plugins::keld::guide::kLeadsMeasure))
    subscriptions.push_back(measure->Clicked().Subscribe([this] { MeasurementOver(); }));
  if (const auto save = dialog_->Button(plugins::keld::guide::kLeadsSave))
    subscriptions.push_back(save->Clicked().Subscribe([this] { SaveClicked(); }));
}

void LeadCalibrationGuard::Watch(const serial::WireRecord& record) {
  if (record.kind == serial::WireRecord::Kind::kOpened) dialog_->Begin();
  if (record.kind == serial::WireRecord::Kind::kClosed) dialog_->sessionOpen = false;
  if (record.kind == serial::WireRecord::Kind::kSent)
    dialog_->asked = record.message->MnemonicText() == plugins::keld::kGetReading;
  if (record.kind == serial::WireRecord::Kind::kReceived) dialog_->OnReply(*record.message);
  if (Doubt().empty()) return;
  // Close the dialog at once, before it can save; but not inside the plug-in's own exchange.
  parts_.application.Post([this, dialog = std::weak_ptr<Dialog>(dialog_)] {
    if (!dialog.expired() && reason_.empty() && !Doubt().empty()) Refuse(Doubt());
  });
}

void LeadCalibrationGuard::MeasurementOver() {
  // A second click while the first measurement runs returns at once.
  if (dialog_->sessionOpen || !reason_.empty()) return;
  const auto saved = std::exchange(dialog_->saved, {});
  const bool cancelled = !saved && !dialog_->form->Visible();
  if (const auto obstacle = Obstacle(); !obstacle.empty() && !cancelled) return Refuse(obstacle);
  if (saved) return Store(*saved);
  const auto save = dialog_->Button(plugins::keld::guide::kLeadsSave);
  const auto serial = dialog_->Serial();
  if (!cancelled && save && !save->Enabled() && serial && !serial->Text().empty()) Refuse(NoReading());
}

std::string LeadCalibrationGuard::Doubt() const {
  const auto doubtful = [](const std::string& doubt) {
    return Tr("the measurement is doubtful and was not stored: %%1", {doubt});
  };
  if (dialog_->reading && !dialog_->reading->fault.empty()) return doubtful(dialog_->reading->fault);
  // Not a doubt here: the operator types the serial number, or nothing can be saved.
  for (const auto& doubt : dialog_->doubts.Of(kCalibration))
    if (doubt.code != "no-serial-number") return doubtful(judge::ReasonText(doubt));
  return {};
}

std::string LeadCalibrationGuard::Obstacle() const {
  if (const auto& error = parts_.ports.LastError(); !error.empty()) return error;
  if (auto doubt = Doubt(); !doubt.empty()) return doubt;
  if (dialog_->reading) return {};
  if (dialog_->refusal.find(std::to_string(plugins::keld::kNoSuchTest)) != std::string::npos)
    return Tr(
        "the tester does not have the test 410, which measures the test leads; nothing was stored. Use a "
        "tester that has it");
  if (!dialog_->refusal.empty())
    return Tr(
        "the tester refused the measurement (\"%%1\"); nothing was stored. Switch it off and on and "
        "try again",
        {serial::VisibleLatin1(dialog_->refusal)});
  return NoReading();
}

void LeadCalibrationGuard::Refuse(const std::string& reason) {
  reason_ = reason;
  ClickButton(*dialog_->form, plugins::keld::guide::kLeadsCancel);
}

void LeadCalibrationGuard::Cancel() {
  if (!dialog_) return;
  cancelled_ = true;
  Refuse(Tr("stopped; nothing was stored"));
}

void LeadCalibrationGuard::Write(const std::string& serial, const orvik::Variant& value) {
  const bool measured = dialog_ && reason_.empty() && dialog_->reading && Doubt().empty() &&
                        value == orvik::Variant(Measured());
  if (measured)
    Save(serial);
  else if (dialog_ && reason_.empty())
    reason_ = Tr("the value was not stored, since it is not what the tester measured; measure again");
  if (!measured || !reason_.empty())
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikTypeLib.RegistryReader",
                           reason_.empty()
                               ? Tr("only the dialog that measures test leads may store their resistance")
                               : reason_);
}

void LeadCalibrationGuard::SaveClicked() {
  // The plug-in writes nothing when the registry key does not open, and does not report it.
  const auto serial = dialog_->Serial();
  if (value_ || dialog_->saved || !reason_.empty() || !serial || !dialog_->reading) return;
  Save(serial->Text());
}

void LeadCalibrationGuard::Save(const std::string& serial) {
  // A reply while the session is being closed can still make the reading doubtful.
  if (dialog_->sessionOpen)
    dialog_->saved = serial;
  else
    Store(serial);
}

std::int32_t LeadCalibrationGuard::Measured() const {
  // Rounded as the plug-in does it.
  return orvik::RoundToInteger(dialog_->reading->milliohms);
}

void LeadCalibrationGuard::Store(const std::string& serial) {
  const auto milliohms = Measured();
  auto& registry = parts_.registry;
  std::string failure;
  registryWasBusy_ = false;
  try {
    StoreLeads(registry, serial, milliohms, parts_.clock());
    const auto readBack = StoredLeadsOf(registry, serial);
    if (readBack && readBack->milliohms == milliohms) {
      value_ = readBack;
      return;
    }
    failure = Tr("%%1 does not hold it", {registry.File().string()});
  } catch (const BusyError& error) {
    registryWasBusy_ = true;
    failure = error.Description();
  } catch (const orvik::HostError& error) {
    failure = error.Description();
  }
  std::optional<LeadCalibration> left;
  try {
    left = StoredLeadsOf(registry, serial);
  } catch (const orvik::HostError&) {
    // The registry cannot be read either; the failure above says why.
  }
  reason_ =
      Tr("%%1 mOhm was not stored for tester %%2: %%3. Readings of this tester are still corrected by %%4",
         {std::to_string(milliohms), serial, failure, TextOf(left)});
}

void LeadCalibrationGuard::Closed() {
  const auto closed = std::exchange(dialog_, nullptr);
  if (value_) return stored_.Raise(*value_);
  if (!reason_.empty() && !cancelled_) refused_.Raise(reason_);
}

}  // namespace host::run
