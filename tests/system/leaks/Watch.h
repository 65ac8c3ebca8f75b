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

/// Weak references to the objects of a run, each under the name of its kind.
class Watch {
 public:
  template <class Object>
  void See(const std::string& kind, const std::shared_ptr<Object>& object) {
    if (!object) return;
    auto& seen = seen_[object.get()];
    // An address may serve one object after another.
    if (!seen.watched.expired()) return;
    if (!seen.kind.empty()) gone_.insert(seen.kind);
    seen = {kind, object};
  }
  /// An element with all that it owns, and all that stands below it.
  void SeeElement(const std::shared_ptr<orvik::ITestElement>& element);
  /// Every window that is loaded, with its controls at any depth.
  void SeeWindows(const orvik::platform::IApplication& application);
  void SeeWindow(const std::shared_ptr<orvik::platform::IForm>& form);

  /// Kinds of what is still there.
  std::vector<std::string> Alive() const;
  /// Kinds of all that was ever seen.
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

/// The host, with a watch on every object that the plug-in has it create.
class WatchedHost final : public virtual orvik::IHost {
 public:
  explicit WatchedHost(std::shared_ptr<orvik::IHost> host) : host_(std::move(host)) {}

  /// Who sees the objects; null for nobody.
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
