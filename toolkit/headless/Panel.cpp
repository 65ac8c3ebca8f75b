#include "toolkit/headless/Panel.h"

#include <stdexcept>

#include "OrvikTypeLib/HostError.h"
#include "platform/LayoutEngine.h"
#include "toolkit/headless/Button.h"
#include "toolkit/headless/ComboBox.h"
#include "toolkit/headless/ContainerSite.h"
#include "toolkit/headless/Desktop.h"
#include "toolkit/headless/Form.h"
#include "toolkit/headless/Label.h"
#include "toolkit/headless/ListView.h"
#include "toolkit/headless/PictureBox.h"
#include "toolkit/headless/ProgressBar.h"
#include "toolkit/headless/Tabs.h"
#include "toolkit/headless/TextBox.h"
#include "toolkit/headless/Timer.h"
#include "toolkit/headless/Toolbar.h"
#include "toolkit/headless/TreeView.h"

namespace toolkit::headless {

using orvik::HostError;

template <class Window>
std::shared_ptr<Window> Panel::Add(const std::string& name) {
  CheckNewName(name);
  auto control = GetDesktop().Make<Window>(name);
  Adopt(control);
  return control;
}

std::shared_ptr<platform::ILabel> Panel::AddLabel(const std::string& name) { return Add<Label>(name); }
std::shared_ptr<platform::IFrame> Panel::AddFrame(const std::string& name) { return Add<Frame>(name); }
std::shared_ptr<platform::IButton> Panel::AddButton(const std::string& name) { return Add<Button>(name); }
std::shared_ptr<platform::ITextBox> Panel::AddTextBox(const std::string& name) { return Add<TextBox>(name); }
std::shared_ptr<platform::IComboBox> Panel::AddComboBox(const std::string& name) {
  return Add<ComboBox>(name);
}
std::shared_ptr<platform::IListView> Panel::AddListView(const std::string& name) {
  return Add<ListView>(name);
}
std::shared_ptr<platform::ITreeView> Panel::AddTreeView(const std::string& name) {
  return Add<TreeView>(name);
}
std::shared_ptr<platform::IToolbar> Panel::AddToolbar(const std::string& name) { return Add<Toolbar>(name); }
std::shared_ptr<platform::IProgressBar> Panel::AddProgressBar(const std::string& name) {
  return Add<ProgressBar>(name);
}
std::shared_ptr<platform::IPictureBox> Panel::AddPictureBox(const std::string& name) {
  return Add<PictureBox>(name);
}
std::shared_ptr<platform::ITabs> Panel::AddTabs(const std::string& name) { return Add<Tabs>(name); }
std::shared_ptr<platform::ITimer> Panel::AddTimer(const std::string& name) { return Add<Timer>(name); }

std::shared_ptr<platform::IContainerSite> Panel::AddControl(const std::string& classIdentifier,
                                                            const std::string& name) {
  CheckNewName(name);
  auto object = GetDesktop().CreateUserControl(classIdentifier);
  auto site = GetDesktop().Make<ContainerSite>(name);
  Adopt(site);
  try {
    site->Hold(std::move(object));
  } catch (...) {
    RemoveControl(site);
    throw;
  }
  return site;
}

std::vector<std::shared_ptr<platform::IControl>> Panel::Controls() const {
  return {controls_.begin(), controls_.end()};
}

std::shared_ptr<platform::IControl> Panel::Find(const std::string& name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? nullptr : found->second;
}

void Panel::SetGrid(const platform::Grid& grid) {
  std::vector<std::shared_ptr<Control>> inCells;
  for (const platform::Cell& cell : grid.cells) {
    const auto found = byName_.find(cell.control);
    if (found == byName_.end())
      Fail(HostError::kInvalidArgument, "the grid of \"" + Name() + "\" names the control \"" + cell.control +
                                            "\", which is not on it; add the control first");
    inCells.push_back(found->second);
  }
  try {
    platform::NaturalSize(grid, std::vector<platform::Size>(grid.cells.size()));
  } catch (const std::invalid_argument& error) {
    Fail(HostError::kInvalidArgument, "the grid of \"" + Name() + "\" cannot be used: " + error.what());
  }
  grid_ = grid;
  inCells_ = std::move(inCells);
  Relayout();
}

platform::Size Panel::NaturalSize() const {
  constexpr platform::Size medium{3600, 2400};
  return grid_ ? natural_ : medium;
}

void Panel::SetFocus() {
  if (const auto first = FirstFocus()) first->SetFocus();
}

std::shared_ptr<Control> Panel::FirstFocus() const {
  for (const auto& control : controls_) {
    if (control->CanFocus() && control->Usable()) return control;
  }
  return nullptr;
}

void Panel::Relayout() {
  if (!grid_) return;
  arrangeAgain_ = true;
  if (arranging_) return;
  const auto self = shared_from_this();
  // Placing a control may change the size of another; stop if the layout does not converge.
  constexpr int kMostRounds = 8;
  arranging_ = true;
  try {
    for (int round = 0; arrangeAgain_ && round < kMostRounds; ++round) ArrangeOnce();
  } catch (...) {
    arranging_ = false;
    throw;
  }
  arranging_ = false;
}

void Panel::ArrangeOnce() {
  arrangeAgain_ = false;
  const auto sizes = CellSizes();
  const platform::Size natural = platform::NaturalSize(*grid_, sizes);
  const bool changed = natural != natural_;
  natural_ = natural;
  if (changed) NaturalSizeChanged();
  const auto rects = platform::Arrange(*grid_, sizes, InnerSize());
  const auto inCells = inCells_;
  for (std::size_t index = 0; index < inCells.size() && index < rects.size(); ++index) {
    // The window that a control is docked into places it.
    if (inCells[index]->ParentWindow().get() == this) inCells[index]->SetBounds(rects[index]);
  }
}

std::vector<platform::Size> Panel::CellSizes() const {
  std::vector<platform::Size> sizes;
  sizes.reserve(inCells_.size());
  for (const auto& control : inCells_) {
    const bool here = control->ParentWindow().get() == this;
    sizes.push_back(here ? control->LayoutSize() : platform::Size{});
  }
  return sizes;
}

void Panel::Stop() {
  const auto controls = controls_;
  for (const auto& control : controls) control->Stop();
}

void Panel::BoundsChanged(const platform::Rect& old) {
  const auto self = shared_from_this();
  if (InnerSize() == platform::Size{old.width, old.height}) return;
  Relayout();
  resized_.Raise();
}

void Panel::NaturalSizeChanged() {
  if (const auto outer = ParentWindow()) outer->InnerSizeChanged();
}

void Panel::CheckNewName(const std::string& name) const {
  if (byName_.count(name) != 0)
    Fail(HostError::kInvalidArgument, "\"" + Name() + "\" already has a control named \"" + name + "\"");
}

void Panel::Adopt(const std::shared_ptr<Control>& control) {
  controls_.push_back(control);
  byName_.emplace(control->Name(), control);
  control->PlaceOn(Self());
}

void Panel::RemoveControl(const std::shared_ptr<Control>& control) {
  std::erase(controls_, control);
  byName_.erase(control->Name());
}

}  // namespace toolkit::headless
