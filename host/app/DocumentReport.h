#pragma once

#include <memory>

#include "host/report/ReportObject.h"

namespace bench {

class Document;
class Host;

/// Prints a document: the equipment, the tester, a list of all elements with verdict, reading and doubts,
/// then each element in full.
void PrintDocument(const Document& document, Host& host, const std::shared_ptr<ReportObject>& report);

}  // namespace bench
