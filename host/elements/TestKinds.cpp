#include "host/elements/TestKinds.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/standards/ElementLimits.h"

namespace host::elements {

const TestKind& TestKinds::Of(const std::string& plugInId, std::int32_t testId, const std::string& classId) {
  const auto [known, added] = known_.try_emplace({testId, classId, plugInId});
  if (added) known->second = Learned(plugInId, testId, classId);
  return known->second;
}

TestKind TestKinds::Learned(const std::string& plugInId, std::int32_t testId,
                            const std::string& classId) const {
  TestKind kind;
  const auto plugIn = factory_.PlugIn(plugInId);
  const auto entry = plugIn ? plugIn->CreateTest(testId) : nullptr;
  const bool inCatalogue = entry && entry->TestID() == testId;
  const auto ofClass = orvik::As<orvik::ITestElement>(factory_.CreateObject(classId));
  const auto& shown = inCatalogue ? entry : ofClass;
  kind.readable = ofClass || (inCatalogue && classId.empty());
  kind.sequence = orvik::As<orvik::ITestContainer>(classId.empty() ? shown : ofClass) != nullptr;
  if (!plugIn)
    kind.fault = Tr("its plug-in \"%%1\" is missing", {plugInId});
  else if (!kind.readable)
    kind.fault = Tr("its class \"%%1\" is not known", {classId});
  else if (!inCatalogue)
    kind.fault = Tr("the catalogue has no test %%1", {std::to_string(testId)});
  else if (ofClass && LowerAscii(entry->ClassID()) != LowerAscii(ofClass->ClassID()))
    kind.fault = Tr("it is of the class \"%%1\", the catalogue's test %%2 of \"%%3\"",
                    {classId, std::to_string(testId), entry->ClassID()});
  else if (const auto limits = entry->Limits())
    kind.unit = standards::RecordedUnit(*limits);
  return kind;
}

}  // namespace host::elements
