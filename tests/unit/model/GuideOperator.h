#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "toolkit/headless/Application.h"

namespace support {

/// Operates the windows of a run as a person does, by their names and buttons.
///
/// Presses the commands of `guide` in each guide, each after the one before has finished; then, if the guide
/// is still open, "next". A prompt in front of the guide is answered first, by `abort`, and recorded.
class GuideOperator {
 public:
  static constexpr int kAbort = 101;
  static constexpr int kPrevious = 102;
  static constexpr int kNext = 103;
  static constexpr int kStop = 201;
  static constexpr int kPlay = 202;
  static constexpr int kNotApplicable = 301;
  static constexpr int kSkip = 302;

  explicit GuideOperator(toolkit::headless::Application& application) : application_(application) {
    shown_ = application.FormShown().Subscribe([this](const auto& form) { OnShown(form); });
  }

  std::vector<int> guide{kPlay};
  /// The answer to the question whether to end the test.
  bool abort = true;
  /// How long a person looks at a question or message before answering it.
  std::chrono::milliseconds thinks{0};
  /// Called right before a prompt is answered, with the name of its form.
  std::function<void(const std::string& form)> onAnswer = [](const std::string&) {};
  /// The questions and messages shown.
  std::vector<std::string> prompts;
  int guidesShown = 0;

  /// The guide that is open, or empty.
  std::shared_ptr<orvik::platform::IForm> Guide() const { return guideForm_.lock(); }

  /// Whether the guide is on the screen without a prompt in front of it.
  bool AtGuide() const {
    const auto form = Guide();
    return form && form->Visible() && application_.ActiveForm() == form;
  }
  /// Whether the guide shows that a test is running.
  bool Running() const {
    const auto toolbar = Toolbar();
    return toolbar && toolbar->IsEnabled(kStop);
  }
  /// Presses a button of the open guide, if there is one.
  void Press(int command) const {
    if (const auto toolbar = Toolbar()) toolbar->Click(command);
  }
  void CloseGuide() const {
    if (const auto form = Guide()) form->Close();
  }

 private:
  void OnShown(const std::shared_ptr<orvik::platform::IForm>& form) {
    if (form->Name() == "FTestGuide") {
      ++guidesShown;
      guideForm_ = form;
      application_.Post([this] { OperateGuide(); });
    } else if (form->Name() == "FYesNoPrompt") {
      prompts.push_back(Prompt(*form));
      Click(form, abort ? "cmdAccept" : "cmdDecline");
    } else if (form->Name() == "FPretestPrompt") {
      prompts.push_back(Prompt(*form));
      Click(form, "cmdOK");
    }
  }

  void OperateGuide() {
    const auto form = Guide();
    waiting_ = form && form->Visible() && !AtGuide();
    if (waiting_) return;
    for (const int command : guide) Press(command);
    // Finally leave the guide.
    if (form && form->Visible()) Press(kNext);
  }

  static std::string Prompt(const orvik::platform::IForm& form) {
    return std::dynamic_pointer_cast<orvik::platform::ILabel>(form.Find("lblPrompt"))->Caption();
  }

  void Click(const std::weak_ptr<orvik::platform::IForm>& form, const std::string& button) {
    const auto answer = [this, form, button] {
      if (const auto shown = form.lock()) {
        onAnswer(shown->Name());
        std::dynamic_pointer_cast<orvik::platform::IButton>(shown->Find(button))->Click();
      }
      // A person needs a moment to return to the guide.
      if (std::exchange(waiting_, false))
        application_.CallAt(application_.Now() + std::chrono::milliseconds(1), [this] { OperateGuide(); });
    };
    if (thinks == thinks.zero()) return application_.Post(answer);
    application_.CallAt(application_.Now() + thinks, answer);
  }

  std::shared_ptr<orvik::ITgToolbar> Toolbar() const {
    const auto form = Guide();
    if (!form) return nullptr;
    const auto site = orvik::As<orvik::platform::IContainerSite>(form->Find("xtbToolbar"));
    return site ? orvik::As<orvik::ITgToolbar>(site->Object()) : nullptr;
  }

  toolkit::headless::Application& application_;
  std::weak_ptr<orvik::platform::IForm> guideForm_;
  /// The guide's buttons are to be pressed once the prompt is answered.
  bool waiting_ = false;
  orvik::platform::Subscription shown_;
};

}  // namespace support
