#pragma once

#include <string>

#include "host/xml/XmlDocument.h"

namespace host::xml {

/// A text of an XML file as UTF-8.
struct Decoded {
  std::string text;      ///< without a byte order mark; as far as it could be converted
  std::string encoding;  ///< that the file has, such as "ISO-8859-1"; empty for UTF-8
  Fault fault;           ///< its place is in `text`; without a reason when all of it was converted
};

/// Converts a file's bytes by their byte order mark, by how UTF-16 and UTF-32 begin, or by the XML
/// declaration: ISO-8859 (all parts), Windows 125x, UTF-16 and UTF-32. Other encodings, and bytes that are
/// not text in the file's encoding, are a fault.
Decoded Decode(std::string bytes);

}  // namespace host::xml
