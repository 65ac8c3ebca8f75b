#pragma once

#include "tests/house/Finding.h"
#include "tests/house/SourceTree.h"

namespace house {

/// Files of more than 500 lines.
Findings LengthFindings(const std::vector<SourceFile>& files);

/// Headers whose first line is not `#pragma once`.
Findings HeaderGuardFindings(const std::vector<SourceFile>& files);

/// `catch (...)` inside the library, elsewhere than in plugin/Attempt.h and at the entry points, where
/// nothing may get out.
Findings SwallowedErrorFindings(const std::vector<SourceFile>& files);

/// Casts to another view of an object inside the library, elsewhere than in OrvikTypeLib/As.h.
Findings RawCastFindings(const std::vector<SourceFile>& files);

/// Headers inside the library that are no C++ standard headers, or that bring threads, locks or the C clock.
/// Whatever the library needs of the system it asks of its host or of the platform.
Findings SystemHeaderFindings(const std::vector<SourceFile>& files);

/// Clocks and sleeps inside the library, whose only time is the platform's.
Findings ClockFindings(const std::vector<SourceFile>& files);

/// Headers in tester/ that come neither from C++ nor from the system.
Findings TesterHeaderFindings(const std::vector<SourceFile>& files);

/// Marks of unfinished work in comments.
Findings UnfinishedWorkFindings(const std::vector<SourceFile>& files);

/// Paths that are there on one machine only: a home folder, or this working copy's own place, `root`.
Findings MachinePathFindings(const std::vector<SourceFile>& files, std::string_view root);

}  // namespace house
