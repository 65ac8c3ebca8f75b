#include <map>
#include <random>

#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/elements/ElementFactory.h"
#include "host/xml/XmlDocument.h"
#include "tests/support/Seed.h"
#include "tests/unit/model/ModelTest.h"
#include "tests/unit/model/RandomTree.h"

namespace keld {
namespace {

using Element = std::shared_ptr<orvik::ITestElement>;
using orvik::As;

constexpr int kTrees = 200;

void ForEachElement(const Element& element, const std::function<void(const Element&)>& visit) {
  visit(element);
  const auto container = As<orvik::ITestContainer>(element);
  for (std::int32_t i = 1; container && i <= container->Count(); ++i)
    ForEachElement(container->item(i), visit);
}

std::string Saved(const Element& element) {
  host::xml::XmlDocument document;
  orvik::IXmlDocument& written = document;
  return element->Save(written.CreateRoot("Elements")) ? written.SaveToString() : "(nothing)";
}

orvik::IBaseElement& BaseOf(const Element& element) {
  return *As<model::CKELDElement>(element)->BaseElement();
}

/// Whether whatever an element of the tree has knows that it belongs to that element.
testing::AssertionResult OwnsWhatItHas(const Element& tree) {
  std::string strays;
  ForEachElement(tree, [&](const Element& element) {
    const std::string name = " of element " + std::to_string(element->ID()) + "\n";
    if (As<configuration::CKELDTestConfiguration>(element->Configuration())->Owner() != element)
      strays += "configuration" + name;
    if (element->Limits()->Owner() != element) strays += "limits" + name;
    const auto result = As<results::CKELDResultData>(element->Result());
    if (result && result->Owner() != element) strays += "result" + name;
    const auto container = As<orvik::ITestContainer>(element);
    for (std::int32_t i = 1; container && i <= container->Count(); ++i) {
      if (container->item(i)->Parent() != element) strays += "a child" + name;
    }
  });
  if (strays.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "these belong to another element:\n" << strays;
}

std::map<std::int32_t, std::string> UnitsOf(const Element& tree) {
  std::map<std::int32_t, std::string> units;
  ForEachElement(tree, [&](const Element& element) {
    units[element->ID()] = As<model::IKELDTest>(element)->ExpectedUnits();
  });
  return units;
}

void ForEachStandard(const Element& element, const std::function<void(orvik::IStandard&)>& visit) {
  const auto standards = element->Limits()->Standards();
  for (std::int32_t i = 1; standards && i <= standards->Count(); ++i) visit(*standards->item(i));
}

class RoundTripTest : public support::ModelTest {
 protected:
  RoundTripTest() : random_(support::Seed()), trees_(random_, bench) {}

  /// The tree that the text says; with the plug-in in the host it comes from the catalogue, else from its
  /// classes alone.
  Element Loaded(const std::string& text) {
    auto& factory = *bench.Host().Elements();
    host::xml::XmlDocument document;
    orvik::IXmlDocument& read = document;
    EXPECT_TRUE(read.LoadFromString(text)) << read.LastError();
    const auto node = read.Root()->FirstChild();
    const auto loaded = factory.CreateForLoad(
        {node->Attribute("PlugInID"), std::stoi(node->Attribute("TestID")), node->Attribute("Class")});
    loaded->Load(node, nullptr);
    EXPECT_TRUE(factory.Trouble().All().empty()) << factory.Trouble().All().front().reason;
    return loaded;
  }

  /// Everything of an element that can be changed and is saved. Each changes the object that is there, so
  /// that an object which two elements share shows in both.
  struct Change {
    const char* part;
    std::function<void(const Element&)> make;
  };
  std::vector<Change> Changes();

  void ChangeEverything(const Element& tree) {
    std::vector<Element> elements;
    ForEachElement(tree, [&](const Element& element) { elements.push_back(element); });
    for (const auto& change : Changes()) {
      for (const auto& element : elements) change.make(element);
    }
    for (const auto& element : elements) As<model::IKELDTest>(element)->SetExpectedUnits("changed");
  }

  std::mt19937 random_;
  support::RandomTree trees_;
};

std::vector<RoundTripTest::Change> RoundTripTest::Changes() {
  std::vector<Change> changes;
  changes.push_back({"texts", [](const Element& element) {
                       const auto texts = element->Information();
                       texts->SetFirstText(texts->FirstText() + "x");
                       texts->SetSecondText(texts->SecondText() + "y");
                       texts->SetDisplayName(texts->DisplayName() + "z");
                     }});
  changes.push_back({"the host's own part", [](const Element& element) {
                       const auto state = BaseOf(element).Auxiliary();
                       state->SetPrintElement(!state->PrintElement());
                       auto& host = dynamic_cast<host::elements::AuxiliaryState&>(*state);
                       host.SetRecordOnly(!host.RecordOnly());
                     }});
  changes.push_back({"configuration", [](const Element& element) {
                       auto& settings = Configuration(element);
                       settings.SetOptions(settings.Options() ^ 1);
                       settings.SetValueFilter(settings.ValueFilter() == 2 ? 3 : 2);
                     }});
  changes.push_back({"standards", [](const Element& element) {
                       ForEachStandard(element, [](orvik::IStandard& standard) {
                         standard.Initialize(standard.Name() + "x", standard.Description() + "y", 2);
                       });
                     }});
  changes.push_back({"limits", [](const Element& element) {
                       ForEachStandard(element, [](orvik::IStandard& standard) {
                         for (std::int32_t i = 1; i <= standard.LimitCount(); ++i) {
                           const auto limit = standard.Limit(i);
                           limit->Initialize(limit->Key() + "x", limit->Unit() + "y", "", "12345");
                           limit->SetNominal(67.0);
                         }
                       });
                     }});
  changes.push_back({"further limits", [this](const Element& element) {
                       ForEachStandard(element, [this](orvik::IStandard& standard) {
                         standard.AddLimit(
                             As<orvik::ILimit>(bench.Host().CreateObject(orvik::HostClasses::kLimit)));
                       });
                     }});
  changes.push_back({"further standards",
                     [](const Element& element) { element->Limits()->CreateStandard("further", ""); }});
  changes.push_back({"result", [](const Element& element) {
                       const auto result = As<results::CKELDResultData>(element->Result());
                       if (!result) return;
                       result->SetComment(result->Comment() + "x");
                       result->SetStatus(result->Status() == 1 ? 2 : 1);
                       result->SetMTIIdentifier(result->MTIID() + 1);
                     }});
  changes.push_back({"measurement", [](const Element& element) {
                       const auto result = element->Result();
                       const auto measured =
                           As<instrument::CKELDMeasurement>(result ? result->Measurement(1) : nullptr);
                       if (!measured) return;
                       measured->AddValue(1000.0, measured->Unit() + "x", measured->Flags() + "y", "");
                       measured->SetDescription(measured->Description() + "z");
                       measured->SetStatus(measured->Status() + 1);
                     }});
  changes.push_back({"service record", [](const Element& element) {
                       const auto result = element->Result();
                       const auto record = result ? result->ServiceRecord() : nullptr;
                       if (record)
                         record->Initialize(element->Information(), record->Code() + "x",
                                            record->Value() + "y");
                     }});
  changes.push_back({"identity", [](const Element& element) {
                       BaseOf(element).Initialize(element->PlugInID() + "x", element->ID() + 1000,
                                                  element->TestID() + 1);
                     }});
  changes.push_back({"children", [this](const Element& element) {
                       const auto container = As<orvik::ITestContainer>(element);
                       if (!container) return;
                       if (container->Count() > 0) container->Remove(container->item(1));
                       container->Add(trees_.Test(), {}, {});
                     }});
  changes.push_back({"measurement taken away", [](const Element& element) {
                       if (const auto result = As<results::CKELDResultData>(element->Result()))
                         result->SetMeasurement(nullptr);
                     }});
  changes.push_back(
      {"result taken away", [](const Element& element) { BaseOf(element).SetResult(nullptr); }});
  return changes;
}

TEST_F(RoundTripTest, AnyTreeIsSavedLoadedAndSavedAgainAsTheSameBytes) {
  for (int round = 0; round < kTrees; ++round) {
    // First from the classes alone, then from the catalogue.
    if (round == kTrees / 2) bench.Host().Elements()->AddPlugIn(bench.PlugIn());
    const auto text = Saved(trees_.Make());
    const auto loaded = Loaded(text);
    ASSERT_EQ(Saved(loaded), text) << "round " << round;
    ASSERT_TRUE(OwnsWhatItHas(loaded)) << "round " << round << "\n" << text;
  }
}

TEST_F(RoundTripTest, ACloneOfAnyTreeSavesTheSameBytesAndSharesNothing) {
  for (int round = 0; round < kTrees; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    auto source = trees_.Make();
    const auto text = Saved(source);
    const auto units = UnitsOf(source);
    const auto clone = source->Clone();
    ASSERT_EQ(Saved(clone), text);
    ASSERT_EQ(UnitsOf(clone), units);
    ASSERT_TRUE(OwnsWhatItHas(clone)) << text;
    ASSERT_FALSE(clone->Parent());

    ChangeEverything(clone);
    ASSERT_EQ(Saved(source), text) << "the clone was changed";
    ASSERT_EQ(UnitsOf(source), units);
    ASSERT_TRUE(OwnsWhatItHas(source)) << text;

    const auto second = source->Clone();
    ChangeEverything(source);
    source.reset();
    ASSERT_EQ(Saved(second), text) << "the source was changed, and let go";
    ASSERT_TRUE(OwnsWhatItHas(second)) << text;
  }
}

// What the test above stands on: a change that would not be saved could not give a shared object away.
TEST_F(RoundTripTest, EveryChangeShowsInWhatIsSaved) {
  const auto test = MakeTest(410, 2);
  Limit(test, "1", "2");
  const auto result = results::CKELDResultData::Create();
  Base(test).SetResult(result);
  const auto measurement = instrument::CKELDMeasurement::Create();
  measurement->AddValue(1.5, "mOhm", "", "");
  result->SetMeasurement(measurement);
  result->SetStatus(1);
  result->BuildServiceRecord(test);
  const auto tree = MakeSequence({test}, 1);
  for (const auto& change : Changes()) {
    const auto changed = tree->Clone();
    const auto before = Saved(changed);
    const Element inner = Container(changed)->item(1);
    change.make(std::string(change.part) == "children" ? changed : inner);
    EXPECT_NE(Saved(changed), before) << change.part;
    EXPECT_EQ(Saved(tree), before) << change.part;
  }
}

// The one thing that a document does not keep: a value is read back as the number that it begins with.
TEST_F(RoundTripTest, AValueThatIsNoNumberReadsBackAsANumberOrNoneAndStaysThat) {
  const std::vector<std::pair<orvik::Variant, std::string>> rows = {
      {orvik::Variant(), ""}, {std::string(), ""}, {std::string("OL"), "0"}, {std::string("12 V"), "12"}};
  for (const auto& [value, number] : rows) {
    const auto test = MakeTest(410);
    const auto result = results::CKELDResultData::Create();
    Base(test).SetResult(result);
    const auto measurement = instrument::CKELDMeasurement::Create();
    measurement->AddValue(value, "mOhm", "", "");
    result->SetMeasurement(measurement);
    const auto loaded = Loaded(Saved(test));
    EXPECT_EQ(Value(loaded), number);
    EXPECT_EQ(Status(loaded), 0);
    EXPECT_EQ(Saved(Loaded(Saved(loaded))), Saved(loaded));
  }
}

}  // namespace
}  // namespace keld
