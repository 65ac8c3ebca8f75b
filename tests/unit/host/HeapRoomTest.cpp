#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <memory>
#include <string>

#include "host/base/HeapRoom.h"
#include "host/xml/XmlDocument.h"

#ifndef __SANITIZE_ADDRESS__  // whose heap gives nothing back

namespace bench {
namespace {

constexpr std::size_t kMiB = 1024 * 1024;

/// The bytes of memory that the process has from the system.
std::size_t Resident() {
  std::size_t all = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

std::string LargeText() {
  std::string text = "<a>";
  while (text.size() < 12 * kMiB) text += "<b c=\"" + std::string(20, 'x') + "\"/>";
  return text + "</a>";
}

TEST(HeapRoom, GoesBackToTheSystemWhenTheDocumentIsClosed) {
  const auto text = LargeText();
  const auto before = Resident();
  {
    XmlDocument document;
    ASSERT_TRUE(static_cast<orvik::IXmlDocument&>(document).LoadFromString(text));
    EXPECT_GT(Resident(), before + 30 * kMiB) << "the document is too small to show anything";
  }
  EXPECT_LT(Resident(), before + 10 * kMiB);
}

TEST(HeapRoom, IsDoneWithoutWhereTheSystemHasNoSuchRoom) {
  const HeapRoom room(std::size_t{1} << 60);
  const auto object = std::make_unique<std::string>(kMiB, 'x');
  EXPECT_EQ(object->size(), kMiB);
}

}  // namespace
}  // namespace bench

#endif
