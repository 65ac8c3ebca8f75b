#pragma once

#include <string>
#include <vector>

#include "host/judge/Case.h"
#include "host/judge/Verdict.h"

namespace bench {
class Document;
class ElementFactory;
}  // namespace bench

namespace bench::judge {

/// The judge's input for a document. Refers to the document's runs, which must outlive it.
/// @param selected the standards of this view; empty for every standard that an element names
Case CaseOf(const Document& document, const ElementFactory& factory, std::vector<std::string> selected = {});

/// Judges a document as it is now.
JudgedDocument Judge(const Document& document, const ElementFactory& factory,
                     std::vector<std::string> selected = {});

}  // namespace bench::judge
