#include "tests/support/SamplePlugIn.h"

#include <charconv>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IPersistence.h"
#include "OrvikTypeLib/IPicture.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/IXmlNode.h"

namespace sample {
namespace {

using namespace orvik;

/// A step whose failure is passed over.
template <class Step>
void Try(Step step) {
  try {
    step();
  } catch (const HostError&) {
  }
}

/// The number that the text is; `lDefault` when it is none.
std::int32_t NumberOr(std::int32_t lDefault, const std::string& sText) {
  std::int32_t lNumber = 0;
  const auto end = sText.data() + sText.size();
  const auto read = std::from_chars(sText.data(), end, lNumber);
  return read.ec == std::errc{} && read.ptr == end ? lNumber : lDefault;
}

class SampleConfig final : public IConfigData {
 public:
  std::int32_t lOptions = 3;

 private:
  std::shared_ptr<IConfigData> IConfigData_Clone() const override {
    auto copy = std::make_shared<SampleConfig>();
    copy->lOptions = lOptions;
    return copy;
  }
  std::shared_ptr<IDialog> IConfigData_CreateDialog() override { return nullptr; }
  bool IConfigData_HasDialog() const override { return false; }
  void IConfigData_Load(std::shared_ptr<IXmlNode> Node) override {
    const auto data = Node->FindChild("PlugInData");
    if (data) lOptions = NumberOr(lOptions, data->Attribute("Options"));
  }
  void IConfigData_Save(std::shared_ptr<IXmlNode> Node) const override {
    Node->AddChild("PlugInData")->SetAttribute("Options", std::to_string(lOptions));
  }
  void IConfigData_PrintReport(std::shared_ptr<IReport> Report) const override {
    Report->AddTable("<100;", "", "Options " + std::to_string(lOptions) + ";");
  }
};

class SampleLimits final : public ILimitData {
 public:
  explicit SampleLimits(std::weak_ptr<IHost> Host) : Host_(std::move(Host)) {}

 private:
  std::shared_ptr<IStandardColl> NewColl() const {
    return As<IStandardColl>(Required(Host_)->CreateObject(HostClasses::kStandardColl));
  }
  std::string ILimitData_Description() const override { return {}; }
  void ILimitData_SetDescription(const std::string&) override {}
  bool ILimitData_HasDialog() const override { return false; }
  std::shared_ptr<IStandardColl> ILimitData_Standards() const override { return Standards_; }
  std::shared_ptr<IObject> ILimitData_Owner() const override { return nullptr; }
  std::shared_ptr<ILimitData> ILimitData_Clone() const override {
    auto copy = std::make_shared<SampleLimits>(Host_);
    if (Standards_) copy->Standards_ = Standards_->Clone();
    return copy;
  }
  std::shared_ptr<IDialog> ILimitData_CreateDialog() override { return nullptr; }
  std::shared_ptr<IStandard> ILimitData_CreateStandard(const std::string& sName,
                                                       const std::string& sDescription) override {
    auto standard = As<IStandard>(Required(Host_)->CreateObject(HostClasses::kStandard));
    standard->Initialize(sName, sDescription, 1);
    auto limit = As<ILimit>(Required(Host_)->CreateObject(HostClasses::kLimit));
    limit->Initialize("NO LIMIT KEY", "V", "", "");
    standard->AddLimit(limit);
    if (!Standards_) Standards_ = NewColl();
    Standards_->Add(standard);
    return standard;
  }
  void ILimitData_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) override {
    Standards_ = NewColl();
    Standards_->Load(std::move(Node), std::move(Context));
    if (Standards_->Count() == 0) Standards_.reset();
  }
  std::shared_ptr<IXmlNode> ILimitData_Save(std::shared_ptr<IXmlNode> Parent) const override {
    if (!Standards_) return nullptr;
    auto node = Standards_->Save(std::move(Parent));
    node->SetName("ExpectedResult");
    return node;
  }
  void ILimitData_PrintReport(std::shared_ptr<IReport> Report, std::shared_ptr<IObject> Context) override {
    if (Standards_) Standards_->Print(std::move(Report), std::move(Context), {"NO LIMIT KEY", "Limits", "0"});
  }
  void ILimitData_UpdateLimits(std::shared_ptr<IObject>) override {}
  std::shared_ptr<IStandardColl> ILimitData_FindFailedStandards(
      std::shared_ptr<IMeasurement>, std::shared_ptr<IStandardColl>) const override {
    return nullptr;
  }

