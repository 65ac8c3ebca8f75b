#include "host/pdf/PdfFile.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <map>
#include <stdexcept>

#include "host/report/VisibleText.h"

namespace bench::pdf {
namespace {

[[noreturn]] void Refuse(const char* reason) {
  throw std::runtime_error(std::string("the PDF file cannot be completed: ") + reason);
}

std::size_t Find(const std::string& text, const std::string& what, std::size_t from = 0) {
  const auto at = text.find(what, from);
  if (at == std::string::npos) Refuse(("it has no " + what).c_str());
  return at;
}

/// The whole number at the place, blanks before it passed over; the place behind it.
std::size_t NumberAt(const std::string& text, std::size_t& at) {
  while (at < text.size() && (text[at] == ' ' || text[at] == '\n' || text[at] == '\r')) ++at;
  std::size_t number = 0;
  const auto read = std::from_chars(text.data() + at, text.data() + text.size(), number);
  if (read.ec != std::errc()) Refuse("a number is missing");
  at = static_cast<std::size_t>(read.ptr - text.data());
  return number;
}

std::size_t NumberAfter(const std::string& text, const std::string& what) {
  auto at = Find(text, what) + what.size();
  return NumberAt(text, at);
}

std::string Reference(std::size_t object) { return std::to_string(object) + " 0 R"; }

std::string Points(double number) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed, 1).ptr;
  return {buffer, end};
}

/// A text string: UTF-16 in hexadecimal digits, which needs no escaping.
std::string TextString(const std::string& utf8) {
  std::string text = "<FEFF";
  const auto unit = [&text](unsigned code) {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%04X", code);
    text += digits;
  };
  for (const auto letter : report::CodePoints(utf8)) {
    if (letter < 0x10000) {
      unit(static_cast<unsigned>(letter));
    } else {
      unit(0xD800U + ((static_cast<unsigned>(letter) - 0x10000U) >> 10));
      unit(0xDC00U + ((static_cast<unsigned>(letter) - 0x10000U) & 0x3FFU));
    }
  }
  return text + ">";
}

/// "2026-11-21T14:03:22+01:00" as "D:20261121140322+01'00'"; empty for anything else.
std::string DateString(const std::string& date) {
  if (date.size() != 25) return {};
  std::string digits;
  for (const auto at : {0, 2, 5, 8, 11, 14, 17}) digits += date.substr(static_cast<std::size_t>(at), 2);
  return "(D:" + digits + date.substr(19, 3) + "'" + date.substr(23, 2) + "')";
}

/// The objects of a PDF file by their numbers, ready to be written again.
class Objects {
 public:
  explicit Objects(const std::string& pdf) {
    const auto table = NumberAfter(pdf, "\nstartxref");
    if (table >= pdf.size() || pdf.compare(table, 4, "xref") != 0)
      Refuse("its table of objects is not where it should be");
    auto at = table + 4;
    const auto first = NumberAt(pdf, at), count = NumberAt(pdf, at);
    std::map<std::size_t, std::size_t> byOffset;
    for (std::size_t number = first; number < first + count; ++number) {
      const auto offset = NumberAt(pdf, at);
      NumberAt(pdf, at);
      at = pdf.find_first_of("nf", at);
      if (at == std::string::npos) Refuse("its table of objects is cut off");
      if (pdf[at++] == 'n') byOffset[offset] = number;
    }
    if (byOffset.empty()) Refuse("it has no objects");
    head_ = pdf.substr(0, byOffset.begin()->first);
    for (auto object = byOffset.begin(); object != byOffset.end(); ++object) {
      const auto next = std::next(object);
      const auto end = next == byOffset.end() ? table : next->first;
      bodies_[object->second] = pdf.substr(object->first, end - object->first);
    }
    const auto trailer = pdf.substr(Find(pdf, "trailer", table));
    root_ = NumberAfter(trailer, "/Root");
    info_ = NumberAfter(trailer, "/Info");
  }

  std::size_t Root() const { return root_; }
  std::size_t Info() const { return info_; }
  std::string& At(std::size_t number) {
    const auto found = bodies_.find(number);
    if (found == bodies_.end()) Refuse("an object is missing");
    return found->second;
  }
  std::size_t Next() const { return bodies_.rbegin()->first + 1; }
  void Set(std::size_t number, const std::string& dictionary) {
    bodies_[number] = std::to_string(number) + " 0 obj\n<<\n" + dictionary + ">>\nendobj\n";
  }

