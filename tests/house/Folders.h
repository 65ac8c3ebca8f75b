#pragma once

#include "tests/house/Finding.h"
#include "tests/house/SourceTree.h"

namespace house {

/// Includes that run against the arrows between the folders, or that name no file of the repository.
Findings FolderFindings(const std::vector<SourceFile>& files);

/// Includes inside the plug-in that reach up into a higher room, and plug-in files that have no room.
///
/// The rooms, from the lowest: constants and services; instrument link, clock, data and calibration;
/// configuration; limits, measurement and results; the operator's windows; the test model; the plug-in object
/// and the class library.
Findings RoomFindings(const std::vector<SourceFile>& files);

/// Includes by which the judge could look at anything else than a document and its records: files, the wire,
/// windows, the clock. Its procedure over plain data may not even look at documents.
Findings JudgeFindings(const std::vector<SourceFile>& files);

/// Files that include themselves by way of others.
Findings CircleFindings(const std::vector<SourceFile>& files);

}  // namespace house
