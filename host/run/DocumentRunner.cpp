#include "host/run/DocumentRunner.h"

namespace host::run {

namespace {

document::RunRecord::End RecordedEnd(DocumentRunner::End end) {
  switch (end) {
    case DocumentRunner::End::kFinished:
      return document::RunRecord::End::kFinished;
    case DocumentRunner::End::kAborted:
      return document::RunRecord::End::kAborted;
    case DocumentRunner::End::kTesterLost:
      return document::RunRecord::End::kLost;
    case DocumentRunner::End::kStopped:
    case DocumentRunner::End::kNotSaved:
      break;
  }
  return document::RunRecord::End::kStopped;
}

}  // namespace

DocumentRunner::End DocumentRunner::Run(const RunRecorder::Heading& heading,
                                        const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  if (elements.empty()) return End::kFinished;
  auto end = End::kNotSaved;
  if (controller_->Begin(heading, elements))
    end = Walk(elements);
  else
    reason_ = controller_->SaveFailure();
  controller_->End(RecordedEnd(end));
  if (!controller_->SaveFailure().empty()) {
    reason_ = controller_->SaveFailure();
    end = End::kNotSaved;
  }
  return end;
}

DocumentRunner::End DocumentRunner::Walk(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  for (std::size_t place = 0; place < elements.size();) {
    if (stop_.Asked()) return End::kStopped;
    reached_.Raise(place + 1, elements.size(), elements[place]);
    Perform(elements[place]);
    reason_ = controller_->SaveFailure();
    if (!reason_.empty()) return End::kNotSaved;
    if (stop_.Asked()) return End::kStopped;
    if (controller_->Asked() == orvik::Navigation::kAbort) return End::kAborted;
    reason_ = link_.Loss();
    if (!reason_.empty()) return End::kTesterLost;
    if (controller_->Asked() != orvik::Navigation::kPrevious)
      ++place;
    else if (place > 0)
      --place;
  }
  return End::kFinished;
}

void DocumentRunner::Perform(const std::shared_ptr<orvik::ITestElement>& element) {
  controller_->Open(*element);
  element->Perform(controller_);
  controller_->Settle(element);
}

}  // namespace host::run
