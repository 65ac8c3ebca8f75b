#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "host/elements/Nesting.h"
#include "host/elements/TestContainer.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorNumber;
using support::Holds;

class TestContainerTest : public support::HostFixture {
 protected:
  std::shared_ptr<orvik::ITestContainer> Container() {
    return Make<orvik::ITestContainer>(orvik::HostClasses::kTestContainer);
  }

  static std::vector<std::int32_t> Ids(const orvik::ITestContainer& container) {
    std::vector<std::int32_t> ids;
    for (std::int32_t index = 1; index <= container.Count(); ++index)
      ids.push_back(container.item(index)->ID());
    return ids;
  }
  static std::vector<std::int32_t> Ids(const std::shared_ptr<orvik::ITestContainer>& container) {
    return Ids(*container);
  }

  std::shared_ptr<orvik::ITestContainer> WithChildren(std::int32_t count) {
    const auto container = Container();
    for (std::int32_t id = 1; id <= count; ++id) container->Add(Element(id), {}, {});
    return container;
  }
};

using Order = std::vector<std::int32_t>;

TEST_F(TestContainerTest, KeepsChildrenInOrderAndCountsFromOne) {
  const auto container = WithChildren(3);
  EXPECT_EQ(Ids(container), (Order{1, 2, 3}));
  for (const std::int32_t index : {0, -1, 4})
    EXPECT_EQ(support::ErrorNumber([&] { container->item(index); }), HostError::kSubscriptOutOfRange);
}

TEST_F(TestContainerTest, AddsBeforeAndAfterAnotherChild) {
  const auto container = WithChildren(2);
  container->Add(Element(3), std::int32_t{1}, {});
  EXPECT_EQ(Ids(container), (Order{3, 1, 2}));
  container->Add(Element(4), {}, std::int32_t{1});
  EXPECT_EQ(Ids(container), (Order{3, 1, 4, 2}));
  EXPECT_EQ(support::ErrorNumber([&] { container->Add(Element(5), std::int32_t{99}, {}); }),
            HostError::kInvalidArgument);
  EXPECT_EQ(support::ErrorNumber([&] { container->Add(Element(5), {}, "1"); }), HostError::kTypeMismatch);
  EXPECT_EQ(support::ErrorNumber([&] { container->Add(nullptr, {}, {}); }), HostError::kEmptyReference);
  EXPECT_EQ(Ids(container), (Order{3, 1, 4, 2}));
}

TEST_F(TestContainerTest, AddedChildHasTheContainerAsParent) {
  const auto sequence = Sequence(1);
  const auto child = Element(2);
  In(host_->Elements()->BaseOf(sequence))->Add(child, {}, {});
  EXPECT_EQ(child->Parent(), sequence);
}

TEST_F(TestContainerTest, ChildAddedAgainIsMoved) {
  const auto container = WithChildren(3);
  container->Add(container->item(1), {}, {});
  EXPECT_EQ(Ids(container), (Order{2, 3, 1}));
  container->Add(container->item(3), std::int32_t{2}, {});
  EXPECT_EQ(Ids(container), (Order{1, 2, 3}));
  container->Add(container->item(1), {}, std::int32_t{2});
  EXPECT_EQ(Ids(container), (Order{2, 1, 3}));
}

TEST_F(TestContainerTest, MovesAChildOfAnotherContainer) {
  const auto first = Sequence(1);
  const auto second = Sequence(2);
  const auto child = Element(3);
  In(first)->Add(child, {}, {});
  In(second)->Add(child, {}, {});
  EXPECT_EQ(In(first)->Count(), 0);
  EXPECT_EQ(In(second)->Count(), 1);
  EXPECT_EQ(child->Parent(), second);
}

TEST_F(TestContainerTest, RejectsItsOwnAncestors) {
  const auto top = Sequence(1);
  const auto middle = Sequence(2);
  const auto bottom = Sequence(3);
  In(top)->Add(middle, {}, {});
  In(middle)->Add(bottom, {}, {});
  for (const auto& above : {top, middle, bottom}) {
    const auto base = In(host_->Elements()->BaseOf(bottom));
    EXPECT_EQ(support::ErrorNumber([&] { base->Add(above, {}, {}); }), HostError::kInvalidArgument);
  }
  EXPECT_EQ(In(bottom)->Count(), 0);
  const auto plain = Container();
  EXPECT_EQ(support::ErrorNumber([&] { plain->Add(orvik::As<orvik::ITestElement>(plain), {}, {}); }),
            HostError::kInvalidArgument);
}

