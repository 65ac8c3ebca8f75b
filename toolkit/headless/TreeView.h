#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ITreeView.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

class TreeView final : public Control, public virtual platform::ITreeView {
 public:
  TreeView(std::shared_ptr<Desktop> desktop, std::string name);

  /// `HostError` 5 for a key that already exists.
  void AddNode(const std::string& key, const std::string& caption) override;
  void ClearNodes() override;
  std::vector<std::string> NodeKeys() const override;
  bool HasNode(const std::string& key) const override { return index_.count(key) != 0; }
  /// `HostError` 9 for an unknown key, as for `SetNodeCaption` and `Checked`.
  std::string NodeCaption(const std::string& key) const override { return nodes_[Index(key)].caption; }
  void SetNodeCaption(const std::string& key, const std::string& caption) override;
  bool Checked(const std::string& key) const override { return nodes_[Index(key)].checked; }
  void SetChecked(const std::string& key, bool checked) override;
  platform::Event<const std::string&>& NodeClicked() override { return nodeClicked_; }
  /// Toggles the node's check mark; ignores an unknown key.
  void ClickNode(const std::string& key) override;

  platform::Size NaturalSize() const override;
  bool CanFocus() const override { return true; }

 private:
  struct Node {
    std::string key;
    std::string caption;
    bool checked = false;
  };

  std::size_t Index(const std::string& key) const;

  std::vector<Node> nodes_;
  std::unordered_map<std::string, std::size_t> index_;
  platform::Event<const std::string&> nodeClicked_;
};

}  // namespace toolkit::headless
