#include "host/report/ReportObject.h"
#include "host/report/TextReport.h"
#include "tests/checker-plugin/IHostChecker.h"
#include "tests/conformance/Asked.h"

namespace conformance {
namespace {

/// The reference host, asked by a plug-in everything that a plug-in may ask.
class ReferenceHost : public testing::Test {
 protected:
  LoadedLibrary library_{CheckerPlugIn()};
  std::shared_ptr<check::IHostChecker> checker_ =
      library_.New<check::IHostChecker>(check::IHostChecker::kClassId);
};

void ExpectNone(const check::IHostChecker::Texts& findings) {
  for (const auto& finding : findings) ADD_FAILURE() << finding;
}

TEST_F(ReferenceHost, CreatesItsClasses) { ExpectNone(checker_->Classes()); }
TEST_F(ReferenceHost, HasElements) { ExpectNone(checker_->Elements()); }
TEST_F(ReferenceHost, HasContainers) { ExpectNone(checker_->Container()); }
TEST_F(ReferenceHost, HasStandards) { ExpectNone(checker_->Standards()); }
TEST_F(ReferenceHost, TranslatesTexts) { ExpectNone(checker_->Language()); }
TEST_F(ReferenceHost, ReadsAndWritesXml) { ExpectNone(checker_->Xml()); }
TEST_F(ReferenceHost, KeepsSettings) { ExpectNone(checker_->Registry()); }
TEST_F(ReferenceHost, KeepsRecords) { ExpectNone(checker_->Records()); }
TEST_F(ReferenceHost, HasWindows) { ExpectNone(checker_->Forms()); }
TEST_F(ReferenceHost, HasControls) { ExpectNone(checker_->Controls()); }
TEST_F(ReferenceHost, HasTimers) { ExpectNone(checker_->Timers()); }
TEST_F(ReferenceHost, HoldsTheOperator) { ExpectNone(checker_->Modality()); }
TEST_F(ReferenceHost, PlacesUserControls) { ExpectNone(checker_->UserControls()); }
TEST_F(ReferenceHost, HasCompositeControls) { ExpectNone(checker_->CompositeControls()); }
TEST_F(ReferenceHost, EditsLimits) { ExpectNone(checker_->LimitView()); }

TEST_F(ReferenceHost, HasASerialPort) {
  ExpectNone(checker_->SerialPort("CHECK"));
  EXPECT_EQ(library_.Wire().Sent(), std::vector<std::string>{"IREM"}) << "what was refused must not be sent";
}

TEST_F(ReferenceHost, LogsErrors) {
  ExpectNone(checker_->ErrorLog());
  const auto lines = library_.ErrorLines();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_NE(lines[0].find("CHECK\t0x8004A22C\t-2147179988\tCheckErrorLog\t3"), std::string::npos) << lines[0];
  EXPECT_NE(lines[1].find("7\t2.5\ttext with\\nline end\ta, b"), std::string::npos) << lines[1];
}

TEST_F(ReferenceHost, PrintsReports) {
  const auto report = std::make_shared<bench::ReportObject>();
  ExpectNone(checker_->Report(report));
  EXPECT_EQ(report->Tables().size(), 2U) << "a refused table must not be printed";
  const auto text = bench::TextReport(*report);
  EXPECT_NE(text.find("a|b;c{d}e\\f"), std::string::npos) << text;
  EXPECT_NE(text.find("<b>&amp;"), std::string::npos) << text;
}

TEST_F(ReferenceHost, RefusesFilesThatAreNoPlugIns) {
  auto& host = library_.Host();
  for (const std::string path : {"/", "no such file", "/dev/null", CATALOGUE_PATH}) {
    EXPECT_EQ(ErrorNumberOf([&] { host.OpenPlugIn(path); }), orvik::HostError::kClassNotRegistered) << path;
  }
}

}  // namespace
}  // namespace conformance
