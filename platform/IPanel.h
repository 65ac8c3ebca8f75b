#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/IControl.h"
#include "platform/Layout.h"

namespace orvik::platform {

class IButton;
class IComboBox;
class IContainerSite;
class IFrame;
class ILabel;
class IListView;
class IPictureBox;
class IProgressBar;
class ITabs;
class ITextBox;
class ITimer;
class IToolbar;
class ITreeView;

/// A surface with controls: a form, or the inside of a user control. Names of controls are unique in a panel,
/// and are matched to the letter; adding a second control of a name is an error.
class IPanel : public virtual IControl {
 public:
  virtual std::shared_ptr<ILabel> AddLabel(const std::string& name) = 0;
  virtual std::shared_ptr<IFrame> AddFrame(const std::string& name) = 0;
  virtual std::shared_ptr<IButton> AddButton(const std::string& name) = 0;
  virtual std::shared_ptr<ITextBox> AddTextBox(const std::string& name) = 0;
  virtual std::shared_ptr<IComboBox> AddComboBox(const std::string& name) = 0;
  virtual std::shared_ptr<IListView> AddListView(const std::string& name) = 0;
  virtual std::shared_ptr<ITreeView> AddTreeView(const std::string& name) = 0;
  virtual std::shared_ptr<IToolbar> AddToolbar(const std::string& name) = 0;
  virtual std::shared_ptr<IProgressBar> AddProgressBar(const std::string& name) = 0;
  virtual std::shared_ptr<IPictureBox> AddPictureBox(const std::string& name) = 0;
  virtual std::shared_ptr<ITabs> AddTabs(const std::string& name) = 0;
  virtual std::shared_ptr<ITimer> AddTimer(const std::string& name) = 0;
  /// Creates a user control by class identifier and places it; an unknown identifier is an error
  /// and adds nothing.
  virtual std::shared_ptr<IContainerSite> AddControl(const std::string& classIdentifier,
                                                     const std::string& name) = 0;

  /// The controls in the order in which they were added.
  virtual std::vector<std::shared_ptr<IControl>> Controls() const = 0;
  /// The control of that name on this panel, or empty. Inner controls of user controls are found through
  /// their sites.
  virtual std::shared_ptr<IControl> Find(const std::string& name) const = 0;

  /// Places the controls by rows and columns, now and on every change of the panel's size or of a caption's
  /// length.
  virtual void SetGrid(const Grid& grid) = 0;
  /// Size of the inside, in twips.
  virtual Size InnerSize() const = 0;
  /// Raised when the inside has another size.
  virtual Event<>& Resized() = 0;
};

}  // namespace orvik::platform
