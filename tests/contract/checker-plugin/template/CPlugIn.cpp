#include "tests/contract/checker-plugin/template/CPlugIn.h"

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

/// A container of the host's own class will do for a catalogue: it keeps order and finds by identifier.
std::shared_ptr<orvik::ITestContainer> NewCatalogue() {
  return NewHostObject<orvik::ITestContainer>(orvik::HostClasses::kTestContainer);
}

}  // namespace

std::shared_ptr<CPlugIn> CPlugIn::Create() {
  const std::shared_ptr<CPlugIn> created(new CPlugIn);
  created->catalogue_ = NewCatalogue();
  return created;
}

std::string CPlugIn::IObject_ClassID() const { return names::kPlugInClass; }

std::string CPlugIn::IPlugIn_ID() const { return names::kPlugInId; }

// Called first, and perhaps again: each time everything is built anew. `context` is the host's own affair.
void CPlugIn::IPlugIn_Initialize(std::shared_ptr<orvik::IObject> /*context*/) {
  name_ = Translated("30000::Visual inspection");

  const std::shared_ptr<orvik::ITestElement> inspection = CInspection::Create();
  // In a catalogue the element's identifier is that of its test, so that it can be found by it.
  inspection->Initialize(names::kPlugInId, names::kInspectionTest, names::kInspectionTest);
  inspection->Information()->SetDisplayName(Translated("30001::Visual inspection of the equipment"));

  catalogue_ = NewCatalogue();
  catalogue_->Add(inspection, {}, {});
  initialized_ = true;
}

// The host gets a copy and may do with it what it likes; the entry itself is never handed out.
std::shared_ptr<orvik::ITestElement> CPlugIn::IPlugIn_CreateTest(std::int32_t testId) {
  const auto entry = catalogue_->FindElement(testId);
  return entry ? entry->Clone() : nullptr;
}

}  // namespace check
