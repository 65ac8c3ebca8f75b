#include "host/elements/ChildList.h"

#include <algorithm>
#include <utility>

namespace host::elements {
namespace {

/// Releases the children. Their own children queue up here, so a deep tree cannot overflow the stack.
void Release(std::vector<ChildList::Child> children) {
  thread_local std::vector<ChildList::Child> waiting;
  thread_local bool releasing = false;
  waiting.insert(waiting.end(), std::make_move_iterator(children.begin()),
                 std::make_move_iterator(children.end()));
  if (releasing) return;
  releasing = true;
  while (!waiting.empty()) {
    auto child = std::move(waiting.back());
    waiting.pop_back();
    child.reset();
  }
  waiting.shrink_to_fit();
  releasing = false;
}

}  // namespace

/// An enumerator: the index of the next child, adjusted by the list.
class ChildList::Walker final : public orvik::ITestEnumerator {
 public:
  explicit Walker(std::shared_ptr<ChildList> list) : list_(std::move(list)) {}

  std::size_t next = 0;

 private:
  Child ITestEnumerator_Next() override { return next < list_->Size() ? list_->At(next++) : nullptr; }

  std::shared_ptr<ChildList> list_;
};

ChildList::~ChildList() { Release(std::move(children_)); }

std::optional<std::size_t> ChildList::IndexOf(const Child& child) const {
  // Mostly called for the last ones.
  const auto found = std::find(children_.rbegin(), children_.rend(), child);
  if (found == children_.rend()) return {};
  return static_cast<std::size_t>(children_.rend() - found) - 1;
}

void ChildList::Insert(std::size_t index, Child child) {
  children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(index), std::move(child));
  for (const auto& weak : walkers_) {
    const auto walker = weak.lock();
    if (walker && walker->next > index) ++walker->next;
  }
}

void ChildList::Erase(std::size_t index) {
  children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(index));
  for (const auto& weak : walkers_) {
    const auto walker = weak.lock();
    if (walker && walker->next > index) --walker->next;
  }
}

void ChildList::Clear() {
  Release(std::exchange(children_, {}));
  for (const auto& weak : walkers_) {
    if (const auto walker = weak.lock()) walker->next = 0;
  }
}

std::shared_ptr<orvik::ITestEnumerator> ChildList::Walk() {
  std::erase_if(walkers_, [](const auto& ended) { return ended.expired(); });
  const auto walker = std::make_shared<Walker>(shared_from_this());
  walkers_.push_back(walker);
  return walker;
}

}  // namespace host::elements
