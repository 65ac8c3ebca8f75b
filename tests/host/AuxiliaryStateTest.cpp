#include <gtest/gtest.h>

#include <sstream>

#include "host/elements/AuxiliaryState.h"

namespace bench {
namespace {

using Doubts = std::vector<std::string>;

void Load(AuxiliaryState& state, const std::string& text) {
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(text.c_str(), pugi::parse_default | pugi::parse_comments));
  state.Load(document.document_element());
}

std::string Saved(const AuxiliaryState& state) {
  pugi::xml_document document;
  state.Save(document.append_child("Auxiliary"));
  std::ostringstream text;
  document.document_element().print(text, "", pugi::format_raw);
  return text.str();
}

const std::string kByAnother =
    R"(<Auxiliary Print="1"><Doubt>first</Doubt><Doubt Since="3"><!--why--><Link to="x"/>second</Doubt>)"
    R"(<Run Date="2026-01-02" Operator="Kim" Room="7"><Weather/></Run></Auxiliary>)";

TEST(AuxiliaryState, KeepsWhatAnotherProgramSaysBesideDoubtsAndRun) {
  AuxiliaryState state, copy;
  Load(state, kByAnother);
  EXPECT_EQ(state.Doubts(), (Doubts{"first", "second"}));
  EXPECT_EQ(state.Run(), (RunMark{"2026-01-02", "Kim"}));
  const std::string saved =
      R"(<Auxiliary Print="1"><Doubt>first</Doubt><Doubt Since="3">second<!--why--><Link to="x"/></Doubt>)"
      R"(<Run Date="2026-01-02" Operator="Kim" Room="7"><Weather/></Run></Auxiliary>)";
  EXPECT_EQ(Saved(state), saved);
  copy.CopyFrom(state);
  EXPECT_EQ(Saved(copy), saved);
}

TEST(AuxiliaryState, ADoubtThatStaysKeepsWhatStandsBesideIt) {
  AuxiliaryState state;
  Load(state, kByAnother);
  state.SetDoubts({"new", "second"});
  state.SetRun(RunMark{"2026-01-02", "Kim"});
  EXPECT_EQ(
      Saved(state),
      R"(<Auxiliary Print="1"><Doubt>new</Doubt><Doubt Since="3">second<!--why--><Link to="x"/></Doubt>)"
      R"(<Run Date="2026-01-02" Operator="Kim" Room="7"><Weather/></Run></Auxiliary>)");
}

TEST(AuxiliaryState, WhatStoodBesideGoesWithItsDoubtAndItsRun) {
  AuxiliaryState state;
  Load(state, kByAnother);
  state.SetDoubts({});
  state.SetDoubts({"second"});
  state.SetRun(RunMark{"2026-01-03", "Kim"});
  EXPECT_EQ(
      Saved(state),
      R"(<Auxiliary Print="1"><Doubt>second</Doubt><Run Date="2026-01-03" Operator="Kim"/></Auxiliary>)");
  Load(state, "<Auxiliary/>");
  EXPECT_TRUE(state.IsDefault());
  EXPECT_EQ(Saved(state), R"(<Auxiliary Print="1"/>)");
}

TEST(AuxiliaryState, KeepsRecordOnlyAndSavesItOnlyWhenSet) {
  AuxiliaryState state, copy;
  EXPECT_FALSE(state.RecordOnly());
  state.SetRecordOnly(true);
  EXPECT_FALSE(state.IsDefault());
  EXPECT_EQ(Saved(state), R"(<Auxiliary Print="1" RecordOnly="1"/>)");
  copy.CopyFrom(state);
  EXPECT_TRUE(copy.RecordOnly());
  Load(copy, R"(<Auxiliary Print="0"/>)");
  EXPECT_FALSE(copy.RecordOnly());
  Load(copy, Saved(state));
  EXPECT_TRUE(copy.RecordOnly());
  EXPECT_EQ(Saved(copy), Saved(state));
}

TEST(AuxiliaryState, ReadsTheWholeTextOfADoubt) {
  AuxiliaryState state;
  Load(state, "<Auxiliary><Doubt>one<!-- of --> <![CDATA[& two]]></Doubt></Auxiliary>");
  EXPECT_EQ(state.Doubts(), (Doubts{"one& two"}));
}

}  // namespace
}  // namespace bench