TEST_F(TestContainerTest, FindsTheFirstElementInDocumentOrderAtAnyDepth) {
  const auto top = Sequence(1);
  const auto inner = Sequence(2);
  const auto deep = Element(5);
  const auto later = Element(5);
  In(inner)->Add(Element(3), {}, {});
  In(inner)->Add(deep, {}, {});
  In(top)->Add(inner, {}, {});
  In(top)->Add(later, {}, {});
  In(top)->Add(Element(6), {}, {});
  EXPECT_EQ(In(top)->FindElement(5), deep);
  EXPECT_EQ(In(top)->FindElement(2), inner);
  EXPECT_EQ(In(top)->FindElement(6)->ID(), 6);
  EXPECT_EQ(In(top)->FindElement(1), nullptr) << "the container itself is not one of its elements";
  EXPECT_EQ(In(top)->FindElement(99), nullptr);
}

TEST_F(TestContainerTest, RemoveIgnoresElementsThatAreNotChildren) {
  const auto container = WithChildren(3);
  const auto child = container->item(2);
  container->Remove(child);
  EXPECT_EQ(Ids(container), (Order{1, 3}));
  EXPECT_EQ(child->Parent(), nullptr);
  container->Remove(child);
  container->Remove(nullptr);
  container->Remove(Element(1));
  EXPECT_EQ(Ids(container), (Order{1, 3}));
}

TEST_F(TestContainerTest, EnumeratesInOrderAndThenIsAtItsEnd) {
  const auto walk = WithChildren(2)->NewEnum();
  EXPECT_EQ(walk->Next()->ID(), 1);
  EXPECT_EQ(walk->Next()->ID(), 2);
  EXPECT_EQ(walk->Next(), nullptr);
  EXPECT_EQ(walk->Next(), nullptr);
}

TEST_F(TestContainerTest, EnumerationSurvivesRemovingAndAdding) {
  const auto container = WithChildren(5);
  const auto walk = container->NewEnum();
  EXPECT_EQ(walk->Next()->ID(), 1);
  EXPECT_EQ(walk->Next()->ID(), 2);
  container->Remove(container->item(2));            // the one just visited
  container->Remove(container->item(2));            // the one that would come next (3)
  container->Add(Element(9), std::int32_t{1}, {});  // before all: not visited
  EXPECT_EQ(walk->Next()->ID(), 4);
  container->Add(Element(10), {}, {});
  EXPECT_EQ(walk->Next()->ID(), 5);
  EXPECT_EQ(walk->Next()->ID(), 10);
  EXPECT_EQ(walk->Next(), nullptr);
}

TEST_F(TestContainerTest, EveryChildCanBeRemovedWhileItIsVisited) {
  const auto container = WithChildren(10);
  const auto walk = container->NewEnum();
  std::int32_t visited = 0;
  while (const auto child = walk->Next()) {
    container->Remove(child);
    EXPECT_EQ(child->ID(), ++visited);
  }
  EXPECT_EQ(visited, 10);
  EXPECT_EQ(container->Count(), 0);
}

TEST_F(TestContainerTest, EnumerationOutlivesItsContainer) {
  auto container = WithChildren(2);
  const auto walk = container->NewEnum();
  container.reset();
  EXPECT_EQ(walk->Next()->ID(), 1);
  EXPECT_EQ(walk->Next()->Parent(), nullptr);
  EXPECT_EQ(walk->Next(), nullptr);
}

TEST_F(TestContainerTest, CloneIsDeepAndItsChildrenHaveItAsParent) {
  const auto top = Sequence(1);
  const auto inner = Sequence(2);
  In(inner)->Add(Element(3), {}, {});
  In(top)->Add(inner, {}, {});
  const auto copy = top->Clone();
  EXPECT_EQ(Saved(copy), Saved(top));
  EXPECT_EQ(In(copy)->item(1)->Parent(), copy);
  EXPECT_EQ(In(In(copy)->item(1))->item(1)->Parent(), In(copy)->item(1));
  In(copy)->item(1)->SetID(99);
  In(copy)->Remove(In(copy)->item(1));
  EXPECT_EQ(In(top)->item(1)->ID(), 2);
}

TEST_F(TestContainerTest, SavedTreeReadsBackWithItsClasses) {
  const auto top = Sequence(1);
  const auto inner = Sequence(2, 200);
  In(inner)->Add(Element(3, 210), {}, {});
  In(top)->Add(Element(4), {}, {});
  In(top)->Add(inner, {}, {});
  xml::XmlDocument document;
  const auto saved = top->Save(document.CreateRoot("Elements"));
  const auto loaded = Sequence(0);
  loaded->Load(saved, nullptr);
  EXPECT_EQ(Saved(loaded), Saved(top));
  const auto leaf = In(loaded)->FindElement(3);
  EXPECT_EQ(leaf->ClassID(), sample::kElement);
  EXPECT_EQ(leaf->Parent(), In(loaded)->FindElement(2));
  EXPECT_EQ(In(loaded)->FindElement(2)->Parent(), loaded);
}

