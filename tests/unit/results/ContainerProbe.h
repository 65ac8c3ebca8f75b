#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "platform/IContainerSite.h"

namespace results {

/// A container with exactly the extender properties that a test sets; records the names that are read.
class ContainerProbe final : public orvik::platform::IContainerSite {
 public:
  explicit ContainerProbe(std::shared_ptr<orvik::platform::IPanel> panel) : panel_(std::move(panel)) {}

  std::map<std::string, Value> properties;
  mutable std::vector<std::string> asked;

  std::shared_ptr<orvik::platform::IUserControl> Object() const override { return {}; }
  std::shared_ptr<orvik::platform::IPanel> Panel() const override { return panel_; }
  Value ExtenderProperty(const std::string& name) const override {
    asked.push_back(name);
    const auto found = properties.find(name);
    if (found == properties.end())
      throw orvik::HostError(orvik::HostError::kNoSuchProperty, "probe", "no property " + name);
    return found->second;
  }
  void SetExtenderProperty(const std::string& name, const Value& value) override { properties[name] = value; }

  std::string Name() const override { return "probe"; }
  orvik::platform::WindowHandle Handle() const override { return panel_->Handle(); }
  std::string Caption() const override { return {}; }
  void SetCaption(const std::string&) override {}
  std::string ToolTip() const override { return {}; }
  void SetToolTip(const std::string&) override {}
  orvik::platform::Rect Bounds() const override { return panel_->Bounds(); }
  void SetBounds(const orvik::platform::Rect&) override {}
  bool Visible() const override { return true; }
  void SetVisible(bool) override {}
  bool Enabled() const override { return true; }
  void SetEnabled(bool) override {}
  orvik::platform::Color BackColor() const override { return {}; }
  void SetBackColor(orvik::platform::Color) override {}
  void SetFocus() override {}
  bool HasFocus() const override { return false; }
  void Refresh() override {}
  int RefreshCount() const override { return 0; }

 private:
  const std::shared_ptr<orvik::platform::IPanel> panel_;
};

}  // namespace results
