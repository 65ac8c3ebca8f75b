#include <optional>
#include <utility>

#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/ILimitView.h"
#include "platform/IUserControl.h"
#include "results/CKELDLimitData.h"
#include "tests/unit/results/Tools.h"

// The calls of the limits to the host's objects, and what they do with the results.
namespace {

using keld::results::CKELDLimitData;
using Names = std::vector<std::string>;

/// A host's standard with a fixed judgement; records its calls.
class RecordingStandard final : public virtual orvik::IStandard {
 public:
  explicit RecordingStandard(std::string name, std::int32_t verdict = 2)
      : name_(std::move(name)), verdict_(verdict) {}

  mutable std::vector<float> values;
  mutable Names keys;
  mutable std::vector<bool> nominals;

 private:
  void IStandard_Initialize(const std::string&, const std::string&, std::int32_t) override {}
  std::string IStandard_Name() const override { return name_; }
  std::string IStandard_Description() const override { return name_ + " text"; }
  std::int32_t IStandard_Number() const override { return 1; }
  std::int32_t IStandard_LimitCount() const override { return 0; }
  std::shared_ptr<orvik::ILimit> IStandard_Limit(std::int32_t) const override { return {}; }
  void IStandard_AddLimit(std::shared_ptr<orvik::ILimit>) override {}
  std::int32_t IStandard_Evaluate(float value, const std::string& key,
                                  const orvik::Variant& nominal) const override {
    values.push_back(value);
    keys.push_back(key);
    nominals.push_back(!orvik::IsEmpty(nominal));
    return verdict_;
  }

  const std::string name_;
  const std::int32_t verdict_;
};

/// The host's collection; accepts any standard and records its calls.
class RecordingCollection final : public virtual orvik::IStandardColl {
 public:
  std::vector<std::shared_ptr<orvik::IStandard>> standards;
  std::shared_ptr<orvik::IObject> loadedFrom, loadedIn;
  mutable std::shared_ptr<orvik::IObject> savedBelow, printedBy, printed;
  mutable Names header;

 private:
  std::int32_t IStandardColl_Count() const override { return static_cast<std::int32_t>(standards.size()); }
  std::shared_ptr<orvik::IStandard> IStandardColl_item(std::int32_t index) const override {
    return standards.at(static_cast<std::size_t>(index) - 1);
  }
  void IStandardColl_Add(std::shared_ptr<orvik::IStandard> standard) override {
    standards.push_back(std::move(standard));
  }
  void IStandardColl_Remove(std::shared_ptr<orvik::IStandard>) override {}
  std::shared_ptr<orvik::IStandard> IStandardColl_Find(const std::string& name,
                                                       const std::string& description) const override {
    for (const auto& standard : standards) {
      if (standard->Name() == name && standard->Description() == description) return standard;
    }
    return {};
  }
  std::shared_ptr<orvik::IStandardColl> IStandardColl_Clone() const override { return {}; }
  void IStandardColl_Load(std::shared_ptr<orvik::IXmlNode> node,
                          std::shared_ptr<orvik::IObject> context) override {
    loadedFrom = std::move(node);
    loadedIn = std::move(context);
  }
  std::shared_ptr<orvik::IXmlNode> IStandardColl_Save(
      std::shared_ptr<orvik::IXmlNode> parent) const override {
    savedBelow = std::move(parent);
    return {};
  }
  void IStandardColl_Print(std::shared_ptr<orvik::IReport> report, std::shared_ptr<orvik::IObject> element,
                           const Names& texts) const override {
    printedBy = std::move(report);
    printed = std::move(element);
    header = texts;
  }
};

/// The host's limit view; records the values of its set-up.
class LimitView final : public virtual orvik::ILimitView, public orvik::platform::IUserControl {
 public:
  Names told;
  std::shared_ptr<orvik::IObject> data;
  bool toldBeforeData = false;

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>&) override {}

 private:
  std::shared_ptr<orvik::ICallBack> ICustomControl_CallBack() const override { return {}; }
  void ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack>) override {}
  orvik::WindowHandle ICustomControl_hWnd() const override { return 0; }
  bool ICustomControl_Locked() const override { return false; }
  void ICustomControl_SetLocked(bool) override {}
  bool ICustomControl_Visible() const override { return true; }
  void ICustomControl_SetVisible(bool) override {}
  void ICustomControl_Initialize(std::shared_ptr<orvik::IObject> given, const orvik::Variant&,
                                 const orvik::Variant&, const orvik::Variant&) override {
    data = std::move(given);
    toldBeforeData = !told.empty();
  }
  void ICustomControl_Refresh() override {}
  void ICustomControl_SetFocus() override {}
  void ILimitView_InitializeView(const std::string& key, const std::string& caption, const std::string& unit,
                                 const std::string& allowed) override {
    told = {key, caption, unit, allowed};
  }
};

