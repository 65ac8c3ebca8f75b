#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/run/LinkWatch.h"
#include "host/run/RunController.h"
#include "host/run/StopRequest.h"
#include "platform/Event.h"

namespace host::run {

/// Performs elements in order, forwards and back as the operator navigates.
class DocumentRunner {
 public:
  enum class End {
    kFinished,    ///< the last element has been left
    kStopped,     ///< a stop was requested
    kAborted,     ///< the operator ended the run
    kTesterLost,  ///< the tester cannot be reached: `Reason`
    kNotSaved     ///< the document cannot be saved: `Reason`
  };

  DocumentRunner(std::shared_ptr<RunController> controller, LinkWatch& link, const StopRequest& stop)
      : controller_(std::move(controller)), link_(link), stop_(stop) {}

  /// An element is about to be performed: its place from 1, the number of elements, the element.
  orvik::platform::Event<std::size_t, std::size_t, const std::shared_ptr<orvik::ITestElement>&>& Reached() {
    return reached_;
  }

  /// Records the run and performs the elements; returns when the session with the tester is closed.
  End Run(const RunRecorder::Heading& heading,
          const std::vector<std::shared_ptr<orvik::ITestElement>>& elements);
  const std::string& Reason() const { return reason_; }

 private:
  End Walk(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements);
  void Perform(const std::shared_ptr<orvik::ITestElement>& element);

  const std::shared_ptr<RunController> controller_;
  LinkWatch& link_;
  const StopRequest& stop_;
  std::string reason_;
  orvik::platform::Event<std::size_t, std::size_t, const std::shared_ptr<orvik::ITestElement>&> reached_;
};

}  // namespace host::run
