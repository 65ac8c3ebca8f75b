#pragma once

#include <memory>
#include <string>

namespace orvik {
class ITestContainer;
}

namespace keld::plugin {

/// Builds the catalogue of tests from its XML: below "TemplateData" each "TestElement" becomes a sequence
/// (identifier a multiple of 100) with its members, or a single test.
///
/// Faults are logged and skipped; no error is raised. Nesting may be of any depth.
/// @param sXml the text of the settings value "Configuration"
/// @return the root container, without entries if the text is not a catalogue
std::shared_ptr<orvik::ITestContainer> BuildCatalogue(const std::string& sXml);

}  // namespace keld::plugin
