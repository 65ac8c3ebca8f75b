#include "OrvikTypeLib/IMeasurement.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

class Measurement : public KeldPlugInLoaded {
 protected:
  std::shared_ptr<orvik::IMeasurement> measurement_ =
      library_.New<orvik::IMeasurement>("orvikKELD.CKELDMeasurement");

  void Load(const std::string& parts) {
    measurement_->Load(library_.Parsed("<Measurement Flags='O'>" + parts + "</Measurement>"));
  }
};

TEST_F(Measurement, StartsEmpty) {
  EXPECT_TRUE(orvik::IsEmpty(measurement_->value()));
  EXPECT_TRUE(orvik::IsEmpty(measurement_->PresetValue()));
  EXPECT_EQ(measurement_->Key(), "::");
  EXPECT_EQ(measurement_->LimitKey(), "NO LIMIT KEY");
  EXPECT_EQ(measurement_->ValueType(), 2);
  EXPECT_EQ(measurement_->ValueFormat(), "0");
  EXPECT_EQ(measurement_->ToolTipText(), "");
  EXPECT_EQ(measurement_->Status(), 0);
  const auto node = measurement_->Save(library_.NewNode());
  EXPECT_FALSE(node->HasAttribute("Flags"));
  EXPECT_FALSE(node->FindChild("Unit"));
  EXPECT_EQ(node->FindChild("Value")->Text(), "");
}

TEST_F(Measurement, LoadsWhatItSaved) {
  Load("<Description>1::d</Description><Value>12.5</Value><Unit>V</Unit><Status>2</Status>");
  const auto node = measurement_->Save(library_.NewNode());
  const auto again = library_.New<orvik::IMeasurement>("orvikKELD.CKELDMeasurement");
  again->Load(node);
  EXPECT_EQ(again->value(), orvik::Variant(12.5));
  EXPECT_EQ(again->Unit(), "V");
  EXPECT_EQ(again->Status(), 2);
  EXPECT_EQ(again->Flags(), "O");
  EXPECT_EQ(again->Description(), "1::d");
}

TEST_F(Measurement, ReadsTextAsZero) {
  Load("<Value>OL</Value>");
  EXPECT_EQ(measurement_->value(), orvik::Variant(0.0));
}

TEST_F(Measurement, KeepsItsFieldsForMalformedParts) {
  Load("<Value>5</Value><Status>2</Status>");
  EXPECT_NO_THROW(Load("<Status>passed</Status><value>7</value><Alien/>"));
  EXPECT_EQ(measurement_->Status(), 2);
  EXPECT_EQ(measurement_->value(), orvik::Variant(5.0));
}

TEST_F(Measurement, RaisesNoErrors) {
  EXPECT_NO_THROW(measurement_->Load(nullptr));
  EXPECT_NO_THROW(measurement_->Save(nullptr));
  EXPECT_NO_THROW(measurement_->Load(library_.NewNode("Alien")));
}

}  // namespace
}  // namespace conformance
