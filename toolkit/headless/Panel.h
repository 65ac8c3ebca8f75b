#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/IPanel.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

/// A surface with controls: the inside of a form, of a user control, or of a tab.
class Panel : public Control, public virtual platform::IPanel {
 public:
  using Control::Control;

  std::shared_ptr<platform::ILabel> AddLabel(const std::string& name) override;
  std::shared_ptr<platform::IFrame> AddFrame(const std::string& name) override;
  std::shared_ptr<platform::IButton> AddButton(const std::string& name) override;
  std::shared_ptr<platform::ITextBox> AddTextBox(const std::string& name) override;
  std::shared_ptr<platform::IComboBox> AddComboBox(const std::string& name) override;
  std::shared_ptr<platform::IListView> AddListView(const std::string& name) override;
  std::shared_ptr<platform::ITreeView> AddTreeView(const std::string& name) override;
  std::shared_ptr<platform::IToolbar> AddToolbar(const std::string& name) override;
  std::shared_ptr<platform::IProgressBar> AddProgressBar(const std::string& name) override;
  std::shared_ptr<platform::IPictureBox> AddPictureBox(const std::string& name) override;
  std::shared_ptr<platform::ITabs> AddTabs(const std::string& name) override;
  std::shared_ptr<platform::ITimer> AddTimer(const std::string& name) override;
  std::shared_ptr<platform::IContainerSite> AddControl(const std::string& classIdentifier,
                                                       const std::string& name) override;

  std::vector<std::shared_ptr<platform::IControl>> Controls() const override;
  std::shared_ptr<platform::IControl> Find(const std::string& name) const override;
  /// `HostError` 5 for a cell outside the grid or of a control that is not on the panel; the old grid stays.
  void SetGrid(const platform::Grid& grid) override;
  platform::Size InnerSize() const override { return {Bounds().width, Bounds().height}; }
  platform::Event<>& Resized() override { return resized_; }

  /// What the grid needs; a medium size without a grid.
  platform::Size NaturalSize() const override;
  /// Moves the focus to the first control that can have it.
  void SetFocus() override;
  /// The first control on the panel that can have the focus now, or empty.
  std::shared_ptr<Control> FirstFocus() const;
  /// Places the controls by the grid, if there is one.
  void Relayout();
  void Stop() override;

 protected:
  void BoundsChanged(const platform::Rect& old) override;
  /// The size that the grid needs has changed.
  virtual void NaturalSizeChanged();

 private:
  template <class Window>
  std::shared_ptr<Window> Add(const std::string& name);
  void CheckNewName(const std::string& name) const;
  void Adopt(const std::shared_ptr<Control>& control);
  void RemoveControl(const std::shared_ptr<Control>& control);
  std::shared_ptr<Panel> Self() { return std::static_pointer_cast<Panel>(shared_from_this()); }
  std::vector<platform::Size> CellSizes() const;
  void ArrangeOnce();

  std::vector<std::shared_ptr<Control>> controls_;
  std::unordered_map<std::string, std::shared_ptr<Control>> byName_;
  std::optional<platform::Grid> grid_;
  // The control of each cell of the grid.
  std::vector<std::shared_ptr<Control>> inCells_;
  platform::Size natural_;
  bool arranging_ = false;
  bool arrangeAgain_ = false;
  platform::Event<> resized_;
};

}  // namespace toolkit::headless
