#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// The text of a document with its top-level elements cut out in pieces, so that a large document is read a
/// piece at a time and never stands in memory as a whole tree.
///
/// It is cut by the look of its lines, without parsing: when a piece can be parsed as whole elements with
/// nothing else around them, a parser of the whole text would have come to the same elements, since that
/// reads from left to right, too. What does not look as documents are saved is not cut.
class CutDocument {
 public:
  /// @param text must outlive this object
  explicit CutDocument(std::string_view text);

  /// Runs of elements, in order; none when the text was not cut.
  const std::vector<std::string_view>& Pieces() const { return pieces_; }
  /// The text around the elements.
  const std::string& Frame() const { return frame_; }
  /// Whether this node, of the parsed frame, is the one whose elements were cut out: the tag might as well
  /// have stood in a comment.
  bool WasCutFrom(pugi::xml_node node) const { return node.offset_debug() == tag_; }

 private:
  std::vector<std::string_view> pieces_;
  std::string frame_;
  std::ptrdiff_t tag_ = 0;
};

}  // namespace bench