  std::weak_ptr<IHost> Host_;
  std::shared_ptr<IStandardColl> Standards_;
};

/// What an element and a sequence have in common.
class Wrapper : public virtual ITestElement, public ISampleTest {
 public:
  explicit Wrapper(std::weak_ptr<IHost> Host) : Host_(std::move(Host)) {}
  ~Wrapper() override {
    if (BaseElement) BaseElement->Terminate();
  }

  void SetUp(const char* sBaseClass) {
    BaseElement = As<IBaseElement>(Required(Host_)->CreateObject(sBaseClass));
    BaseElement->SetConfiguration(std::make_shared<SampleConfig>());
    BaseElement->SetLimits(std::make_shared<SampleLimits>(Host_));
    BaseElement->SetOuter(As<ITestElement>(shared_from_this()));
  }

 protected:
  virtual std::shared_ptr<Wrapper> New() const = 0;
  std::weak_ptr<IHost> Host_;

 private:
  void ITestElement_Initialize(const std::string& sPlugIn, std::int32_t lID, std::int32_t lTest) override {
    BaseElement->Initialize(sPlugIn, lID, lTest);
  }
  void ITestElement_Terminate() override {}
  std::shared_ptr<ITestElement> ITestElement_Clone() const override {
    auto copy = New();
    Try([&] {
      auto base = As<IBaseElement>(BaseElement->Clone());
      copy->BaseElement = base;
      base->SetOuter(copy);
    });
    copy->sUnit = sUnit;
    return copy;
  }
  void ITestElement_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) override {
    if (Node->Name() == "ResultItem") BaseElement->SetResult(std::make_shared<SampleResult>());
    Try([&] { BaseElement->Load(Node, Context); });
  }
  std::shared_ptr<IXmlNode> ITestElement_Save(std::shared_ptr<IXmlNode> Parent) const override {
    std::shared_ptr<IXmlNode> saved;
    Try([&] { saved = BaseElement->Save(Parent); });
    return saved;
  }
  Variant ITestElement_Info() const override { return BaseElement->Info(); }
  bool ITestElement_QuerySetParent(std::shared_ptr<ITestElement>) const override { return true; }
  void ITestElement_UpdateReferences() override {}
  void ITestElement_Perform(std::shared_ptr<IRunController>) override {}
  std::shared_ptr<IConfigData> ITestElement_Configuration() const override {
    return BaseElement->Configuration();
  }
  std::shared_ptr<ILimitData> ITestElement_Limits() const override { return BaseElement->Limits(); }
  std::shared_ptr<IResultData> ITestElement_Result() const override { return BaseElement->Result(); }
  void ITestElement_PrintReport(std::shared_ptr<IReport> Report, std::shared_ptr<IObject> Context) override {
    BaseElement->PrintReport(std::move(Report), std::move(Context));
  }
  std::int32_t ITestElement_ID() const override { return BaseElement->ID(); }
  void ITestElement_SetID(std::int32_t lID) override { BaseElement->SetID(lID); }
  std::shared_ptr<ITestElement> ITestElement_Parent() const override { return BaseElement->Parent(); }
  void ITestElement_SetParent(std::shared_ptr<ITestElement> iteParent) override {
    BaseElement->SetParent(std::move(iteParent));
  }
  std::int32_t ITestElement_TestID() const override { return BaseElement->TestID(); }
  std::string ITestElement_PlugInID() const override { return BaseElement->PlugInID(); }
  std::shared_ptr<IInformationRecord> ITestElement_Information() const override {
    if (fRefusesTexts) throw HostError(HostError::kInvalidArgument, kPlugInId, "no texts");
    return OtherTexts ? OtherTexts : BaseElement->Information();
  }
  Variant ITestElement_Filter() const override { return BaseElement->Filter(); }
  Variant ITestElement_GetMeasurementList() const override { return BaseElement->GetMeasurementList(); }
};

