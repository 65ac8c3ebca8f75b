#pragma once

#include <string>
#include <vector>

#include "host/document/Findings.h"

namespace host::elements {
class ElementFactory;
}

namespace host::document {

/// Checks a document as it is in its file and reports every problem, not only the
/// first thing. What the document's loader keeps without knowing it is a note.
/// @param factory knows the plug-ins, their classes and their catalogues
std::vector<Finding> CheckDocument(const std::string& bytes, elements::ElementFactory& factory);

}  // namespace host::document
