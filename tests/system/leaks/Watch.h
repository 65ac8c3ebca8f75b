#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "OrvikTypeLib/IHost.h"
#include "OrvikTypeLib/ITestElement.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "platform/IPanel.h"

namespace leaks {

/// Weak references to the objects of a run, by kind.
class Watch {
 public:
  template <class Object>
  void See(const std::string& kind, const std::shared_ptr<Object>& object) {
    if (!object) return;
    auto& seen = seen_[object.get()];
    // A new object may reuse the address of a destroyed one.
    if (!seen.watched.expired()) return;
    if (!seen.kind.empty()) gone_.insert(seen.kind);
    seen = {kind, object};
  }
  /// An element, all that it owns, and its children at any depth.
  void SeeElement(const std::shared_ptr<orvik::ITestElement>& element);
  /// Every loaded window, with its controls at any depth.
  void SeeWindows(const orvik::platform::IApplication& application);
  void SeeWindow(const std::shared_ptr<orvik::platform::IForm>& form);

  /// Kinds of the objects that still exist.
  std::vector<std::string> Alive() const;
  /// Kinds of all objects ever seen.
  std::set<std::string> Kinds() const;

 private:
  struct Seen {
    std::string kind;
    std::weak_ptr<const void> watched;
  };

  void SeeRun(const std::shared_ptr<orvik::ITestElement>& element);
  void SeePanel(const std::shared_ptr<orvik::platform::IPanel>& panel);

  std::map<const void*, Seen> seen_;
  std::set<std::string> gone_;
};

/// The host; reports every object that it creates for the plug-in.
class WatchedHost final : public virtual orvik::IHost {
 public:
  explicit WatchedHost(std::shared_ptr<orvik::IHost> host) : host_(std::move(host)) {}

  /// Receives the created objects; may be null.
  Watch* watch = nullptr;

 private:
  std::shared_ptr<orvik::IObject> IHost_CreateObject(const std::string& classId) override {
    auto created = host_->CreateObject(classId);
    if (watch) watch->See(classId, created);
    return created;
  }
  std::shared_ptr<orvik::platform::IApplication> IHost_Application() const override {
    return host_->Application();
  }

  const std::shared_ptr<orvik::IHost> host_;
};

}  // namespace leaks
