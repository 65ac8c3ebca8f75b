#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/architecture/Finding.h"
#include "tests/architecture/SourceTree.h"

namespace house {

/// Each folder with the folders that it may include, as the build declares them (`orvik_folder` in the CMake
/// files).
using Arrows = std::map<std::string, std::set<std::string, std::less<>>, std::less<>>;

/// From lines "folder used-folder...", as the build writes them into folders.txt.
Arrows ReadArrows(std::string_view text);

/// Includes against the arrows, includes that name no file of the repository, and files in no declared
/// folder. Tests, benchmarks and fuzz targets may include everything; the plug-in's folders may include
/// `model/IKELDTest.h`, the interface by which they drive a test.
Findings ArrowFindings(const std::vector<SourceFile>& files, const Arrows& arrows);

/// Includes by which the judge could look at anything but a document and its records: files, the wire,
/// windows, the clock. Only `CaseOf`, which gathers the plain data, may look at documents.
Findings JudgeFindings(const std::vector<SourceFile>& files);

/// Files that include themselves by way of others.
Findings CircleFindings(const std::vector<SourceFile>& files);

}  // namespace house
