#include "host/bench/RecordOnlyMark.h"

#include <string>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimitData.h"
#include "host/base/Tr.h"
#include "host/bench/DocumentElements.h"
#include "host/bench/InputError.h"
#include "host/document/ElementState.h"
#include "host/elements/ElementFactory.h"
#include "host/elements/UnknownElement.h"
#include "host/standards/ElementLimits.h"

namespace host::bench {

bool IsRecordOnly(const std::shared_ptr<orvik::ITestElement>& element,
                  const elements::ElementFactory& factory) {
  const auto state = document::StateOf(element, factory);
  return state && state->RecordOnly();
}

void MarkRecordOnly(const std::shared_ptr<orvik::ITestElement>& element,
                    const elements::ElementFactory& factory, bool recordOnly) {
  const auto state = document::StateOf(element, factory);
  // An unknown element is saved as it was read, so a new mark would be lost.
  if (!state || orvik::As<elements::UnknownElement>(element))
    throw InputError(Tr("%%1 cannot be marked: its plug-in is missing", {NameWithNumber(*element, factory)}));
  const auto limits = element->Limits();
  if (recordOnly && limits) {
    if (const auto present = standards::LimitsOf(*limits); !present.empty())
      throw InputError(Tr(
          "--record-only: %%1 has a limit of %%2; remove its limits first: limit FILE --element %%3 --remove",
          {NameWithNumber(*element, factory), present.front().standard, std::to_string(element->ID())}));
  }
  state->SetRecordOnly(recordOnly);
}

}  // namespace host::bench
