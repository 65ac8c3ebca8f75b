#include "plugin/ClassLibrary.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "OrvikTypeLib/HostError.h"
#include "instrument/CKELDMeasurement.h"
#include "instrument/FCalibrateLeads.h"
#include "instrument/XKELDData.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/CKELDPlugin.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "plugin/configuration/FElementSetup.h"
#include "plugin/configuration/XKELDSeqConfiguration.h"
#include "plugin/configuration/XKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"
#include "results/XDetailedResult.h"
#include "results/XKELDResultView.h"

namespace keld::plugin {
namespace {

template <class Class>
std::shared_ptr<orvik::IObject> New() {
  return Class::Create();
}

struct Entry {
  const char* sIdentifier;
  std::shared_ptr<orvik::IObject> (*pCreate)();
  const char* sPurpose;
};

constexpr Entry kClasses[] = {
    {ClassIdentifiers::kPlugin, New<CKELDPlugin>,
     "The plug-in itself: identity, icons, catalogue, new tests."},
    {ClassIdentifiers::kTestElement, New<model::CKELDTestElement>, "One test of the catalogue."},
    {ClassIdentifiers::kSequence, New<model::CKELDSequence>, "A group of tests, run one after the other."},
    {ClassIdentifiers::kTestConfiguration, New<configuration::CKELDTestConfiguration>,
     "Settings of one element: guide buttons, leads, kept values."},
    {ClassIdentifiers::kLimitData, New<results::CKELDLimitData>,
     "The limits that a measured value is judged by."},
    {ClassIdentifiers::kResultData, New<results::CKELDResultData>, "The stored outcome of one element."},
    {ClassIdentifiers::kMeasurement, New<instrument::CKELDMeasurement>,
     "One measured value with unit, flags and status."},
    {ClassIdentifiers::kTestConfigurationControl, New<configuration::XKELDTestConfiguration>,
     "Control that edits the settings of a single test."},
    {ClassIdentifiers::kSequenceConfigurationControl, New<configuration::XKELDSeqConfiguration>,
     "Control that edits the settings of a group."},
    {ClassIdentifiers::kDataControl, New<instrument::XKELDData>,
     "Control that shows which tester is connected."},
    {ClassIdentifiers::kResultView, New<results::XKELDResultView>,
     "Control that lists values, limits and verdicts."},
    {ClassIdentifiers::kDetailedResult, New<results::XDetailedResult>,
     "Control that shows the operator's comment."},
    {ClassIdentifiers::kElementSetup, New<configuration::FElementSetup>,
     "Dialog around one of the editing controls."},
    {ClassIdentifiers::kCalibrateLeads, New<instrument::FCalibrateLeads>,
     "Dialog that measures the test lead's resistance."},
};

const Entry& EntryAt(std::int32_t lIndex) {
  if (lIndex < 1 || lIndex > static_cast<std::int32_t>(std::size(kClasses))) {
    throw orvik::HostError(orvik::HostError::kSubscriptOutOfRange, MKELDConstants::kPlugInID,
                           "class number " + std::to_string(lIndex) + " is not between 1 and " +
                               std::to_string(std::size(kClasses)));
  }
  return kClasses[lIndex - 1];
}

// Not std::toupper, which depends on the locale.
char ToUpper(char sLetter) {
  return sLetter >= 'a' && sLetter <= 'z' ? static_cast<char>(sLetter - 'a' + 'A') : sLetter;
}

bool SameIdentifier(std::string_view sLeft, std::string_view sRight) {
  return std::equal(sLeft.begin(), sLeft.end(), sRight.begin(), sRight.end(),
                    [](char sA, char sB) { return ToUpper(sA) == ToUpper(sB); });
}

}  // namespace

std::int32_t ClassLibrary::IClassLibrary_Count() const {
  return static_cast<std::int32_t>(std::size(kClasses));
}

std::string ClassLibrary::IClassLibrary_ClassIdentifier(std::int32_t lIndex) const {
  return EntryAt(lIndex).sIdentifier;
}

std::string ClassLibrary::IClassLibrary_Purpose(std::int32_t lIndex) const {
  return EntryAt(lIndex).sPurpose;
}

std::shared_ptr<orvik::IObject> ClassLibrary::IClassLibrary_CreateObject(const std::string& sClassID) {
  for (const Entry& entry : kClasses) {
    if (SameIdentifier(entry.sIdentifier, sClassID)) return entry.pCreate();
  }
  return {};
}

}  // namespace keld::plugin
