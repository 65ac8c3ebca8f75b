#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "host/document/Host.h"
#include "host/elements/TestContainer.h"
#include "host/elements/TestElement.h"

/// Host elements that are watched or that fail, and limits that record their calls.
namespace support {

[[noreturn]] inline void RaiseHostError() { throw orvik::HostError(5, "host", "no"); }

/// A container's operations, forwarded to a real one.
class ForwardingContainer : public orvik::ITestContainer {
 public:
  explicit ForwardingContainer(const std::weak_ptr<host::elements::ElementFactory>& factory)
      : children_(std::make_shared<host::elements::TestContainer>(factory)) {}

 protected:
  const orvik::ITestContainer& Children() const { return *children_; }

 private:
  void ITestContainer_Add(std::shared_ptr<orvik::ITestElement> iteElement, const orvik::Variant& vBefore,
                          const orvik::Variant& vAfter) override {
    children_->Add(std::move(iteElement), vBefore, vAfter);
  }
  std::int32_t ITestContainer_Count() const override { return children_->Count(); }
  std::shared_ptr<orvik::ITestElement> ITestContainer_item(std::int32_t lIndex) const override {
    return children_->item(lIndex);
  }
  std::shared_ptr<orvik::ITestElement> ITestContainer_FindElement(std::int32_t lIdentifier) const override {
    return children_->FindElement(lIdentifier);
  }
  std::shared_ptr<orvik::ITestEnumerator> ITestContainer_NewEnum() const override {
    return children_->NewEnum();
  }
  void ITestContainer_Remove(std::shared_ptr<orvik::ITestElement> iteElement) override {
    children_->Remove(std::move(iteElement));
  }

  std::shared_ptr<orvik::ITestContainer> children_;
};

/// The events of watched base elements.
struct ElementWatch {
  int terminated = 0;
  /// Called whenever limits are read; its errors reach the reader.
  std::function<void()> onLimits;
};

/// The host's base element, watched.
class WatchedElement : public host::elements::TestElement {
 public:
  WatchedElement(const std::weak_ptr<host::elements::ElementFactory>& factory,
                 std::shared_ptr<ElementWatch> watch)
      : host::elements::TestElement(factory), watch_(std::move(watch)) {}

 private:
  void ITestElement_Terminate() override { ++watch_->terminated; }
  void IBaseElement_SetLimits(std::shared_ptr<orvik::ILimitData> Limits) override {
    limits_ = std::move(Limits);
  }
  std::shared_ptr<orvik::ILimitData> ITestElement_Limits() const override {
    if (watch_->onLimits) watch_->onLimits();
    return limits_;
  }

  std::shared_ptr<ElementWatch> watch_;
  std::shared_ptr<orvik::ILimitData> limits_;
};

class WatchedContainer final : public WatchedElement, public ForwardingContainer {
 public:
  WatchedContainer(const std::weak_ptr<host::elements::ElementFactory>& factory,
                   std::shared_ptr<ElementWatch> watch)
      : WatchedElement(factory, std::move(watch)), ForwardingContainer(factory) {}
};

/// From now on the host creates watched base elements.
inline std::shared_ptr<ElementWatch> RegisterWatchedElements(host::document::Host& host) {
  const auto watch = std::make_shared<ElementWatch>();
  const std::weak_ptr<host::elements::ElementFactory> factory = host.Elements();
  host.Register(orvik::HostClasses::kTestElement,
                [factory, watch] { return std::make_shared<WatchedElement>(factory, watch); });
  host.Register(orvik::HostClasses::kTestContainer,
                [factory, watch] { return std::make_shared<WatchedContainer>(factory, watch); });
  return watch;
}

/// A base element that accepts limits and fails otherwise.
class FailingElement final : public host::elements::TestElement {
 public:
  using host::elements::TestElement::TestElement;

 private:
  void IBaseElement_SetConfiguration(std::shared_ptr<orvik::IConfigData>) override { RaiseHostError(); }
  std::shared_ptr<ITestElement> ITestElement_Clone() const override { RaiseHostError(); }
  std::shared_ptr<orvik::IInformationRecord> ITestElement_Information() const override { RaiseHostError(); }
  std::int32_t ITestElement_ID() const override { RaiseHostError(); }
  void ITestElement_SetID(std::int32_t) override { RaiseHostError(); }
  orvik::Variant ITestElement_Filter() const override { RaiseHostError(); }
  std::shared_ptr<orvik::IResultData> ITestElement_Result() const override { RaiseHostError(); }
};

/// Limits that record the references they are updated with.
class RecordingLimits final : public virtual orvik::ILimitData {
 public:
  std::vector<std::shared_ptr<orvik::IObject>> updatedBy;

 private:
  std::string ILimitData_Description() const override { return {}; }
  void ILimitData_SetDescription(const std::string&) override {}
  bool ILimitData_HasDialog() const override { return false; }
  std::shared_ptr<orvik::IStandardColl> ILimitData_Standards() const override { return {}; }
  std::shared_ptr<orvik::IObject> ILimitData_Owner() const override { return {}; }
  std::shared_ptr<orvik::ILimitData> ILimitData_Clone() const override { return {}; }
  std::shared_ptr<orvik::IDialog> ILimitData_CreateDialog() override { return {}; }
  std::shared_ptr<orvik::IStandard> ILimitData_CreateStandard(const std::string&,
                                                              const std::string&) override {
    return {};
  }
  void ILimitData_Load(std::shared_ptr<orvik::IXmlNode>, std::shared_ptr<orvik::IObject>) override {}
  std::shared_ptr<orvik::IXmlNode> ILimitData_Save(std::shared_ptr<orvik::IXmlNode>) const override {
    return {};
  }
  void ILimitData_PrintReport(std::shared_ptr<orvik::IReport>, std::shared_ptr<orvik::IObject>) override {}
  void ILimitData_UpdateLimits(std::shared_ptr<orvik::IObject> Reference) override {
    updatedBy.push_back(std::move(Reference));
  }
  std::shared_ptr<orvik::IStandardColl> ILimitData_FindFailedStandards(
      std::shared_ptr<orvik::IMeasurement>, std::shared_ptr<orvik::IStandardColl>) const override {
    return {};
  }
};

}  // namespace support
