#include "host/gui/RunProgress.h"

#include <utility>

#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/judge/ReasonText.h"

namespace host::gui {

RunProgress::RunProgress(const toolkit::loop::ILoop& loop, double timeScale, std::function<void()> changed,
                         std::function<void(const std::string&)> remark)
    : loop_(loop), timeScale_(timeScale), changed_(std::move(changed)), remark_(std::move(remark)) {}

std::string RunProgress::Text() const {
  if (place_ == 0) return {};
  std::string text = "[" + std::to_string(place_) + "/" + std::to_string(count_) + "]";
  const auto exchange = exchange_.Text(loop_.Now());
  if (exchange.empty()) return text + " " + (element_.empty() ? Tr("waiting for the operator") : element_);
  text += " " + exchange;
  if (const auto left = estimate_.Text(loop_.Now(), timeScale_); !left.empty()) text += " | " + left;
  return element_.empty() ? text : text + " | " + element_;
}

void RunProgress::Reached(std::size_t place, std::size_t count) {
  estimate_.Reach(place);
  place_ = place;
  count_ = count;
  element_.clear();
  finished_.clear();
  changed_();
}

void RunProgress::Started(const judge::JudgedElement& element) {
  running_ = element.id;
  // The guide's own test begins again with everything in it.
  if (element.parent == 0) finished_.clear();
  element_ = std::to_string(element.testId) + " " + host::VisibleText(element.name);
  changed_();
}

void RunProgress::Finished(const judge::JudgedElement& element) {
  running_ = 0;
  std::erase(finished_, element.id);
  finished_.push_back(element.id);
  changed_();
}

void RunProgress::Wire(const serial::WireRecord& record) {
  exchange_.Take(record);
  estimate_.Take(record);
  if (record.kind == serial::WireRecord::Kind::kFailed) remark_(Tr("the line to the tester has failed"));
}

void RunProgress::Doubted(std::int32_t, const document::Reason& doubt) {
  remark_(Tr("doubt: %%1", {judge::ReasonText(doubt)}));
  changed_();
}

void RunProgress::Over() {
  running_ = 0;
  place_ = 0;
  changed_();
}

}  // namespace host::gui