class SampleElement final : public Wrapper {
 public:
  using Wrapper::Wrapper;

 private:
  std::string IObject_ClassID() const override { return kElement; }
  std::shared_ptr<Wrapper> New() const override {
    auto created = std::make_shared<SampleElement>(Host_);
    created->SetUp(HostClasses::kTestElement);
    return created;
  }
};

class SampleSequence final : public Wrapper, public ITestContainer {
 public:
  using Wrapper::Wrapper;

 private:
  std::string IObject_ClassID() const override { return kSequence; }
  std::shared_ptr<Wrapper> New() const override {
    auto created = std::make_shared<SampleSequence>(Host_);
    created->SetUp(HostClasses::kTestContainer);
    return created;
  }
  std::shared_ptr<ITestContainer> Inside() const { return As<ITestContainer>(BaseElement); }
  void ITestContainer_Add(std::shared_ptr<ITestElement> iteElement, const Variant& vBefore,
                          const Variant& vAfter) override {
    Try([&] { Inside()->Add(iteElement, vBefore, vAfter); });
  }
  std::int32_t ITestContainer_Count() const override { return Inside()->Count(); }
  std::shared_ptr<ITestElement> ITestContainer_item(std::int32_t lIndex) const override {
    return Inside()->item(lIndex);
  }
  std::shared_ptr<ITestElement> ITestContainer_FindElement(std::int32_t lIdentifier) const override {
    return Inside()->FindElement(lIdentifier);
  }
  std::shared_ptr<ITestEnumerator> ITestContainer_NewEnum() const override { return Inside()->NewEnum(); }
  void ITestContainer_Remove(std::shared_ptr<ITestElement> iteElement) override {
    Inside()->Remove(std::move(iteElement));
  }
};

class SamplePlugIn final : public IPlugIn {
 public:
  explicit SamplePlugIn(std::weak_ptr<IHost> Host) : Host_(std::move(Host)) {}

 private:
  std::shared_ptr<ITestElement> Entry(std::int32_t lID, const std::string& sName, const std::string& sUnit,
                                      const std::vector<std::shared_ptr<ITestElement>>& children = {}) {
    auto entry = lID % 100 == 0 ? CreateSequence(Required(Host_)) : CreateElement(Required(Host_));
    entry->Initialize(kPlugInId, lID, lID);
    entry->Information()->SetDisplayName(sName);
    As<ISampleTest>(entry)->sUnit = sUnit;
    for (const auto& child : children) As<ITestContainer>(entry)->Add(child, {}, {});
    return entry;
  }

  std::string IPlugIn_ID() const override { return kPlugInId; }
  std::shared_ptr<IPicture> IPlugIn_Icon(std::int16_t, std::int16_t) const override { return nullptr; }
  std::string IPlugIn_Name() const override { return "Sample"; }
  std::int32_t IPlugIn_Flags() const override { return 1; }
  std::shared_ptr<IObject> IPlugIn_ControlPanel() const override { return nullptr; }
  std::shared_ptr<IObject> IPlugIn_CreateDUTData() const override { return nullptr; }
  std::shared_ptr<ITestContainer> IPlugIn_Tests() const override { return Tests_; }
  std::string IPlugIn_Version() const override { return "1"; }
  std::shared_ptr<IObject> IPlugIn_PlugInMenu() const override { return nullptr; }
  void IPlugIn_Initialize(std::shared_ptr<IObject>) override {
    Tests_ = As<ITestContainer>(CreateSequence(Required(Host_)));
    const auto inner = Entry(200, "Group", "kV", {Entry(210, "Resistance", "Ohm")});
    Tests_->Add(Entry(100, "All", "mW", {Entry(110, "Voltage", "V"), Entry(120, "Current", "mA"), inner}), {},
                {});
  }
  std::shared_ptr<ITestElement> IPlugIn_CreateTest(std::int32_t lTestID) override {
    const auto found = Tests_->FindElement(lTestID);
    return found ? found->Clone() : nullptr;
  }
  std::shared_ptr<IObject> IPlugIn_Setup() const override { return nullptr; }

