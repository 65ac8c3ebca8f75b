#include "toolkit/headless/TreeView.h"

#include <algorithm>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/IMetrics.h"

namespace toolkit::headless {

using orvik::HostError;

TreeView::TreeView(std::shared_ptr<Desktop> desktop, std::string name)
    : Control(std::move(desktop), std::move(name)) {
  backColor_ = platform::kWindowBackground;
}

void TreeView::AddNode(const std::string& key, const std::string& caption) {
  if (!index_.emplace(key, nodes_.size()).second)
    Fail(HostError::kInvalidArgument, "tree \"" + Name() + "\" already has a node \"" + key + "\"");
  Apply([&] { nodes_.push_back({key, caption, false}); });
}

void TreeView::ClearNodes() {
  index_.clear();
  Apply([&] { nodes_.clear(); });
}

std::vector<std::string> TreeView::NodeKeys() const {
  std::vector<std::string> keys;
  for (const Node& node : nodes_) keys.push_back(node.key);
  return keys;
}

void TreeView::SetNodeCaption(const std::string& key, const std::string& caption) {
  const std::size_t index = Index(key);
  Apply([&] { nodes_[index].caption = caption; });
}

void TreeView::SetChecked(const std::string& key, bool checked) {
  if (!HasNode(key)) return;
  nodes_[Index(key)].checked = checked;
  NotifyChanged();
}

void TreeView::ClickNode(const std::string& key) {
  const auto self = shared_from_this();
  // The key may belong to a node, and a handler may clear the nodes.
  const std::string clicked = key;
  if (!BeginAction() || !HasNode(clicked)) return;
  Node& node = nodes_[Index(clicked)];
  node.checked = !node.checked;
  NotifyChanged();
  nodeClicked_.Raise(clicked);
}

platform::Size TreeView::NaturalSize() const {
  const platform::Size character = Metrics().Character();
  const platform::Size padding = Metrics().Padding(Part::kTreeNode);
  platform::Twips widest = 20 * character.width;
  for (const Node& node : nodes_) widest = std::max(widest, Metrics().Line(node.caption).width);
  const auto lines = std::clamp<std::size_t>(nodes_.size(), 6, 14);
  return {widest + padding.width, static_cast<platform::Twips>(lines) * (character.height + padding.height)};
}

std::size_t TreeView::Index(const std::string& key) const {
  const auto found = index_.find(key);
  if (found == index_.end())
    Fail(HostError::kSubscriptOutOfRange, "tree \"" + Name() + "\" has no node \"" + key + "\"");
  return found->second;
}

}  // namespace toolkit::headless