class CKELDLimitDataHostTest : public results::ResultsTest {
 protected:
  /// Limits with these standards, in collections of their own kind.
  std::shared_ptr<CKELDLimitData> Judging(const std::vector<std::shared_ptr<RecordingStandard>>& standards) {
    host_.Host().Register(orvik::HostClasses::kStandardColl,
                          [] { return std::make_shared<RecordingCollection>(); });
    auto limits = CKELDLimitData::Create();
    for (const auto& standard : standards) limits->AddStandard(standard);
    return limits;
  }

  /// Limits with this collection.
  std::shared_ptr<CKELDLimitData> Asking(const std::shared_ptr<RecordingCollection>& collection) {
    host_.Host().Register(orvik::HostClasses::kStandardColl, [collection] { return collection; });
    auto limits = CKELDLimitData::Create();
    limits->AddStandard(std::make_shared<RecordingStandard>("A"));
    return limits;
  }

  std::vector<std::string> Failed(const CKELDLimitData& limits, const orvik::Variant& value) {
    const auto failed = limits.FindFailedStandards(Measurement(value), limits.Standards());
    Names names;
    for (std::int32_t index = 1; failed && index <= failed->Count(); ++index)
      names.push_back(failed->item(index)->Name());
    return names;
  }
};

TEST_F(CKELDLimitDataHostTest, JudgesByLimitKeyWithoutANominalValue) {
  const auto standard = std::make_shared<RecordingStandard>("A");
  const auto limits = Judging({standard});
  EXPECT_EQ(Failed(*limits, 0.1), Names{"A"});
  EXPECT_EQ(standard->values, std::vector<float>{0.1F});
  EXPECT_EQ(standard->keys, Names{"NO LIMIT KEY"});
  EXPECT_EQ(standard->nominals, std::vector<bool>{false});
}

TEST_F(CKELDLimitDataHostTest, OnlyLimitExceededMeansFailed) {
  std::vector<std::shared_ptr<RecordingStandard>> standards;
  for (const std::int32_t verdict : {-1, 0, 1, 2, 3})
    standards.push_back(std::make_shared<RecordingStandard>("Verdict " + std::to_string(verdict), verdict));
  const auto limits = Judging(standards);
  EXPECT_EQ(Failed(*limits, 1.0), Names{"Verdict 2"});
}

TEST_F(CKELDLimitDataHostTest, LoadPassesNodeAndContext) {
  const auto collection = std::make_shared<RecordingCollection>();
  const auto limits = Asking(collection);
  const auto node = Node();
  const auto context = Test(1);
  limits->Load(node, context);
  EXPECT_EQ(collection->loadedFrom, node);
  EXPECT_EQ(collection->loadedIn, context);
  EXPECT_EQ(limits->Standards(), collection);
}

TEST_F(CKELDLimitDataHostTest, SaveReturnsTheCollectionsNode) {
  const auto collection = std::make_shared<RecordingCollection>();
  const auto limits = Asking(collection);
  const auto parent = Node();
  EXPECT_FALSE(limits->Save(parent)) << "a collection that writes no node leaves none to name";
  EXPECT_EQ(collection->savedBelow, parent);
}

TEST_F(CKELDLimitDataHostTest, PrintPassesReportElementAndHeader) {
  const auto collection = std::make_shared<RecordingCollection>();
  const auto limits = Asking(collection);
  const auto report = std::make_shared<recorders::Report>();
  const auto element = Test(1);
  std::optional<bool> printedBefore;
  const auto listening = limits->PrintAccessed().Subscribe(
      [&](const Names&) { printedBefore = collection->printedBy != nullptr; });
  limits->PrintReport(report, element);
  EXPECT_EQ(collection->printedBy, report);
  EXPECT_EQ(collection->printed, element);
  EXPECT_EQ(collection->header, (Names{"NO LIMIT KEY", "KELD Test Limits", "0"}));
  EXPECT_EQ(printedBefore, true);
}

TEST_F(CKELDLimitDataHostTest, DialogInitialisesKeyCaptionAndUnits) {
  const auto view = std::make_shared<LimitView>();
  host_.Application().SetControlFactory(
      [&](const std::string& id) -> std::shared_ptr<orvik::platform::IUserControl> {
        return id == orvik::HostClasses::kLimitView ? view : nullptr;
      });
  const auto element = Test(1);
  element->SetExpectedUnits("V");
  const auto dialog = element->Limits()->CreateDialog();
  EXPECT_EQ(view->told, (Names{"NO LIMIT KEY", "KELD test", "V", "V;%"}));
  EXPECT_EQ(view->data, element->Limits());
  EXPECT_TRUE(view->toldBeforeData);
}

TEST_F(CKELDLimitDataHostTest, DialogPropagatesErrors) {
  EXPECT_THROW(CKELDLimitData::Create()->CreateDialog(), orvik::HostError);
  const auto element = Test(1);
  host_.Application().SetControlFactory([](const std::string&) { return nullptr; });
  EXPECT_THROW(element->Limits()->CreateDialog(), orvik::HostError);
}

}  // namespace
