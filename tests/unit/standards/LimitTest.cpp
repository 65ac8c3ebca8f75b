#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

#include "host/standards/Limit.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

using orvik::HostError;
using orvik::Variant;
using support::ErrorNumber;
using support::ErrorText;
using support::Holds;

std::shared_ptr<standards::Limit> Between(const std::string& low, const std::string& high) {
  auto limit = std::make_shared<standards::Limit>();
  limit->Initialize("NO LIMIT KEY", "mOhm", low, high);
  return limit;
}

TEST(Limit, BoundsAreInclusive) {
  const auto limit = Between("0.1", "0.3");
  EXPECT_EQ(limit->Evaluate(0.1F, {}), 1);
  EXPECT_EQ(limit->Evaluate(0.3F, {}), 1);
  EXPECT_EQ(limit->Evaluate(0.2F, {}), 1);
  EXPECT_EQ(limit->Evaluate(std::nextafter(0.1F, 0.0F), {}), 2);
  EXPECT_EQ(limit->Evaluate(std::nextafter(0.3F, 1.0F), {}), 2);
}

TEST(Limit, IgnoresABoundThatIsNotSet) {
  EXPECT_EQ(Between("", "")->Evaluate(1e30F, {}), 0);
  EXPECT_EQ(Between("5", "")->Evaluate(4, {}), 2);
  EXPECT_EQ(Between("5", "")->Evaluate(1e30F, {}), 1);
  EXPECT_EQ(Between("", "5")->Evaluate(-1e30F, {}), 1);
  EXPECT_EQ(Between("", "5")->Evaluate(6, {}), 2);
}

TEST(Limit, ValueThatIsNotANumberNeverPasses) {
  const auto nan = std::numeric_limits<float>::quiet_NaN();
  const auto infinity = std::numeric_limits<float>::infinity();
  for (const auto& limit : {Between("5", ""), Between("", "5"), Between("1", "5")}) {
    for (const float value : {nan, infinity, -infinity}) EXPECT_EQ(limit->Evaluate(value, {}), 2);
  }
  EXPECT_EQ(Between("", "")->Evaluate(nan, {}), 0);
}

TEST(Limit, BoundBeyondSinglePrecisionIsStillABound) {
  EXPECT_EQ(Between("1e300", "")->Evaluate(1e30F, {}), 2);
  EXPECT_EQ(Between("", "1e300")->Evaluate(1e30F, {}), 1);
}

TEST(Limit, TextsAreKeptAsEntered) {
  const auto limit = Between(" 0.10 ", "+3e-1");
  EXPECT_EQ(limit->LowText(), "0.10");
  EXPECT_EQ(limit->HighText(), "+3e-1");
  EXPECT_EQ(limit->LowBound(), 0.1);
  EXPECT_EQ(limit->HighBound(), 0.3);
  EXPECT_EQ(limit->Key(), "NO LIMIT KEY");
  EXPECT_EQ(limit->Unit(), "mOhm");
}

TEST(Limit, KeepsItsBoundsWhenOthersAreRejected) {
  const auto limit = Between("1", "2");
  for (const auto* text : {"abc", "0,3", "1 2", "inf", "nan", "%", "1%%", "1e999", "--1"}) {
    EXPECT_EQ(support::ErrorNumber([&] { limit->SetBounds(text, ""); }), HostError::kInvalidArgument) << text;
    EXPECT_EQ(support::ErrorNumber([&] { limit->SetBounds("", text); }), HostError::kInvalidArgument) << text;
  }
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { limit->SetBounds("3", "2"); }), "above the upper"));
  EXPECT_EQ(limit->LowText(), "1");
  EXPECT_EQ(limit->HighText(), "2");
  EXPECT_EQ(support::ErrorNumber([&] { limit->SetBounds("2", "2"); }), 0)
      << "one single value may be allowed";
}

