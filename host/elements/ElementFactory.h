#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/elements/WrappedElements.h"

namespace host::elements {

/// Errors inside elements, for the document: a plug-in's element in between ignores errors step by step, so
/// they would be lost otherwise.
class Problems {
 public:
  struct Problem {
    std::string reason;
    /// Byte offset in the document's source; -1 for unknown.
    std::ptrdiff_t offset = -1;
  };

  void Note(std::string reason, std::ptrdiff_t offset = -1) { all_.push_back({std::move(reason), offset}); }
  void Clear() { all_.clear(); }
  const std::vector<Problem>& All() const { return all_; }

 private:
  std::vector<Problem> all_;
};

/// Creates elements for documents, and knows which base element a plug-in's element wraps.
class ElementFactory {
 public:
  using Classes = std::function<std::shared_ptr<orvik::IObject>(const std::string& classId)>;

  /// How a saved element identifies itself.
  struct Identity {
    std::string_view plugInId;
    std::int32_t testId = 0;
    /// Class identifier of the outermost element.
    std::string_view classId;
  };

  /// @param classes creates an object by class identifier; empty or `HostError` for an unknown one
  explicit ElementFactory(Classes classes) : classes_(std::move(classes)) {}

  /// Adds an initialised plug-in; one with the same identifier is replaced.
  void AddPlugIn(const std::shared_ptr<orvik::IPlugIn>& plugIn);
  std::vector<std::shared_ptr<orvik::IPlugIn>> PlugIns() const { return plugIns_; }
  /// The plug-in with that identifier, or empty.
  std::shared_ptr<orvik::IPlugIn> PlugIn(std::string_view id) const;
  /// Releases all plug-ins and everything that was created by them.
  void ReleasePlugIns();
  /// To be called when the catalogue of a plug-in has changed.
  void ForgetPrototypes() { prototypes_.clear(); }

  /// A new object of the class; empty for an unknown class.
  std::shared_ptr<orvik::IObject> CreateObject(const std::string& classId) const;

  /// An element without children, ready to load what was saved: a copy of the catalogue's entry if that is of
  /// the class, since only the catalogue knows its unit; else a new element of the class. Empty when neither
  /// is known.
  std::shared_ptr<orvik::ITestElement> CreateForLoad(const Identity& identity);

  /// The base element behind an element: itself, or the one that it wraps; empty when there is none.
  std::shared_ptr<orvik::IBaseElement> BaseOf(const std::shared_ptr<orvik::ITestElement>& element) const;

  /// The base elements that plug-ins' elements wrap; they are not kept alive.
  WrappedElements& Wrapped() { return wrapped_; }

  Problems& Trouble() { return problems_; }

 private:
  struct Prototype {
    std::shared_ptr<orvik::ITestElement> element;
    std::string classId;
  };

  std::shared_ptr<orvik::ITestElement> FromCatalogue(const Identity& identity);
  /// Null when the plug-in is not known.
  const Prototype* PrototypeOf(const Identity& identity);

  /// Which entry of which catalogue.
  struct Entry {
    std::int32_t testId = 0;
    std::string plugInId;
  };
  struct EntryOrder {
    using is_transparent = void;
    bool operator()(const auto& left, const auto& right) const {
      return left.testId != right.testId ? left.testId < right.testId : left.plugInId < right.plugInId;
    }
  };

  Classes classes_;
  std::vector<std::shared_ptr<orvik::IPlugIn>> plugIns_;
  /// Copies of catalogue entries, without children; an empty one for a test that is not in the catalogue.
  std::map<Entry, Prototype, EntryOrder> prototypes_;
  WrappedElements wrapped_;
  Problems problems_;
};

}  // namespace host::elements
