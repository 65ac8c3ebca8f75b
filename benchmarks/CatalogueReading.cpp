#include <malloc.h>

#include <pugixml.hpp>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/OwnProcess.h"
#include "benchmarks/Repeat.h"
#include "benchmarks/VirtualRig.h"
#include "benchmarks/YardstickXml.h"
#include "plugin/base/ClassIdentifiers.h"

namespace benchmarks {

namespace {

constexpr int kRounds = 15;
constexpr int kGroups = 1000;
constexpr int kEntriesOfAGroup = 100;  // the group itself and its tests
constexpr int kEntries = kGroups * kEntriesOfAGroup;
constexpr char kEntry[] = "TestElement";

/// The shipped catalogue's texts by turns, in a thousand groups of 99 tests.
class LargeCatalogue {
 public:
  explicit LargeCatalogue(const Context& context) {
    if (!shipped_.load_file(context.Catalogue().c_str()))
      throw std::runtime_error(context.Catalogue().string() + " cannot be read; build it first");
    for (const auto& found : shipped_.select_nodes("//TestElement")) entries_.push_back(found.node());
  }

  std::string Text() {
    pugi::xml_document large;
    auto top = large.append_child("TemplateData");
    for (int group = 1; group <= kGroups; ++group) {
      auto node = AddEntry(top, group * kEntriesOfAGroup);
      for (int test = 1; test < kEntriesOfAGroup; ++test) AddEntry(node, group * kEntriesOfAGroup + test);
    }
    std::ostringstream text;
    large.save(text, "  ");
    return text.str();
  }

 private:
  pugi::xml_node AddEntry(pugi::xml_node parent, int id) {
    const auto source = entries_[next_++ % entries_.size()];
    auto entry = parent.append_child(kEntry);
    entry.append_attribute("ID") = id;
    for (const auto field : source.children()) {
      if (std::string(field.name()) != kEntry) entry.append_copy(field);
    }
    return entry;
  }

  pugi::xml_document shipped_;
  std::vector<pugi::xml_node> entries_;
  std::size_t next_ = 0;
};

std::shared_ptr<orvik::IPlugIn> NewPlugIn(VirtualRig& rig) {
  return orvik::As<orvik::IPlugIn>(rig.Only().Host().CreateObject(keld::ClassIdentifiers::kPlugin));
}

/// The plug-in reads the catalogue as it does when a host opens it: from the settings to live elements.
std::shared_ptr<orvik::IPlugIn> ReadCatalogue(VirtualRig& rig) {
  auto plugIn = NewPlugIn(rig);
  orvik::Required(plugIn).Initialize(nullptr);
  return plugIn;
}

int CountElements(orvik::ITestContainer& container) {
  int count = 0;
  for (std::int32_t i = 1; i <= container.Count(); ++i) {
    const auto child = container.item(i);
    const auto inner = orvik::As<orvik::ITestContainer>(child);
    count += 1 + (inner ? CountElements(*inner) : 0);
  }
  return count;
}

void RequireAll(const orvik::IPlugIn& plugIn) {
  const int count = CountElements(orvik::Required(plugIn.Tests()));
  if (count != kEntries)
    throw std::runtime_error("the catalogue was read into " + std::to_string(count) + " elements");
}

std::shared_ptr<orvik::IPlugIn> CheckedCatalogue(VirtualRig& rig) {
  auto plugIn = ReadCatalogue(rig);
  RequireAll(*plugIn);
  return plugIn;
}

/// Bytes that are held from the heap, the allocator's own included.
std::size_t HeldBytes() {
  const auto heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

}  // namespace

Figure MeasureCatalogueTime(const Context& context) {
  const auto text = LargeCatalogue(context).Text();
  VirtualRig rig(text);
  SecondsInOwnProcess([&] { return SecondsOf([&] { return CheckedCatalogue(rig); }); });
  const auto [ours, yardstick] = LeastOfEach(
      kRounds,
      [&] { return SecondsInOwnProcess([&] { return SecondsOf([&] { return ReadCatalogue(rig); }); }); },
      [&] { return SecondsInOwnProcess([&] { return SecondsOf([&] { return ParsedAndVisited(text); }); }); });
  return {ours / yardstick, "x", yardstick, "the XML library alone, in s", 4, Bound::kAtMost};
}

Figure MeasureCatalogueMemory(const Context& context) {
  VirtualRig rig(LargeCatalogue(context).Text());
  ReadCatalogue(rig);  // what lives as long as the process
  const auto before = HeldBytes();
  const auto plugIn = ReadCatalogue(rig);
  const auto after = HeldBytes();
  RequireAll(*plugIn);
  return {static_cast<double>(after - before) / kEntries, "bytes/element", {}, "", 1024, Bound::kAtMost};
}

}  // namespace benchmarks
