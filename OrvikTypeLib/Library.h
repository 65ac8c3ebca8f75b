#pragma once

#include <cstdint>
#include <memory>

namespace orvik {

class IHost;
class IClassLibrary;

/// The version of this contract. A host refuses a library of another version.
inline constexpr std::uint32_t kContractVersion = 1;

/// Names of the three entry points. A plug-in library exports these and nothing else, with C linkage.
inline constexpr char kContractVersionEntry[] = "OrvikContractVersion";
inline constexpr char kOpenLibraryEntry[] = "OrvikOpenLibrary";
inline constexpr char kCloseLibraryEntry[] = "OrvikCloseLibrary";

/// `OrvikContractVersion`: the contract version that the library was built for. Called first.
using ContractVersionEntry = std::uint32_t();
/// `OrvikOpenLibrary`: hands the library its host and sets `Library` to its classes; empty when it cannot
/// work. Throws nothing.
using OpenLibraryEntry = void(const std::shared_ptr<IHost>& Host, std::shared_ptr<IClassLibrary>& Library);
/// `OrvikCloseLibrary`: the library releases the host and its shared objects. No object of it may be
/// used afterwards.
using CloseLibraryEntry = void();

}  // namespace orvik
