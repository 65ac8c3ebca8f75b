#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "OrvikTypeLib/IClassLibrary.h"
#include "OrvikTypeLib/IHost.h"
#include "OrvikTypeLib/Library.h"

namespace host::document {

/// A plug-in library that has been loaded and opened; closed with this object. Its code stays mapped, so that
/// a reference that is released later does not call unloaded code.
class PlugInLibrary {
 public:
  /// `HostError` 429 when the file cannot be loaded, is not a plug-in library, was built for another version
  /// of the contract, or refuses to open.
  PlugInLibrary(const std::filesystem::path& file, const std::shared_ptr<orvik::IHost>& host);
  PlugInLibrary(const PlugInLibrary&) = delete;
  PlugInLibrary& operator=(const PlugInLibrary&) = delete;
  ~PlugInLibrary();

  const std::shared_ptr<orvik::IClassLibrary>& Classes() const { return classes_; }
  /// Identifier of the plug-in object's class: the first that ends with "Plugin". `HostError` 429 without
  /// one.
  std::string PlugInClass() const;

 private:
  template <class Entry>
  Entry* Find(const char* name) const;
  [[noreturn]] void Refuse(const std::string& reason) const;

  std::filesystem::path file_;
  void* handle_ = nullptr;
  orvik::CloseLibraryEntry* close_ = nullptr;
  std::shared_ptr<orvik::IClassLibrary> classes_;
};

}  // namespace host::document