  std::string Write() const {
    std::string pdf = head_;
    std::string table = "xref\n0 " + std::to_string(Next()) + "\n0000000000 65535 f \n";
    std::size_t expected = 1;
    for (const auto& [number, body] : bodies_) {
      for (; expected < number; ++expected) table += "0000000000 65535 f \n";
      ++expected;
      char entry[32];
      std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", pdf.size());
      table += entry;
      pdf += body;
    }
    const auto at = pdf.size();
    return pdf + table + "trailer\n<<\n/Size " + std::to_string(Next()) + "\n/Info " + Reference(info_) +
           "\n/Root " + Reference(root_) + "\n>>\nstartxref\n" + std::to_string(at) + "\n%%EOF\n";
  }

 private:
  std::string head_;
  std::map<std::size_t, std::string> bodies_;
  std::size_t root_ = 0;
  std::size_t info_ = 0;
};

std::vector<std::size_t> PagesOf(Objects& objects) {
  const auto tree = objects.At(NumberAfter(objects.At(objects.Root()), "/Pages"));
  auto at = Find(tree, "[", Find(tree, "/Kids")) + 1;
  const auto end = Find(tree, "]", at);
  std::vector<std::size_t> pages;
  while (tree.find_first_of("0123456789", at) < end) {
    pages.push_back(NumberAt(tree, at));
    at = Find(tree, "R", at) + 1;
  }
  return pages;
}

/// Adds the tree of bookmarks; the number of its root.
std::size_t AddOutlines(Objects& objects, const std::vector<Bookmark>& bookmarks, double pageHeight) {
  const auto pages = PagesOf(objects);
  const auto root = objects.Next();
  const auto numberOf = [root](std::size_t index) { return root + 1 + index; };
  const auto none = bookmarks.size();
  std::vector<std::size_t> parent(none, none), previous(none, none), next(none, none);
  std::vector<std::size_t> first(none + 1, none), last(none + 1, none), count(none + 1, 0);
  std::vector<std::size_t> open;  // the last one on each level
  for (std::size_t i = 0; i < none; ++i) {
    open.resize(std::min(open.size(), static_cast<std::size_t>(std::max(bookmarks[i].level, 0))));
    parent[i] = open.empty() ? none : open.back();
    if (last[parent[i]] != none) {
      previous[i] = last[parent[i]];
      next[previous[i]] = i;
    } else {
      first[parent[i]] = i;
    }
    last[parent[i]] = i;
    ++count[parent[i]];
    open.push_back(i);
  }
  const auto children = [&](std::size_t index) {
    if (first[index] == none) return std::string();
    // A negative count is that of a branch that is shown closed.
    return "/First " + Reference(numberOf(first[index])) + "\n/Last " + Reference(numberOf(last[index])) +
           "\n/Count " + (index == none ? "" : "-") + std::to_string(count[index]) + "\n";
  };
  objects.Set(root, "/Type /Outlines\n" + children(none));
  for (std::size_t i = 0; i < none; ++i) {
    if (bookmarks[i].page >= pages.size()) Refuse("a bookmark points beyond its pages");
    auto item = "/Title " + TextString(bookmarks[i].title) + "\n/Parent " +
                Reference(parent[i] == none ? root : numberOf(parent[i])) + "\n/Dest [" +
                Reference(pages[bookmarks[i].page]) + " /XYZ 0 " + Points(pageHeight - bookmarks[i].fromTop) +
                " 0]\n";
    if (previous[i] != none) item += "/Prev " + Reference(numberOf(previous[i])) + "\n";
    if (next[i] != none) item += "/Next " + Reference(numberOf(next[i])) + "\n";
    objects.Set(numberOf(i), item + children(i));
  }
  return root;
}

}  // namespace

std::string Completed(const std::string& pdf, const Properties& properties,
                      const std::vector<Bookmark>& bookmarks) {
  Objects objects(pdf);
  auto info = "/Title " + TextString(properties.title) + "\n/Creator (orvik-bench)\n";
  if (const auto date = DateString(properties.created); !date.empty())
    info += "/CreationDate " + date + "\n/ModDate " + date + "\n";
  objects.Set(objects.Info(), info);

  std::string more = "/ViewerPreferences << /DisplayDocTitle true >>\n";
  if (!properties.language.empty()) more += "/Lang " + TextString(properties.language) + "\n";
  if (!bookmarks.empty())
    more += "/Outlines " + Reference(AddOutlines(objects, bookmarks, properties.pageHeight)) +
            "\n/PageMode /UseOutlines\n";
  auto& catalog = objects.At(objects.Root());
  catalog.insert(Find(catalog, "<<") + 2, "\n" + more);
  return objects.Write();
}

}  // namespace bench::pdf
