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
#include "host/Host.h"
#include "host/elements/TestContainer.h"
#include "host/elements/TestElement.h"

/// Host elements that are watched or that fail, and limits that write down what they are told.
namespace support {

/// The host's base element, which counts how often it is told to terminate.
class Watched : public bench::TestElement {
 public:
  Watched(std::weak_ptr<bench::ElementFactory> factory, std::shared_ptr<int> told)
      : TestElement(std::move(factory)), told_(std::move(told)) {}

 private:
  void ITestElement_Terminate() override { ++*told_; }

  std::shared_ptr<int> told_;
};

/// The same as a container that never has a child.
class WatchedContainer final : public Watched, public orvik::ITestContainer {
 public:
  using Watched::Watched;

 private:
  void ITestContainer_Add(std::shared_ptr<orvik::ITestElement>, const orvik::Variant&,
                          const orvik::Variant&) override {}
  std::int32_t ITestContainer_Count() const override { return 0; }
  std::shared_ptr<orvik::ITestElement> ITestContainer_item(std::int32_t) const override { return {}; }
  std::shared_ptr<orvik::ITestElement> ITestContainer_FindElement(std::int32_t) const override { return {}; }
  std::shared_ptr<orvik::ITestEnumerator> ITestContainer_NewEnum() const override { return {}; }
  void ITestContainer_Remove(std::shared_ptr<orvik::ITestElement>) override {}
};

/// From now on the host makes base elements that are watched.
inline void RegisterWatchedElements(bench::Host& host, const std::shared_ptr<int>& told) {
  const std::weak_ptr<bench::ElementFactory> factory = host.Elements();
  host.Register(orvik::HostClasses::kTestElement,
                [factory, told] { return std::make_shared<Watched>(factory, told); });
  host.Register(orvik::HostClasses::kTestContainer,
                [factory, told] { return std::make_shared<WatchedContainer>(factory, told); });
}

/// A base element that takes limits and nothing else.
class Failing final : public bench::TestElement {
 public:
  using TestElement::TestElement;

 private:
  [[noreturn]] static void Fail() { throw orvik::HostError(5, "host", "no"); }

  void IBaseElement_SetConfiguration(std::shared_ptr<orvik::IConfigData>) override { Fail(); }
  std::shared_ptr<ITestElement> ITestElement_Clone() const override { Fail(); }
  std::shared_ptr<orvik::IInformationRecord> ITestElement_Information() const override { Fail(); }
  std::int32_t ITestElement_ID() const override { Fail(); }
  void ITestElement_SetID(std::int32_t) override { Fail(); }
  orvik::Variant ITestElement_Filter() const override { Fail(); }
};

/// From now on the host makes base elements that fail.
inline void RegisterFailingElements(bench::Host& host) {
  host.Register(orvik::HostClasses::kTestElement,
                [factory = std::weak_ptr(host.Elements())] { return std::make_shared<Failing>(factory); });
}

/// Called whenever somebody reads the limits of an element; what it throws the reader gets.
using OnLimitsRead = std::shared_ptr<std::function<void()>>;

/// A base element whose limits are watched.
class LimitsWatched : public bench::TestElement {
 public:
  LimitsWatched(std::weak_ptr<bench::ElementFactory> factory, OnLimitsRead onRead)
      : TestElement(std::move(factory)), onRead_(std::move(onRead)) {}

 private:
  void IBaseElement_SetLimits(std::shared_ptr<orvik::ILimitData> Limits) override {
    limits_ = std::move(Limits);
  }
  std::shared_ptr<orvik::ILimitData> ITestElement_Limits() const override {
    if (*onRead_) (*onRead_)();
    return limits_;
  }

  OnLimitsRead onRead_;
  std::shared_ptr<orvik::ILimitData> limits_;
};

/// The same with the children of a real container.
class LimitsWatchedContainer final : public LimitsWatched, public orvik::ITestContainer {
 public:
  LimitsWatchedContainer(const std::weak_ptr<bench::ElementFactory>& factory, OnLimitsRead onRead)
      : LimitsWatched(factory, std::move(onRead)),
        children_(std::make_shared<bench::TestContainer>(factory)) {}

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

/// From now on the host makes base elements whose limits are watched.
inline OnLimitsRead RegisterLimitsWatchedElements(bench::Host& host) {
  const auto onRead = std::make_shared<std::function<void()>>();
  const std::weak_ptr<bench::ElementFactory> factory = host.Elements();
  host.Register(orvik::HostClasses::kTestElement,
                [factory, onRead] { return std::make_shared<LimitsWatched>(factory, onRead); });
  host.Register(orvik::HostClasses::kTestContainer,
                [factory, onRead] { return std::make_shared<LimitsWatchedContainer>(factory, onRead); });
  return onRead;
}

/// Limits that write down who has their references updated.
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
