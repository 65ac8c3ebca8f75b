#pragma once

#include <memory>

namespace orvik::platform {

class IContainerSite;

/// A control made of others, created by class identifier. Implemented by its author, in the plug-in or in the
/// host.
class IUserControl {
 public:
  IUserControl() = default;
  IUserControl(const IUserControl&) = delete;
  IUserControl& operator=(const IUserControl&) = delete;
  virtual ~IUserControl() = default;

  /// The control has been placed: it builds its inner controls on the site's panel. Called once. The site
  /// owns the control, so the control keeps only a weak reference to the site.
  virtual void AttachTo(const std::shared_ptr<IContainerSite>& site) = 0;
};

}  // namespace orvik::platform
