#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/elements/AuxiliaryState.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDElement.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"
#include "tests/support/VirtualBench.h"

namespace support {

/// Makes trees of the catalogue's tests at random: two to five levels deep, up to three children each, and in
/// every element whatever a document can hold of it.
class RandomTree {
 public:
  using Element = std::shared_ptr<orvik::ITestElement>;

  RandomTree(std::mt19937& random, VirtualBench& bench) : random_(random), bench_(bench) {
    Collect(*bench.PlugIn()->Tests());
  }

  /// A tree whose elements have the identifiers 1, 2, ... in the order in which they were made.
  Element Make() {
    lastId_ = 0;
    return Branch(2 + static_cast<int>(Below(4)));
  }

  /// A single test of the catalogue, as it is there.
  Element Test() { return Any(tests_)->Clone(); }

 private:
  /// Sequences without their children, and single tests.
  void Collect(const orvik::ITestContainer& container) {
    for (std::int32_t i = 1; i <= container.Count(); ++i) {
      const auto entry = container.item(i);
      if (const auto group = orvik::As<orvik::ITestContainer>(entry)) {
        Collect(*group);
        const auto empty = orvik::As<orvik::ITestContainer>(bench_.CreateTest(entry->TestID()));
        while (empty->Count() > 0) empty->Remove(empty->item(1));
        groups_.push_back(orvik::As<orvik::ITestElement>(empty));
      } else {
        tests_.push_back(entry);
      }
    }
  }

  Element Branch(int levels) {
    const bool group = levels > 1 && Below(4) != 0;
    const auto made = Any(group ? groups_ : tests_)->Clone();
    made->SetID(++lastId_);
    for (auto left = group ? Below(4) : 0; left > 0; --left)
      orvik::As<orvik::ITestContainer>(made)->Add(Branch(levels - 1), {}, {});
    GiveTexts(*made);
    GiveSettings(*made);
    for (auto left = Below(4); left > 0; --left) GiveStandard(*made->Limits());
    if (Below(3) != 0) GiveResult(made);
    return made;
  }

  void GiveTexts(const orvik::ITestElement& element) {
    const auto texts = element.Information();
    if (Below(2)) texts->SetFirstText(Text());
    if (Below(2)) texts->SetSecondText(Text());
    if (Below(2)) texts->SetDisplayName(Text());
  }

  void GiveSettings(orvik::ITestElement& element) {
    auto& configuration =
        dynamic_cast<keld::configuration::CKELDTestConfiguration&>(*element.Configuration());
    configuration.SetOptions(Below(4) ? static_cast<std::int32_t>(Below(8192))
                                      : static_cast<std::int32_t>(random_()));
    configuration.SetValueFilter(static_cast<std::int32_t>(Below(6)));
    if (Below(3)) return;  // the host's own part of most elements is never asked for
    auto& host = dynamic_cast<host::elements::AuxiliaryState&>(
        *dynamic_cast<keld::model::CKELDElement&>(element).BaseElement()->Auxiliary());
    orvik::IAuxiliaryState& state = host;
    state.SetPrintElement(Below(2) == 0);
    host.SetRecordOnly(Below(3) == 0);
  }

  void GiveStandard(orvik::ILimitData& limits) {
    const auto standard = limits.CreateStandard(Text(), Text());
    GiveBounds(*standard->Limit(1));
    for (auto left = Below(2); left > 0; --left) {
      const auto further = orvik::As<orvik::ILimit>(bench_.Host().CreateObject(orvik::HostClasses::kLimit));
      further->Initialize(Text(), Text(), "", "");
      GiveBounds(*further);
      standard->AddLimit(further);
    }
  }

  void GiveBounds(orvik::ILimit& limit) {
    const auto bound = static_cast<int>(Below(1000));
    switch (Below(5)) {
      case 0:
        return;
      case 1:
        return limit.SetBounds(" -" + std::to_string(bound) + ".50 ", "");
      case 2:
        return limit.SetBounds("", std::to_string(bound) + "e-3");
      case 3:
        limit.SetNominal(Number());
        return limit.SetBounds(std::to_string(-bound), std::to_string(bound));
      default:
        limit.SetNominal(230.0);
        return limit.SetBounds("90%", "110%");
    }
  }

  void GiveResult(const Element& element) {
    const auto result = keld::results::CKELDResultData::Create();
    orvik::As<keld::model::CKELDElement>(element)->BaseElement()->SetResult(result);
    result->SetStatus(static_cast<std::int32_t>(Below(5)));
    if (Below(2)) result->SetComment(Text());
    if (Below(2)) result->SetMTIIdentifier(static_cast<std::int32_t>(Below(3)));
    if (Below(4)) result->SetMeasurement(Measurement());
    result->BuildServiceRecord(element);
    // The record stays as it is when name or settings change after the run.
    if (Below(2)) GiveTexts(*element);
    if (Below(8) == 0) result->SetServiceRecord(nullptr);
  }

  std::shared_ptr<keld::instrument::CKELDMeasurement> Measurement() {
    const auto measurement = keld::instrument::CKELDMeasurement::Create();
    if (Below(4))
      measurement->AddValue(Number(), Text(), Below(3) ? "" : "O", "");
    else
      measurement->AddValue(static_cast<std::int32_t>(random_()), Text(), Text(), "");
    measurement->SetDescription(Text());
    measurement->SetStatus(static_cast<std::int32_t>(Below(3)));
    return measurement;
  }

  double Number() {
    static const std::vector<double> kSpecial{0.0,   -0.0, 0.1 + 0.2, 5.3,    -1e-300, 1e300,
                                              123.0, 1e15, 1e16,      2.5e-7, 1.0 / 3, 4503599627370497.5};
    if (Below(2)) return kSpecial[Below(kSpecial.size())];
    return (static_cast<double>(random_()) - 2e9) / static_cast<double>(1 + Below(1'000'000));
  }

  std::string Text() {
    static const std::vector<std::string> kParts{
        "a",  " ", "<",  "&",    "\"",   "\xC3\xB8",           "\n",          "\r\n", "\t", "]]>",
        "--", "0", "::", "\xFF", "\x01", std::string(1, '\0'), "\xE2\x84\xA6"};
    std::string text;
    for (auto left = Below(6); left > 0; --left) text += kParts[Below(kParts.size())];
    return text;
  }

  std::size_t Below(std::size_t bound) { return random_() % bound; }
  const Element& Any(const std::vector<Element>& elements) { return elements[Below(elements.size())]; }

  std::mt19937& random_;
  VirtualBench& bench_;
  std::vector<Element> groups_;
  std::vector<Element> tests_;
  std::int32_t lastId_ = 0;
};

}  // namespace support
