#include "host/report/pdf/PdfFile.h"

#include <algorithm>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

namespace host::report::pdf {
namespace {

using Object = QPDFObjectHandle;

/// "2026-11-21T14:03:22+01:00" as "D:20261121140322+01'00'"; empty for anything else.
std::string PdfDate(const std::string& date) {
  if (date.size() != 25) return {};
  auto digits = date.substr(0, 19);
  std::erase_if(digits, [](char letter) { return letter == '-' || letter == 'T' || letter == ':'; });
  return "D:" + digits + date.substr(19, 3) + "'" + date.substr(23, 2) + "'";
}

/// Appends the item to the children of `parent`. Only the first level of the outline is shown open.
void Append(Object item, Object parent, bool open) {
  item.replaceKey("/Parent", parent);
  if (parent.hasKey("/Last")) {
    item.replaceKey("/Prev", parent.getKey("/Last"));
    parent.getKey("/Last").replaceKey("/Next", item);
  } else {
    parent.replaceKey("/First", item);
    parent.replaceKey("/Count", Object::newInteger(0));
  }
  parent.replaceKey("/Last", item);
  const auto count = parent.getKey("/Count").getIntValue();
  parent.replaceKey("/Count", Object::newInteger(count + (open ? 1 : -1)));
}

Object Outline(QPDF& file, const std::vector<Bookmark>& bookmarks, double pageHeight) {
  const auto pages = file.getAllPages();
  auto outline = file.makeIndirectObject(Object::newDictionary({{"/Type", Object::newName("/Outlines")}}));
  std::vector<Object> path{outline};
  for (const auto& bookmark : bookmarks) {
    path.resize(std::min(path.size(), static_cast<std::size_t>(bookmark.level) + 1));
    const auto place =
        Object::newArray({pages.at(bookmark.page), Object::newName("/XYZ"), Object::newInteger(0),
                          Object::newReal(pageHeight - bookmark.fromTop, 1), Object::newInteger(0)});
    auto item = file.makeIndirectObject(
        Object::newDictionary({{"/Title", Object::newUnicodeString(bookmark.title)}, {"/Dest", place}}));
    Append(item, path.back(), path.size() == 1);
    path.push_back(item);
  }
  return outline;
}

}  // namespace

std::string Completed(const std::string& pdf, const Properties& properties,
                      const std::vector<Bookmark>& bookmarks) {
  QPDF file;
  file.processMemoryFile("report", pdf.data(), pdf.size());
  auto info = file.getTrailer().getKey("/Info");
  for (const auto* key : {"/CreationDate", "/ModDate"}) {
    info.removeKey(key);
    if (const auto date = PdfDate(properties.created); !date.empty())
      info.replaceKey(key, Object::newString(date));
  }
  auto catalog = file.getRoot();
  catalog.replaceKey("/ViewerPreferences",
                     Object::newDictionary({{"/DisplayDocTitle", Object::newBool(true)}}));
  if (!properties.language.empty())
    catalog.replaceKey("/Lang", Object::newUnicodeString(properties.language));
  if (!bookmarks.empty()) {
    catalog.replaceKey("/Outlines", Outline(file, bookmarks, properties.pageHeight));
    catalog.replaceKey("/PageMode", Object::newName("/UseOutlines"));
  }
  QPDFWriter writer(file);
  writer.setOutputMemory();
  writer.setStreamDataMode(qpdf_s_preserve);
  writer.setDeterministicID(true);
  writer.write();
  const auto bytes = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

}  // namespace host::report::pdf
