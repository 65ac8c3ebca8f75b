#pragma once

#include <cstdint>

/// The numbers and texts that host and plug-in exchange as plain integers and strings. Each list is in a
/// scope of its own and converts to the integer that the operations take.
namespace orvik {

/// `IResultData::Status`.
struct ResultStatus {
  enum Code : std::int32_t { kNotTested = 0, kPassed = 1, kFailed = 2, kNotApplicable = 3, kAborted = 4 };
};

/// `IMeasurement::Status`.
struct MeasurementStatus {
  enum Code : std::int32_t { kNotJudged = 0, kPassed = 1, kFailed = 2, kNotApplicable = 3 };
};

/// `IRunController::NavigationRequest`.
struct Navigation {
  enum Code : std::int32_t { kNext = 0, kPrevious = 1, kAbort = 2, kSkip = 3, kNotApplicable = 4 };
};

/// `IStandard::Evaluate`.
struct Judgement {
  enum Code : std::int32_t { kNothingToCheck = 0, kWithinLimits = 1, kLimitExceeded = 2 };
};

/// `IServiceRecord::Code`.
struct ServiceCode {
  static constexpr char kPassed[] = "P";
  static constexpr char kFailed[] = "F";
  static constexpr char kNotApplicable[] = "NA";

  /// The code of a result status; empty for a status that has no service record.
  static constexpr const char* Of(std::int32_t lResultStatus) {
    switch (lResultStatus) {
      case ResultStatus::kPassed:
        return kPassed;
      case ResultStatus::kFailed:
        return kFailed;
      case ResultStatus::kNotApplicable:
        return kNotApplicable;
      default:
        return "";
    }
  }
};

/// Bits of a test's options: which buttons the guide offers, and which leads are measured.
struct OptionBits {
  enum Code : std::int32_t {
    kOffersNotApplicable = 1,
    kOffersSkip = 2,
    kAllLeads = 4096,
    kAnyLead = 8188,  ///< lead 1 to 10, or all leads
    kEveryOption = 8191
  };

  /// The bit of a lead from 1 to 10.
  static constexpr std::int32_t Lead(std::int32_t lLead) { return 4 << (lLead - 1); }
};

}  // namespace orvik
