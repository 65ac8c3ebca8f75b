#include "tests/contract/checker-plugin/template/ClassTable.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "OrvikTypeLib/HostError.h"
#include "tests/contract/checker-plugin/checker/CHostChecker.h"
#include "tests/contract/checker-plugin/checker/XCheckControl.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/CInspectionResult.h"
#include "tests/contract/checker-plugin/template/CPlugIn.h"
#include "tests/contract/checker-plugin/template/Names.h"

namespace check {
namespace {

using Creator = std::shared_ptr<orvik::IObject> (*)();

template <class Class>
std::shared_ptr<orvik::IObject> New() {
  return Class::Create();
}

struct Entry {
  std::string_view identifier;
  Creator create;
  std::string_view purpose;
};

// One row for each class that the host creates: the plug-in object, the classes of elements (documents name
// them when they are loaded), the classes of results (a result is copied by creating a new one and loading
// it), and user controls. What only the plug-in creates stays out.
constexpr Entry kClasses[] = {
    {names::kPlugInClass, New<CPlugIn>, "The plug-in itself."},
    {names::kInspectionClass, New<CInspection>, "The test of the catalogue: a visual inspection."},
    {names::kResultClass, New<CInspectionResult>, "The outcome of an inspection."},
    // The template ends here. These rows make the plug-in a checker of hosts as well.
    {IHostChecker::kClassId, New<CHostChecker>, "Asks the host everything that a plug-in may ask."},
    {XCheckControl::kClassId, New<XCheckControl>, "A user control to place."},
};

constexpr auto kCount = static_cast<std::int32_t>(std::size(kClasses));

// Not std::tolower: an identifier must be found under every locale.
char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool SameIdentifier(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return Lower(a) == Lower(b); });
}

const Entry& EntryAt(std::int32_t index) {
  if (index < 1 || index > kCount)
    throw orvik::HostError(
        orvik::HostError::kSubscriptOutOfRange, names::kPlugInId,
        "class number " + std::to_string(index) + " is not between 1 and " + std::to_string(kCount));
  return kClasses[index - 1];
}

class ClassTable final : public orvik::IClassLibrary {
 private:
  std::int32_t IClassLibrary_Count() const override { return kCount; }
  std::string IClassLibrary_ClassIdentifier(std::int32_t index) const override {
    return std::string(EntryAt(index).identifier);
  }
  std::string IClassLibrary_Purpose(std::int32_t index) const override {
    return std::string(EntryAt(index).purpose);
  }
  std::shared_ptr<orvik::IObject> IClassLibrary_CreateObject(const std::string& classId) override {
    const auto* entry = std::find_if(std::begin(kClasses), std::end(kClasses), [&](const Entry& candidate) {
      return SameIdentifier(candidate.identifier, classId);
    });
    return entry == std::end(kClasses) ? nullptr : entry->create();
  }
};

}  // namespace

std::shared_ptr<orvik::IClassLibrary> NewClassTable() { return std::make_shared<ClassTable>(); }

}  // namespace check
