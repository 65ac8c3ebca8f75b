#include "toolkit/headless/ComboBox.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "toolkit/headless/IMetrics.h"

namespace toolkit::headless {

ComboBox::ComboBox(std::shared_ptr<Desktop> desktop, std::string name)
    : Control(std::move(desktop), std::move(name)) {
  backColor_ = platform::kWindowBackground;
}

void ComboBox::AddItem(const std::string& text) {
  Apply([&] { items_.push_back(text); });
}

void ComboBox::ClearItems() {
  const std::string kept = editable_ && selected_ < 0 ? text_ : "";
  Apply([&] { items_.clear(); });
  Select(-1, kept);
}

void ComboBox::SetSelectedIndex(int index) {
  if (index < -1 || index >= static_cast<int>(items_.size())) return;
  Select(index, index < 0 ? "" : items_[static_cast<std::size_t>(index)]);
}

void ComboBox::SetText(const std::string& text) {
  const auto found = std::find(items_.begin(), items_.end(), text);
  if (found != items_.end())
    Select(static_cast<int>(std::distance(items_.begin(), found)), text);
  else if (editable_)
    Select(-1, text);
}

void ComboBox::SetEditable(bool editable) {
  editable_ = editable;
  NotifyChanged();
}

void ComboBox::Choose(int index) {
  const auto self = shared_from_this();
  if (BeginAction() && index >= 0) SetSelectedIndex(index);
}

void ComboBox::TypeOver(const std::string& text) {
  const auto self = shared_from_this();
  if (BeginAction() && editable_) SetText(text);
}

platform::Size ComboBox::NaturalSize() const {
  const platform::Size character = Metrics().Character();
  const platform::Size padding = Metrics().Padding(Part::kComboBox);
  platform::Twips widest = 12 * character.width;
  for (const auto& item : items_) widest = std::max(widest, Metrics().Line(item).width);
  return {widest + padding.width, character.height + padding.height};
}

void ComboBox::Select(int index, const std::string& text) {
  const auto self = shared_from_this();
  text_ = text;
  const bool another = std::exchange(selected_, index) != index;
  NotifyChanged();
  if (another) selectedEvent_.Raise();
}

}  // namespace toolkit::headless
