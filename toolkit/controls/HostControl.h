#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ILanguageService.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"

namespace toolkit::controls {

/// The base of the composite controls: their site, and the language of their texts.
class HostControl : public orvik::platform::IUserControl {
 public:
  /// @param language translates the texts; without it they stay English
  explicit HostControl(std::shared_ptr<orvik::ILanguageService> language) : language_(std::move(language)) {}

  /// Builds the control once; `HostError` 5 if it is already placed.
  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) final;

 protected:
  /// Adds the inner controls.
  virtual void Build(orvik::platform::IPanel& panel) = 0;
  /// The translation of one of the `ControlTexts`.
  std::string Text(const std::string& text) const;
  /// The control's site; `HostError` 91 before it is placed and after the site is destroyed.
  std::shared_ptr<orvik::platform::IContainerSite> Site() const;

 private:
  std::shared_ptr<orvik::ILanguageService> language_;
  std::weak_ptr<orvik::platform::IContainerSite> site_;
  bool attached_ = false;
};

}  // namespace toolkit::controls
