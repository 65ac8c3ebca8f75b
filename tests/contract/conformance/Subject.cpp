#include "tests/contract/conformance/Subject.h"

namespace conformance {
namespace {

constexpr char kSmallCatalogue[] = R"(<TemplateData>
  <TestElement ID="400">
    <Name LID="30100::Protective earth"/><Unit LID="30101::mOhm"/>
    <TestElement ID="410"><Name LID="30102::With cord"/><Unit LID="30101::mOhm"/></TestElement>
    <TestElement ID="420"><Name LID="30103::Without cord"/><Unit LID="30101::mOhm"/></TestElement>
  </TestElement>
  <TestElement ID="210"><Type LID="30104::Mains voltage"/><Unit LID="30105::V"/></TestElement>
</TemplateData>)";

}  // namespace

Subject KeldPlugIn() { return {"Keld", PLUGIN_PATH, "KELD(IN)", kSmallCatalogue, 410}; }

Subject CheckerPlugIn() { return {"Checker", CHECKER_PATH, "CHECK", std::nullopt, 10}; }

}  // namespace conformance