  std::weak_ptr<IHost> Host_;
  std::shared_ptr<ITestContainer> Tests_;
};

class SampleClasses final : public IClassLibrary {
 public:
  explicit SampleClasses(std::weak_ptr<IHost> Host) : Host_(std::move(Host)) {}

 private:
  std::int32_t IClassLibrary_Count() const override { return 3; }
  std::string IClassLibrary_ClassIdentifier(std::int32_t lIndex) const override {
    return lIndex == 1 ? kElement : lIndex == 2 ? kSequence : kResult;
  }
  std::string IClassLibrary_Purpose(std::int32_t) const override { return "for tests"; }
  std::shared_ptr<IObject> IClassLibrary_CreateObject(const std::string& sClassID) override {
    if (sClassID == kElement) return CreateElement(Required(Host_));
    if (sClassID == kSequence) return CreateSequence(Required(Host_));
    if (sClassID == kResult) return std::make_shared<SampleResult>();
    return nullptr;
  }

  std::weak_ptr<IHost> Host_;
};

}  // namespace

std::shared_ptr<IMeasurement> SampleResult::IResultData_Measurement(std::int32_t) const { return nullptr; }
std::shared_ptr<IServiceRecord> SampleResult::IResultData_ServiceRecord() const { return nullptr; }
std::shared_ptr<IDialog> SampleResult::IResultData_CreateDialog() { return nullptr; }

void SampleResult::IResultData_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject>) {
  const auto status = Node->FindChild("Status");
  lStatus = status ? NumberOr(-1, status->Text()) : -1;
  if (lStatus < 0) throw HostError(HostError::kTypeMismatch, "sample", "the status is not a number");
  if (const auto comment = Node->FindChild("Comment")) sComment_ = comment->Text();
}

std::shared_ptr<IXmlNode> SampleResult::IResultData_Save(std::shared_ptr<IXmlNode> Parent) const {
  auto node = Parent->AddChild("ResultItem");
  node->AddChild("Status")->SetText(std::to_string(lStatus));
  if (!sComment_.empty()) node->AddChild("Comment")->SetText(sComment_);
  return node;
}

void SampleResult::IResultData_PrintReport(std::shared_ptr<IReport> Report,
                                           std::shared_ptr<ITestElement> iteElement) {
  Report->AddTable("<100;", "",
                   "Status " + std::to_string(lStatus) + " of " + std::to_string(iteElement->ID()) + ";");
}

std::int32_t Options(const std::shared_ptr<ITestElement>& iteElement) {
  return As<SampleConfig>(iteElement->Configuration())->lOptions;
}

void SetOptions(const std::shared_ptr<ITestElement>& iteElement, std::int32_t lOptions) {
  As<SampleConfig>(iteElement->Configuration())->lOptions = lOptions;
}

std::shared_ptr<ITestElement> CreateElement(const std::shared_ptr<IHost>& Host) {
  auto created = std::make_shared<SampleElement>(Host);
  created->SetUp(HostClasses::kTestElement);
  return created;
}

std::shared_ptr<ITestElement> CreateSequence(const std::shared_ptr<IHost>& Host) {
  auto created = std::make_shared<SampleSequence>(Host);
  created->SetUp(HostClasses::kTestContainer);
  return created;
}

std::shared_ptr<IClassLibrary> CreateClasses(const std::shared_ptr<IHost>& Host) {
  return std::make_shared<SampleClasses>(Host);
}

std::shared_ptr<IPlugIn> CreatePlugIn(const std::shared_ptr<IHost>& Host) {
  auto created = std::make_shared<SamplePlugIn>(Host);
  created->Initialize(nullptr);
  return created;
}

}  // namespace sample
