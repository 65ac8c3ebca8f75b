#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

using ElementPtr = std::shared_ptr<orvik::ITestElement>;

std::shared_ptr<orvik::ITestContainer> NewContainer(std::int32_t id = 0) {
  const auto element = NewHostObject<orvik::IBaseElement>(orvik::HostClasses::kTestContainer);
  element->Initialize(names::kPlugInId, id, id);
  return orvik::As<orvik::ITestContainer>(element);
}

ElementPtr NewElement(std::int32_t id) {
  ElementPtr element = CInspection::Create();
  element->Initialize(names::kPlugInId, id, names::kInspectionTest);
  return element;
}

std::string Order(const orvik::ITestContainer& container) {
  std::string order;
  const auto walk = container.NewEnum();
  while (const auto child = walk->Next()) order += std::to_string(child->ID()) + " ";
  return order;
}

void Places(Findings& findings) {
  const auto container = NewContainer();
  findings.Equal(0, container->Count(), "children of a new container");
  findings.Equal("", Order(*container), "walk of a new container");
  container->Add(NewElement(1), {}, {});
  container->Add(NewElement(2), {}, {});
  container->Add(NewElement(3), std::int32_t{2}, {});
  container->Add(NewElement(4), {}, std::int32_t{1});
  findings.Equal("1 4 3 2 ", Order(*container), "order after adding before and after");
  findings.Equal(4, container->Count(), "children");
  findings.Equal(4, container->item(2)->ID(), "second child");
  findings.Expect(orvik::As<orvik::ITestContainer>(container->item(1)->Parent()) == container,
                  "the container is the parent of its children");
  for (const std::int32_t index : {0, 5, -1, 2147483647, -2147483647 - 1}) {
    findings.Refused(
        "child number " + std::to_string(index), [&] { container->item(index); },
        orvik::HostError::kSubscriptOutOfRange);
  }
  findings.Refused("adding nothing", [&] { container->Add(nullptr, {}, {}); });
  findings.Refused("a place that is not an identifier", [&] { container->Add(NewElement(9), "two", {}); });
  findings.Refused("a place beside an unknown child",
                   [&] { container->Add(NewElement(9), std::int32_t{77}, {}); });
  findings.Equal("1 4 3 2 ", Order(*container), "order after refused additions");
}

void Finding(Findings& findings) {
  const auto root = NewContainer(1);
  auto level = root;
  constexpr std::int32_t kDepth = 500;
  for (std::int32_t id = 2; id <= kDepth; ++id) {
    const auto inner = NewContainer(id);
    level->Add(orvik::As<orvik::ITestElement>(inner), {}, {});
    level = inner;
  }
  level->Add(NewElement(kDepth + 1), {}, {});
  root->Add(NewElement(kDepth + 2), {}, {});
  for (const auto id : {2, 250, kDepth, kDepth + 1, kDepth + 2}) {
    const auto found = root->FindElement(id);
    findings.Expect(found && found->ID() == id, "element " + std::to_string(id) + " is found at its depth");
  }
  findings.Expect(!root->FindElement(0) && !root->FindElement(-1), "an unknown identifier finds nothing");
}

void Removing(Findings& findings) {
  const auto container = NewContainer();
  for (std::int32_t id = 1; id <= 4; ++id) container->Add(NewElement(id), {}, {});
  const auto walk = container->NewEnum();
  findings.Equal(1, walk->Next()->ID(), "first of a walk");
  const auto second = container->item(2);
  container->Remove(second);
  const auto next = walk->Next();
  findings.Equal(3, next ? next->ID() : 0, "a child removed during the walk is passed over");
  findings.Expect(!second->Parent(), "a removed child has no parent");
  container->Remove(next);
  const auto last = walk->Next();
  findings.Equal(4, last ? last->ID() : 0, "removing the child just visited does not upset the walk");
  findings.Expect(!walk->Next() && !walk->Next(), "a walk ends, and stays at its end");
  container->Remove(second);
  container->Remove(nullptr);
  container->Remove(NewElement(1));
  findings.Equal("1 4 ", Order(*container),
                 "order after removing, and after removing elements that are not children");
}

void Circles(Findings& findings) {
  const auto outer = NewContainer(1);
  const auto inner = NewContainer(2);
  outer->Add(orvik::As<orvik::ITestElement>(inner), {}, {});
  findings.Refused("a container inside itself",
                   [&] { outer->Add(orvik::As<orvik::ITestElement>(outer), {}, {}); });
  findings.Refused("a container below its own child",
                   [&] { inner->Add(orvik::As<orvik::ITestElement>(outer), {}, {}); });
  findings.Equal(0, inner->Count(), "children after a refused circle");
}

void DeepCopies(Findings& findings) {
  const auto root =
      NewHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument)->CreateRoot("Checked");
  const auto outer = NewContainer(1);
  const auto inner = NewContainer(2);
  outer->Add(orvik::As<orvik::ITestElement>(inner), {}, {});
  inner->Add(NewElement(3), {}, {});

  const auto copy = orvik::As<orvik::ITestContainer>(orvik::As<orvik::ITestElement>(outer)->Clone());
  if (!copy) return findings.Expect(false, "the clone of a container is a container");
  const auto copied = copy->FindElement(3);
  findings.Expect(copied && copied != inner->item(1), "a clone has children of its own, at any depth");
  findings.Equal(names::kInspectionClass, copied ? copied->ClassID() : "", "class of a cloned child");
  inner->Remove(inner->item(1));
  findings.Expect(copy->FindElement(3) != nullptr, "a clone does not follow its source");

  const auto node = orvik::As<orvik::ITestElement>(copy)->Save(root);
  const auto loaded = NewContainer();
  orvik::As<orvik::ITestElement>(loaded)->Load(node, nullptr);
  const auto found = loaded->FindElement(3);
  findings.Equal(names::kInspectionClass, found ? found->ClassID() : "", "class of a loaded child");
  findings.Expect(found && found->Parent() && found->Parent()->ID() == 2, "a loaded child has its parent");
}

void TooDeep(Findings& findings) {
  const auto root =
      NewHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument)->CreateRoot("Checked");
  auto outermost = NewContainer();
  for (int level = 0; level < 5000; ++level) {
    const auto above = NewContainer();
    above->Add(orvik::As<orvik::ITestElement>(outermost), {}, {});
    outermost = above;
  }
  const auto element = orvik::As<orvik::ITestElement>(outermost);
  findings.Refused("cloning five thousand levels", [&] { element->Clone(); });
  findings.Refused("saving five thousand levels", [&] { element->Save(root); });
}

}  // namespace

void CheckContainer(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"places", Places},
                      {"finding", Finding},
                      {"removing", Removing},
                      {"circles", Circles},
                      {"copies", DeepCopies},
                      {"deep nesting", TooDeep}});
}

}  // namespace check
