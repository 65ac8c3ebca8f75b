#pragma once

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class TestElement;

/// The base elements that a plug-in's element stands around, as a chain through the elements themselves:
/// joining and leaving it costs nothing, and a document does both for each of its elements.
class WrappedElements {
 public:
  /// What an element needs to be part of the chain; it leaves it when it ends.
  class Link {
   public:
    explicit Link(TestElement& element) : element_(element) {}
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;
    ~Link() { Leave(); }

    /// Joins the chain as the inside of `outer`; leaves the place that it had.
    void Join(WrappedElements& chain, const orvik::ITestElement* outer);
    void Leave();

   private:
    friend class WrappedElements;

    TestElement& element_;
    const orvik::ITestElement* outer_ = nullptr;
    WrappedElements* chain_ = nullptr;
    Link* previous_ = nullptr;
    Link* next_ = nullptr;
  };

  WrappedElements() = default;
  WrappedElements(const WrappedElements&) = delete;
  WrappedElements& operator=(const WrappedElements&) = delete;
  ~WrappedElements();

  /// The element inside `outer`; nothing when there is none.
  TestElement* Inside(const orvik::ITestElement* outer) const;

 private:
  Link* first_ = nullptr;
};

}  // namespace bench
