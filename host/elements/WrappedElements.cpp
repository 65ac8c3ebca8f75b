#include "host/elements/WrappedElements.h"

namespace host::elements {

WrappedElements::~WrappedElements() {
  while (first_) first_->Leave();
}

void WrappedElements::Link::Join(WrappedElements& chain, const orvik::ITestElement* outer) {
  Leave();
  outer_ = outer;
  chain_ = &chain;
  next_ = chain.first_;
  if (next_) next_->previous_ = this;
  chain.first_ = this;
}

void WrappedElements::Link::Leave() {
  if (!chain_) return;
  (previous_ ? previous_->next_ : chain_->first_) = next_;
  if (next_) next_->previous_ = previous_;
  outer_ = nullptr;
  chain_ = nullptr;
  previous_ = next_ = nullptr;
}

TestElement* WrappedElements::Inside(const orvik::ITestElement* outer) const {
  auto* link = first_;
  while (link && link->outer_ != outer) link = link->next_;
  return link ? &link->element_ : nullptr;
}

}  // namespace host::elements
