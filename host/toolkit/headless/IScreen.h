#pragma once

#include "host/loop/IEventDispatcher.h"

namespace bench::headless {

class Control;
class IMetrics;

/// Shows the windows of an application to a person, and sleeps in the window system when nobody does
/// anything. The windows know nothing of it but this: they note what has changed and ask how large texts are.
class IScreen : public IEventDispatcher {
 public:
  /// The window, new or not, has another state, place, parent or focus. It is shown when messages are next
  /// processed, not at once: the change may be half done.
  virtual void Changed(Control& control) = 0;
  /// The window is being destroyed: nothing may be asked of it any more.
  virtual void Gone(const Control& control) = 0;
  /// What the layout goes by.
  virtual const IMetrics& Metrics() const = 0;
};

}  // namespace bench::headless