TEST_F(TestContainerTest, LoadedElementsGetDataOfTheCatalogue) {
  const auto top = Sequence(1, 100);
  In(top)->Add(Element(2, 120), {}, {});
  In(top)->Add(Sequence(3, 200), {}, {});
  xml::XmlDocument document;
  const auto loaded = Sequence(0);
  loaded->Load(top->Save(document.CreateRoot("Elements")), nullptr);
  EXPECT_EQ(orvik::As<sample::ISampleTest>(In(loaded)->item(1))->sUnit, "mA");
  const auto group = In(loaded)->item(2);
  EXPECT_EQ(orvik::As<sample::ISampleTest>(group)->sUnit, "kV");
  EXPECT_EQ(In(group)->Count(), 0) << "the children of the catalogue's group are not those of the saved one";
}

TEST_F(TestContainerTest, ElementOutsideTheCatalogueIsCreatedByItsClass) {
  const auto top = Sequence(1);
  In(top)->Add(Element(2, 999), {}, {});
  In(top)->Add(Sequence(3, 110), {}, {});
  xml::XmlDocument document;
  const auto loaded = Sequence(0);
  loaded->Load(top->Save(document.CreateRoot("Elements")), nullptr);
  EXPECT_EQ(In(loaded)->item(1)->ClassID(), sample::kElement);
  EXPECT_EQ(In(loaded)->item(1)->TestID(), 999);
  EXPECT_EQ(In(loaded)->item(2)->ClassID(), sample::kSequence) << "saved as a sequence, it stays one";
}

TEST_F(TestContainerTest, KeepsAnElementOfAnUnknownPlugIn) {
  const std::string unknown =
      "<TestElement ID=\"5\" TestID=\"7\" PlugInID=\"GONE\" Class=\"gone.Test\" x=\"1\">\n"
      "      <Information DisplayName=\"Old test\" />\n"
      "      <Whatever>text</Whatever>\n"
      "      <TestElement ID=\"6\" TestID=\"8\" PlugInID=\"GONE\" Class=\"gone.Test\" />\n"
      "    </TestElement>";
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString("<TestElement ID='1' TestID='100' PlugInID='SAMPLE'>" + unknown +
                                      "</TestElement>"));
  const auto loaded = Sequence(0);
  loaded->Load(document.Root(), nullptr);
  EXPECT_TRUE(support::Holds(Saved(loaded), unknown));
  EXPECT_TRUE(support::Holds(Saved(loaded->Clone()), unknown));
  const auto element = In(loaded)->FindElement(5);
  EXPECT_TRUE(
      support::Holds(element->Information()->DisplayName(), "Old test (unknown: the plug-in \"GONE\""));
  EXPECT_EQ(element->Parent(), loaded);
  EXPECT_EQ(support::ErrorNumber([&] { element->Perform(nullptr); }), HostError::kNoSuchProperty);
}

TEST_F(TestContainerTest, SearchesAndReleasesTenThousandLevels) {
  auto top = Chain(10000);
  EXPECT_EQ(In(top)->FindElement(10000)->ID(), 10000);
  EXPECT_EQ(In(top)->FindElement(10001), nullptr);
  top.reset();
}

TEST_F(TestContainerTest, ReleasesTenThousandLevelsBuiltFromBelow) {
  auto current = Sequence(1);
  for (std::int32_t id = 2; id <= 10000; ++id) {
    auto above = Sequence(id);
    In(above)->Add(current, {}, {});
    current = above;
  }
  current.reset();
}

TEST_F(TestContainerTest, ClonesSavesAndLoadsAThousandLevels) {
  const auto top = Chain(elements::kDeepestNesting);
  const auto text = Saved(top);
  EXPECT_TRUE(support::Holds(text, "ID=\"1000\""));
  EXPECT_EQ(Saved(top->Clone()), text);
  xml::XmlDocument document;
  ASSERT_TRUE(document.LoadFromString(text));
  const auto loaded = Sequence(0);
  loaded->Load(document.Root()->FirstChild(), nullptr);
  EXPECT_EQ(Saved(loaded), text);
  EXPECT_TRUE(host_->Elements()->Trouble().All().empty());
}

TEST_F(TestContainerTest, RejectsDeeperTreesBeforeAnyChange) {
  const auto base = host_->Elements()->BaseOf(Chain(1));
  const auto top = Chain(elements::kDeepestNesting + 2);
  const auto inside = host_->Elements()->BaseOf(top);
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { inside->Clone(); }), "more than 1000 levels"));
  xml::XmlDocument document;
  const auto root = document.CreateRoot("Elements");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { inside->Save(root); }), "more than 1000 levels"));
  EXPECT_EQ(root->ChildCount(), 0);
  EXPECT_FALSE(host_->Elements()->Trouble().All().empty()) << "noted for the document";
}

TEST_F(TestContainerTest, DeepOperationWorksAgainAfterARejection) {
  const auto deep = host_->Elements()->BaseOf(Chain(elements::kDeepestNesting + 2));
  for (int i = 0; i < 3; ++i) EXPECT_NE(support::ErrorNumber([&] { deep->Clone(); }), 0);
  EXPECT_NE(Chain(elements::kDeepestNesting)->Clone(), nullptr);
}

}  // namespace
}  // namespace host
