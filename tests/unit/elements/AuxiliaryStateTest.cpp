#include <gtest/gtest.h>

#include <sstream>

#include "host/elements/AuxiliaryState.h"

namespace host {
namespace {

void Load(elements::AuxiliaryState& state, const std::string& text) {
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(text.c_str(), pugi::parse_default | pugi::parse_comments));
  state.Load(document.document_element());
}

std::string Saved(const elements::AuxiliaryState& state) {
  pugi::xml_document document;
  state.Save(document.append_child("Auxiliary"));
  std::ostringstream text;
  document.document_element().print(text, "", pugi::format_raw);
  return text.str();
}

TEST(AuxiliaryState, KeepsUnknownXml) {
  const std::string text =
      R"(<Auxiliary Print="1" Room="7"><Doubt Since="3">first</Doubt><Weather/></Auxiliary>)";
  elements::AuxiliaryState state, copy;
  Load(state, text);
  EXPECT_FALSE(state.IsDefault());
  EXPECT_EQ(Saved(state), text);
  copy.CopyFrom(state);
  EXPECT_EQ(Saved(copy), text);
  Load(state, "<Auxiliary/>");
  EXPECT_TRUE(state.IsDefault());
  EXPECT_EQ(Saved(state), R"(<Auxiliary Print="1"/>)");
}

TEST(AuxiliaryState, KeepsRecordOnlyAndSavesItOnlyWhenSet) {
  elements::AuxiliaryState state, copy;
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

}  // namespace
}  // namespace host
