#include "host/cli/output/AskOperator.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include "host/base/Tr.h"
#include "host/run/GuideToolbar.h"

namespace host::cli {

namespace {

struct Button {
  std::string_view word;
  std::int32_t command;
};

constexpr std::array<Button, 7> kButtons{{{"play", plugins::keld::guide::kPlay},
                                          {"stop", plugins::keld::guide::kStop},
                                          {"next", plugins::keld::guide::kNext},
                                          {"previous", plugins::keld::guide::kPrevious},
                                          {"skip", plugins::keld::guide::kSkip},
                                          {"na", plugins::keld::guide::kNotApplicable},
                                          {"abort", plugins::keld::guide::kAbort}}};

constexpr std::size_t kLongestLine = 1000;

/// The words are what the person types: they are the same in every language.
std::string WithChoices(const std::string& prompt, const std::string& words) {
  return prompt + " [" + words + "]";
}

}  // namespace

AskOperator::AskOperator(std::shared_ptr<toolkit::headless::Application> application, run::StopRequest& stop,
                         bench::RunReporter& reporter, std::function<std::string()> test)
    : application_(std::move(application)),
      stop_(stop),
      reporter_(reporter),
      test_(std::move(test)),
      watch_(application_->WatchReadable(STDIN_FILENO, [this] { ReadInput(); })) {}

AskOperator::~AskOperator() { application_->Forget(watch_); }

void AskOperator::OnStopRequested() { run::LeaveGuide(*application_); }

void AskOperator::OnWindowReady(const Form& form) {
  if (stop_.Asked()) return run::LeaveGuide(*application_);
  if (form->Name() == plugins::keld::guide::kGuideForm) PutGuide(form);
  if (form->Name() == plugins::keld::guide::kPretestForm)
    reporter_.Prompted(WithChoices(run::CaptionOf(*form, plugins::keld::guide::kPromptText), "ok"));
  if (form->Name() == plugins::keld::guide::kYesNoForm)
    reporter_.Prompted(WithChoices(run::CaptionOf(*form, plugins::keld::guide::kPromptText), "yes, no"));
}

void AskOperator::PutGuide(const Form& form) {
  const auto toolbar = run::GuideToolbar(*form);
  if (!toolbar) return;
  std::string words;
  for (const auto& button : kButtons) {
    if (toolbar->IsEnabled(button.command)) words += (words.empty() ? "" : ", ") + std::string(button.word);
  }
  reporter_.Prompted(WithChoices(Tr("%%1: %%2", {form->Caption(), test_()}), words));
}

void AskOperator::ReadInput() {
  std::array<char, 256> buffer{};
  const auto count = read(STDIN_FILENO, buffer.data(), buffer.size());
  if (count < 0 && (errno == EINTR || errno == EAGAIN)) return;
  if (count <= 0) {
    application_->Forget(watch_);
    return stop_.Ask();
  }
  input_.append(buffer.data(), static_cast<std::size_t>(count));
  if (input_.size() > kLongestLine) input_.clear();
  const std::weak_ptr<int> alive = alive_;
  for (auto end = input_.find('\n'); end != std::string::npos; end = input_.find('\n')) {
    const auto word = input_.substr(0, end);
    input_.erase(0, end + 1);
    Choose(word);
    if (alive.expired()) return;
  }
}

void AskOperator::Choose(const std::string& word) {
  const auto form = application_->ActiveForm();
  if (!form) return;
  if (form->Name() == plugins::keld::guide::kGuideForm) return ChooseInGuide(form, word);
  if (form->Name() == plugins::keld::guide::kPretestForm && word == "ok")
    return run::ClickButton(*form, plugins::keld::guide::kPretestOk);
  if (form->Name() == plugins::keld::guide::kYesNoForm && word == "yes")
    return run::ClickButton(*form, plugins::keld::guide::kYes);
  if (form->Name() == plugins::keld::guide::kYesNoForm && word == "no")
    return run::ClickButton(*form, plugins::keld::guide::kNo);
  OnWindowReady(form);
}

void AskOperator::ChooseInGuide(const Form& form, const std::string& word) {
  if (std::exchange(unconfirmed_, {}).lock() == form) {
    if (word == "yes") return Click(form, plugins::keld::guide::kNotApplicable);
    return OnWindowReady(form);
  }
  const auto button =
      std::find_if(kButtons.begin(), kButtons.end(), [&](const Button& known) { return known.word == word; });
  const auto toolbar = run::GuideToolbar(*form);
  if (!toolbar || button == kButtons.end() || !toolbar->IsEnabled(button->command))
    return OnWindowReady(form);
  if (button->command != plugins::keld::guide::kNotApplicable) return Click(form, button->command);
  unconfirmed_ = form;
  AskNotApplicable();
}

void AskOperator::AskNotApplicable() {
  reporter_.Prompted(WithChoices(Tr("Record test %%1 as not applicable?", {test_()}), "yes, no"));
}

void AskOperator::Click(const Form& form, std::int32_t command) {
  if (const auto toolbar = run::GuideToolbar(*form))
    toolbar->Click(command);  // play returns when the run is over
  if (form->Visible()) OnWindowReady(form);
}

}  // namespace host::cli
