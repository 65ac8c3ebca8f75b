#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ILanguageService.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"

namespace bench {

/// What the host's own controls share: their place, and the language of their texts.
class HostControl : public orvik::platform::IUserControl {
 public:
  /// @param language who translates the texts; without it they stay English
  explicit HostControl(std::shared_ptr<orvik::ILanguageService> language) : language_(std::move(language)) {}

  /// Builds the control once; `HostError` 5 when it has been placed already.
  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) final;

 protected:
  /// Adds the inner controls.
  virtual void Build(orvik::platform::IPanel& panel) = 0;
  /// The text to show for a language string of the host.
  std::string Text(const std::string& text) const;
  /// The place of the control; `HostError` 91 before it has one and after it is gone.
  std::shared_ptr<orvik::platform::IContainerSite> Site() const;

 private:
  std::shared_ptr<orvik::ILanguageService> language_;
  std::weak_ptr<orvik::platform::IContainerSite> site_;
  bool attached_ = false;
};

}  // namespace bench
