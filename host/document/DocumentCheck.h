#pragma once

#include <string>
#include <vector>

#include "host/document/Findings.h"

namespace host::elements {
class ElementFactory;
}

namespace host::document {

/// Looks through a document as it is in its file and tells everything that is wrong with it, not only the
/// first thing. What the document's loader keeps without knowing it is a note.
/// @param factory knows the plug-ins, their classes and their catalogues
std::vector<Finding> CheckDocument(const std::string& bytes, elements::ElementFactory& factory);

}  // namespace host::document
