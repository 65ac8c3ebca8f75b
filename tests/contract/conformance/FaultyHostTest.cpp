#include "OrvikTypeLib/ILanguageService.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IStandard.h"
#include "host/standards/Standard.h"
#include "platform/IPanel.h"
#include "tests/contract/checker-plugin/IHostChecker.h"
#include "tests/contract/conformance/Asked.h"

// The checker itself is checked: a host with a fault must not come out clean.
namespace conformance {
namespace {

namespace classes = orvik::HostClasses;

class FaultyHost : public testing::Test {
 protected:
  LoadedLibrary library_{CheckerPlugIn()};
  std::shared_ptr<check::IHostChecker> checker_ =
      library_.New<check::IHostChecker>(check::IHostChecker::kClassId);
};

struct Missing {
  const char* classId;
  const char* subject;
};

void PrintTo(const Missing& missing, std::ostream* stream) { *stream << missing.classId; }

class HostWithoutClass : public FaultyHost, public testing::WithParamInterface<Missing> {};

TEST_P(HostWithoutClass, IsFoundOut) {
  library_.Host().Register(GetParam().classId, [] { return nullptr; });
  EXPECT_FALSE(checker_->Check(GetParam().subject).empty());
}

INSTANTIATE_TEST_SUITE_P(
    Loaded, HostWithoutClass,
    testing::Values(Missing{classes::kTestElement, "elements"}, Missing{classes::kTestContainer, "container"},
                    Missing{classes::kLimit, "standards"}, Missing{classes::kLanguageService, "language"},
                    Missing{classes::kErrorLog, "error log"}, Missing{classes::kXmlDocument, "XML"},
                    Missing{classes::kRegistryReader, "registry"},
                    Missing{classes::kInstrumentRecord, "records"},
                    Missing{classes::kToolbar, "composite controls"},
                    Missing{classes::kLimitView, "limit view"},
                    Missing{"orvikCheck.XCheckControl", "user controls"}));

/// Shows texts as they are written.
class Untranslated final : public orvik::ILanguageService {
  std::string IObject_ClassID() const override { return {}; }
  std::string ILanguageService_Translate(const std::string& sText, const std::string&,
                                         const std::vector<std::string>&) const override {
    return sText;
  }
  void ILanguageService_TranslateControls(const std::string&,
                                          std::shared_ptr<orvik::platform::IPanel>) const override {}
};

TEST_F(FaultyHost, ThatDoesNotTranslateIsFoundOut) {
  library_.Host().Register(classes::kLanguageService, [] { return std::make_shared<Untranslated>(); });
  EXPECT_FALSE(checker_->Check("language").empty());
}

/// The worst fault of all: every value keeps every limit.
class Lenient final : public orvik::IStandard {
  std::string IObject_ClassID() const override { return {}; }
  void IStandard_Initialize(const std::string& sName, const std::string& sDescription,
                            std::int32_t lNumber) override {
    inner_->Initialize(sName, sDescription, lNumber);
  }
  std::string IStandard_Name() const override { return inner_->Name(); }
  std::string IStandard_Description() const override { return inner_->Description(); }
  std::int32_t IStandard_Number() const override { return inner_->Number(); }
  std::int32_t IStandard_LimitCount() const override { return inner_->LimitCount(); }
  std::shared_ptr<orvik::ILimit> IStandard_Limit(std::int32_t lIndex) const override {
    return inner_->Limit(lIndex);
  }
  void IStandard_AddLimit(std::shared_ptr<orvik::ILimit> Limit) override {
    inner_->AddLimit(std::move(Limit));
  }
  std::int32_t IStandard_Evaluate(float, const std::string&, const orvik::Variant&) const override {
    return 1;
  }

  std::shared_ptr<orvik::IStandard> inner_ = std::make_shared<host::standards::Standard>();
};

TEST_F(FaultyHost, ThatPassesEverythingIsFoundOut) {
  library_.Host().Register(classes::kStandard, [] { return std::make_shared<Lenient>(); });
  EXPECT_FALSE(checker_->Check("standards").empty());
}

TEST_F(FaultyHost, WithoutThePortOrTheReportIsFoundOut) {
  EXPECT_FALSE(checker_->Check("serial port", {"no such device", nullptr, nullptr}).empty());
  EXPECT_FALSE(checker_->Check("report").empty());
  library_.Line().AnswerBy([](const std::string&) {});
  EXPECT_FALSE(checker_->Check("serial port", {"CHECK", nullptr, nullptr}).empty()) << "no answer";
}

}  // namespace
}  // namespace conformance
