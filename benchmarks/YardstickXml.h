#pragma once

#include <string>

namespace benchmarks {

/// What the XML library alone takes for a text: to parse it and visit every attribute, in seconds.
double ParseAndVisitSeconds(const std::string& text);

/// What it alone takes to write the parsed text into memory, in seconds.
double WriteSeconds(const std::string& text);

}  // namespace benchmarks
