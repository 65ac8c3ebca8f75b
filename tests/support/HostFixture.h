#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/document/Host.h"
#include "host/elements/ElementFactory.h"
#include "host/xml/XmlDocument.h"
#include "tests/support/SamplePlugIn.h"
#include "tests/support/TemporaryFolder.h"

namespace support {

/// The host without windows, and the sample plug-in in it.
class HostFixture : public ::testing::Test {
 protected:
  HostFixture() : host_(host::document::Host::Create({folder_.Path(), "", {}, {}}, nullptr)) {
    OpenSample(*host_);
  }
  ~HostFixture() override { host_->Close(); }

  static void OpenSample(host::document::Host& host) {
    const auto shared = std::dynamic_pointer_cast<orvik::IHost>(host.shared_from_this());
    host.AddClasses(sample::CreateClasses(shared));
    host.Elements()->AddPlugIn(sample::CreatePlugIn(shared));
  }

  template <class Interface>
  std::shared_ptr<Interface> Make(const std::string& classId) {
    return orvik::As<Interface>(host_->CreateObject(classId));
  }

  /// An element of the sample plug-in with identifier and test identifier.
  std::shared_ptr<orvik::ITestElement> Element(std::int32_t id, std::int32_t testId = 110) {
    auto element = sample::CreateElement(host_);
    element->Initialize(sample::kPlugInId, id, testId);
    return element;
  }
  std::shared_ptr<orvik::ITestElement> Sequence(std::int32_t id, std::int32_t testId = 100) {
    auto sequence = sample::CreateSequence(host_);
    sequence->Initialize(sample::kPlugInId, id, testId);
    return sequence;
  }

  static std::shared_ptr<orvik::ITestContainer> In(const std::shared_ptr<orvik::ITestElement>& element) {
    return orvik::As<orvik::ITestContainer>(element);
  }

  /// A chain of sequences, each the only child of the one before; identifiers count up from 1.
  std::shared_ptr<orvik::ITestElement> Chain(int levels) {
    auto top = Sequence(1);
    auto last = top;
    for (int level = 2; level <= levels; ++level) {
      auto next = Sequence(level);
      In(last)->Add(next, {}, {});
      last = next;
    }
    return top;
  }

  /// What the element saves, as text.
  static std::string Saved(const std::shared_ptr<orvik::ITestElement>& element) {
    host::xml::XmlDocument document;
    return element->Save(document.CreateRoot("Elements")) ? document.SaveToString() : "(nothing)";
  }

  TemporaryFolder folder_;
  std::shared_ptr<host::document::Host> host_;
};

}  // namespace support
