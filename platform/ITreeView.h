#pragma once

#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/IControl.h"

namespace orvik::platform {

/// Nodes with check boxes, each found by its key, in the order in which they were added.
class ITreeView : public virtual IControl {
 public:
  virtual void AddNode(const std::string& key, const std::string& caption) = 0;
  virtual void ClearNodes() = 0;
  virtual std::vector<std::string> NodeKeys() const = 0;
  virtual bool HasNode(const std::string& key) const = 0;
  virtual std::string NodeCaption(const std::string& key) const = 0;
  virtual void SetNodeCaption(const std::string& key, const std::string& caption) = 0;
  virtual bool Checked(const std::string& key) const = 0;
  /// Checks or clears a node without raising `NodeClicked`. An unknown key is ignored.
  virtual void SetChecked(const std::string& key, bool checked) = 0;
  /// The operator has clicked the check box of the node with this key; it already shows its new state.
  virtual Event<const std::string&>& NodeClicked() = 0;
  virtual void ClickNode(const std::string& key) = 0;
};

}  // namespace orvik::platform