TEST(Limit, PercentageIsRelativeToTheNominalValue) {
  const auto limit = Between("", "");
  limit->SetNominal(230.0);
  limit->SetBounds("90%", "110 %");
  EXPECT_DOUBLE_EQ(limit->LowBound().value(), 207);
  EXPECT_DOUBLE_EQ(limit->HighBound().value(), 253);
  EXPECT_EQ(limit->HighText(), "110 %");
  EXPECT_EQ(limit->Evaluate(207, {}), 1);
  EXPECT_EQ(limit->Evaluate(206, {}), 2);
  EXPECT_EQ(limit->Evaluate(253, {}), 1);
  EXPECT_EQ(limit->Evaluate(254, {}), 2);
}

TEST(Limit, GivenNominalReplacesItsOwn) {
  const auto limit = Between("", "");
  limit->SetNominal(230.0);
  limit->SetBounds("90%", "");
  EXPECT_EQ(limit->Evaluate(100, 110.0), 1);
  EXPECT_EQ(limit->Evaluate(98, 110.0), 2);
}

TEST(Limit, RejectsAPercentageWithoutANominal) {
  const auto limit = Between("", "");
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { limit->SetBounds("", "110%"); }), "needs a nominal value"));
  limit->SetNominal(230.0);
  limit->SetBounds("", "110%");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { limit->SetNominal({}); }), "needs a nominal value"));
  EXPECT_EQ(limit->Nominal(), Variant(230.0));
}

TEST(Limit, RejectsANominalThatReversesTheBounds) {
  const auto limit = Between("", "");
  limit->SetNominal(230.0);
  limit->SetBounds("90%", "110%");
  EXPECT_EQ(support::ErrorNumber([&] { limit->SetNominal(-230.0); }), HostError::kInvalidArgument);
  EXPECT_EQ(limit->Nominal(), Variant(230.0));
}

TEST(Limit, NominalIsANumberOrNothing) {
  const auto limit = Between("", "");
  EXPECT_EQ(limit->Nominal(), Variant());
  limit->SetNominal(std::int32_t{5});
  EXPECT_EQ(limit->Nominal(), Variant(5.0));
  EXPECT_EQ(support::ErrorNumber([&] { limit->SetNominal("5"); }), HostError::kTypeMismatch);
  EXPECT_EQ(support::ErrorNumber([&] { limit->SetNominal(std::nan("")); }), HostError::kInvalidArgument);
  limit->SetNominal({});
  EXPECT_EQ(limit->Nominal(), Variant());
}

std::string Saved(const standards::Limit& limit) {
  pugi::xml_document document;
  limit.Save(document);
  std::ostringstream text;
  document.document_element().print(text, "", pugi::format_raw);
  return text.str();
}

TEST(Limit, SavedLimitReadsBack) {
  const auto limit = Between("", "");
  limit->SetNominal(0.1);
  limit->SetBounds("", "110%");
  const auto text = Saved(*limit);
  EXPECT_EQ(text, "<Limit Key=\"NO LIMIT KEY\" Unit=\"mOhm\" High=\"110%\" Nominal=\"0.1\"/>");
  pugi::xml_document document;
  document.load_string(text.c_str());
  standards::Limit loaded;
  loaded.Load(document.document_element());
  EXPECT_EQ(Saved(loaded), text);
  EXPECT_EQ(loaded.HighBound(), limit->HighBound());
}

TEST(Limit, RejectsMalformedSavedLimits) {
  for (const auto* text :
       {"<Limit Low='x'/>", "<Limit High='110%'/>", "<Limit Low='2' High='1'/>", "<Limit Nominal='n'/>"}) {
    pugi::xml_document document;
    document.load_string(text);
    standards::Limit limit;
    EXPECT_NE(support::ErrorNumber([&] { limit.Load(document.document_element()); }), 0) << text;
  }
}

TEST(Limit, CopyIsIndependent) {
  const auto limit = Between("1", "2");
  const auto copy = limit->Copy();
  copy->SetBounds("", "");
  EXPECT_EQ(limit->LowText(), "1");
  EXPECT_EQ(Saved(*limit->Copy()), Saved(*limit));
}

}  // namespace
}  // namespace host
