#pragma once

#include <string>

namespace orvik {
class ITestElement;
}

namespace keld::results {

/// The name of an element as shown to the operator: the texts of its `Info`, translated where they are
/// language strings, with a blank between them; empty parts ("::") are left out. A host error passes to the
/// caller.
std::string ElementName(const orvik::ITestElement& iteElement);

}  // namespace keld::results
