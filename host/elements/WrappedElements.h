#pragma once

#include "OrvikTypeLib/ITestElement.h"

namespace host::elements {

class TestElement;

/// The base elements that a plug-in's elements wrap, as a chain through the elements themselves. A map of
/// them alone takes a third of the time in which a catalogue of 100,000 entries is read.
class WrappedElements {
 public:
  /// The place of an element in the chain; it leaves the chain on destruction.
  class Link {
   public:
    explicit Link(TestElement& element) : element_(element) {}
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;
    ~Link() { Leave(); }

    /// Joins the chain as the element that `outer` wraps; leaves its earlier place.
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

  /// The element that `outer` wraps, or null. Takes linear time.
  TestElement* Inside(const orvik::ITestElement* outer) const;

 private:
  Link* first_ = nullptr;
};

}  // namespace host::elements
