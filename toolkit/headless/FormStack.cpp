#include "toolkit/headless/FormStack.h"

#include <algorithm>
#include <utility>

#include "toolkit/headless/Form.h"

namespace toolkit::headless {
namespace {

/// Removes the form and all expired references.
void Remove(std::vector<std::weak_ptr<Form>>& forms, const Form* form) {
  std::erase_if(forms, [form](const std::weak_ptr<Form>& entry) {
    const auto held = entry.lock();
    return !held || held.get() == form;
  });
}

}  // namespace

std::string FormStack::ShownNames() const {
  std::string names;
  for (const auto& form : loaded_) {
    if (form->Visible()) names += (names.empty() ? "" : ", ") + form->Name();
  }
  return names;
}

void FormStack::EndModal(const Form& form) { Remove(modal_, &form); }

bool FormStack::IsModal(const Form& form) const {
  return std::any_of(modal_.begin(), modal_.end(),
                     [&](const auto& entry) { return entry.lock().get() == &form; });
}

bool FormStack::IsReachable(const Form& form) const {
  return std::none_of(modal_.begin(), modal_.end(), [&](const std::weak_ptr<Form>& entry) {
    const auto modal = entry.lock();
    return modal && modal->ShowOrder() > form.ShowOrder();
  });
}

void FormStack::Activate(const std::shared_ptr<Form>& form) {
  if (!form || !form->AcceptsInput() || Active() == form) return;
  active_ = form;
  Remove(history_, form.get());
  history_.push_back(form);
  form->NotifyChanged();
  form->BecomeActive();
}

void FormStack::Hidden(const std::shared_ptr<Form>& form, const std::shared_ptr<Form>& owner) {
  EndModal(*form);
  Remove(history_, form.get());
  if (Active() == form) {
    active_.reset();
    Activate(NextActive(owner));
  }
  UpdateFocus();
}

std::shared_ptr<Form> FormStack::NextActive(const std::shared_ptr<Form>& owner) const {
  if (owner && owner->AcceptsInput()) return owner;
  for (auto entry = history_.rbegin(); entry != history_.rend(); ++entry) {
    const auto form = entry->lock();
    if (form && form->AcceptsInput()) return form;
  }
  return nullptr;
}

void FormStack::UpdateFocus() {
  const auto active = Active();
  const auto next = active ? active->FocusTarget() : nullptr;
  const auto old = Focused();
  if (old == next) return;
  focused_ = next;
  if (next) next->NotifyChanged();
  if (old) old->FocusLeft();
  if (next && Focused() == next) next->FocusArrived();
}

void FormStack::Clear() {
  active_.reset();
  focused_.reset();
  modal_.clear();
  history_.clear();
  const auto loaded = std::exchange(loaded_, {});
}

}  // namespace toolkit::headless
