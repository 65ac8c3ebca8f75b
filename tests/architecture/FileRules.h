#pragma once

#include <string_view>

#include "tests/architecture/Finding.h"
#include "tests/architecture/SourceTree.h"

// Rules that one file keeps or breaks by itself.
namespace house {

/// At most 500 lines.
Findings LengthFindings(const SourceFile& file);

/// A header begins with `#pragma once`.
Findings HeaderGuardFindings(const SourceFile& file);

/// The library has `catch (...)` in plugin/base/Attempt.h and at the entry points only, where nothing may get
/// out.
Findings SwallowedErrorFindings(const SourceFile& file);

/// The library reaches another view of an object through OrvikTypeLib/As.h only.
Findings RawCastFindings(const SourceFile& file);

/// The library includes C++ standard headers only, and none that brings threads, locks, files or the C clock.
/// It asks its host or the platform for what it needs of the system.
Findings SystemHeaderFindings(const SourceFile& file);

/// The library's only time is the platform's: no clocks, no sleeps.
Findings ClockFindings(const SourceFile& file);

/// The simulated tester includes no library but C++ and the system's.
Findings TesterHeaderFindings(const SourceFile& file);

/// No marks of unfinished work.
Findings UnfinishedWorkFindings(const SourceFile& file);

/// No path that exists on one machine only: a home folder, or this working copy, `root`.
Findings MachinePathFindings(const SourceFile& file, std::string_view root);

}  // namespace house
