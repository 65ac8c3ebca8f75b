#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/IForm.h"

namespace toolkit::headless {

namespace platform = orvik::platform;

class Control;
class Form;

/// Which forms are loaded, which of them are modal, which one is active, and where the focus is.
class FormStack {
 public:
  void AddLoaded(const std::shared_ptr<Form>& form) { loaded_.push_back(form); }
  void RemoveLoaded(const std::shared_ptr<Form>& form) { std::erase(loaded_, form); }
  const std::vector<std::shared_ptr<Form>>& Loaded() const { return loaded_; }
  /// The names of the visible forms, for messages.
  std::string ShownNames() const;

  /// The next number in the order in which forms are shown: a modal form blocks those shown before it.
  std::uint64_t NextShowOrder() { return ++lastShow_; }
  void BeginModal(const std::shared_ptr<Form>& form) { modal_.push_back(form); }
  void EndModal(const Form& form);
  bool IsModal(const Form& form) const;
  /// Whether no modal form blocks this one.
  bool IsReachable(const Form& form) const;

  std::shared_ptr<Form> Active() const { return active_.lock(); }
  /// Makes the form the active one if it accepts input.
  void Activate(const std::shared_ptr<Form>& form);
  /// After the form was hidden: activates its owner, or else the form used last.
  void Hidden(const std::shared_ptr<Form>& form, const std::shared_ptr<Form>& owner);

  /// The control or form that has the focus, or empty.
  std::shared_ptr<Control> Focused() const { return focused_.lock(); }
  /// Moves the focus to the target of the active form and notifies both controls.
  void UpdateFocus();

  platform::Event<const std::shared_ptr<platform::IForm>&>& FormShown() { return formShown_; }
  /// Releases all forms.
  void Clear();

 private:
  std::shared_ptr<Form> NextActive(const std::shared_ptr<Form>& owner) const;

  std::vector<std::shared_ptr<Form>> loaded_;
  std::vector<std::weak_ptr<Form>> modal_;
  // Forms that have been active, latest last.
  std::vector<std::weak_ptr<Form>> history_;
  std::weak_ptr<Form> active_;
  std::weak_ptr<Control> focused_;
  std::uint64_t lastShow_ = 0;
  platform::Event<const std::shared_ptr<platform::IForm>&> formShown_;
};

}  // namespace toolkit::headless
