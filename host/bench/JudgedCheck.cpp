#include "host/bench/JudgedCheck.h"

#include <algorithm>
#include <array>
#include <map>
#include <pugixml.hpp>
#include <string_view>

#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/elements/ElementTags.h"
#include "host/judge/ReasonText.h"
#include "host/xml/XmlDocument.h"

namespace host::bench {

namespace {

/// Reasons that show a contradiction within the document.
constexpr std::array<std::string_view, 8> kContradictions{
    "not-recorded", "other-status", "other-reading",      "service-code",
    "limit-unit",   "limit-key",    "arithmetic-differs", "judged-differently"};
/// Reasons that `CheckDocument` reports where they are.
constexpr std::array<std::string_view, 2> kKnownAlready{"record-changed", "unknown-test"};

template <std::size_t N>
bool Holds(const std::array<std::string_view, N>& codes, const std::string& code) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

class Elements final : public pugi::xml_tree_walker {
 public:
  std::map<std::int32_t, pugi::xml_node> byId;

  bool for_each(pugi::xml_node& node) override {
    if (std::string_view(node.name()) == elements::tags::kTestElement)
      if (const auto id = WholeNumber(node.attribute(elements::tags::kID).value()))
        byId.try_emplace(*id, node);
    return true;
  }
};

}  // namespace

std::vector<document::Finding> CheckJudged(const std::string& text, const judge::JudgedDocument& judged) {
  pugi::xml_document xml;
  if (!xml::Parse(text, xml).reason.empty()) return {};
  Elements elements;
  xml.traverse(elements);
  document::Findings findings(text);
  for (const auto& element : judged.elements) {
    const auto node = elements.byId.find(element.id);
    if (node == elements.byId.end()) continue;
    for (const auto& reason : element.reasons) {
      const auto sentence = Tr("element %%1: %%2", {std::to_string(element.id), judge::ReasonText(reason)});
      if (Holds(kContradictions, reason.code))
        findings.Wrong(node->second, sentence);
      else if (element.verdict == judge::Verdict::kDoubtful && !Holds(kKnownAlready, reason.code))
        findings.Note(node->second, sentence);
    }
  }
  return findings.InOrder();
}

}  // namespace host::bench
