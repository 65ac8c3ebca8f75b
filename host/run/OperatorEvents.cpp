#include "host/run/OperatorEvents.h"

namespace host::run {

OperatorEvents::OperatorEvents(std::shared_ptr<orvik::platform::IApplication> application, StopRequest& stop,
                               std::unique_ptr<IOperator> runOperator)
    : application_(std::move(application)), operator_(std::move(runOperator)) {
  shown_ = application_->FormShown().Subscribe([this](const IOperator::Form& form) {
    // Not before the window has entered its modal loop and waits for input.
    application_->Post([form, weak = std::weak_ptr<IOperator>(operator_)] {
      const auto present = weak.lock();
      if (present && form->Visible()) present->OnWindowReady(form);
    });
  });
  stopRequested_ = stop.Happened().Subscribe([this] { operator_->OnStopRequested(); });
}

}  // namespace host::run
