#pragma once

#include <string>
#include <vector>

#include "host/judge/Case.h"
#include "host/judge/Verdict.h"

namespace host::document {
class Document;
}
namespace host::elements {
class ElementFactory;
}

namespace host::judge {

/// The judge's input for a document. Refers to the document's runs, which must outlive it.
/// @param selected the standards of this view; empty for every standard that an element names
Case CaseOf(const document::Document& document, const elements::ElementFactory& factory,
            std::vector<std::string> selected = {});

/// Judges a document as it is now.
JudgedDocument Judge(const document::Document& document, const elements::ElementFactory& factory,
                     std::vector<std::string> selected = {});

}  // namespace host::judge
