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

namespace bench {

/// What happened inside an element while a plug-in's element, which ignores errors step by step, stood
/// between it and the document. The document looks here, so that nothing is lost in silence.
class Problems {
 public:
  struct Problem {
    std::string reason;
    /// Byte in the source of the document where it shows; -1 unknown.
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

  /// What a saved element tells of itself.
  struct Identity {
    std::string_view plugInId;
    std::int32_t testId = 0;
    /// Class identifier of the outermost element.
    std::string_view classId;
  };

  /// @param classes creates an object by class identifier; empty or `HostError` for an unknown one
  explicit ElementFactory(Classes classes) : classes_(std::move(classes)) {}

  /// A plug-in that has been initialised. One of the same identifier is replaced.
  void AddPlugIn(const std::shared_ptr<orvik::IPlugIn>& plugIn);
  std::vector<std::shared_ptr<orvik::IPlugIn>> PlugIns() const { return plugIns_; }
  /// The plug-in of that identifier, or empty.
  std::shared_ptr<orvik::IPlugIn> PlugIn(std::string_view id) const;
  /// Lets go of all plug-ins and of everything that came from them.
  void ReleasePlugIns();
  /// The catalogue of a plug-in has changed.
  void ForgetPrototypes() { prototypes_.clear(); }

  /// A new object of the class; empty when there is no such class.
  std::shared_ptr<orvik::IObject> CreateObject(const std::string& classId) const;

  /// An element, without children, that is about to load itself from what was saved. A copy of the
  /// catalogue's entry when the plug-in has one of that class, since only the catalogue knows its unit; else
  /// a new element of the class. Empty when nobody knows it.
  std::shared_ptr<orvik::ITestElement> CreateForLoad(const Identity& identity);

  /// The base element behind an element: itself, or the one that it wraps; empty when there is none.
  std::shared_ptr<orvik::IBaseElement> BaseOf(const std::shared_ptr<orvik::ITestElement>& element) const;

  /// The base elements that have another element around them.
  WrappedElements& Wrapped() { return wrapped_; }

  Problems& Trouble() { return problems_; }

 private:
  struct Prototype {
    std::shared_ptr<orvik::ITestElement> element;
    std::string classId;
  };

  std::shared_ptr<orvik::ITestElement> FromCatalogue(const Identity& identity);
  /// Nothing when the plug-in is not known.
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
  /// Childless copies of catalogue entries by plug-in and test; without an element for a test that is not in
  /// the catalogue.
  std::map<Entry, Prototype, EntryOrder> prototypes_;
  WrappedElements wrapped_;
  Problems problems_;
};

}  // namespace bench
