#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IReport;
class IStandard;
class IXmlNode;

/// A collection of standards, in order (class "OrvikTypeLib.StandardColl").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IStandardColl : public virtual IObject {
 public:
  /// Number of standards.
  std::int32_t Count() const { return IStandardColl_Count(); }
  /// The standard at the index, counted from 1; `HostError` 9 outside 1 to `Count`.
  std::shared_ptr<IStandard> item(std::int32_t lIndex) const { return IStandardColl_item(lIndex); }
  /// Adds a standard at the end.
  void Add(std::shared_ptr<IStandard> Standard) { IStandardColl_Add(std::move(Standard)); }
  /// Removes the standard; a standard that is not in it changes nothing.
  void Remove(std::shared_ptr<IStandard> Standard) { IStandardColl_Remove(std::move(Standard)); }
  /// The first standard with both identifying strings, or empty.
  std::shared_ptr<IStandard> Find(const std::string& sName, const std::string& sDescription) const {
    return IStandardColl_Find(sName, sDescription);
  }
  /// A deep copy.
  std::shared_ptr<IStandardColl> Clone() const { return IStandardColl_Clone(); }
  /// Adds the standards saved below the node.
  void Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) {
    IStandardColl_Load(std::move(Node), std::move(Context));
  }
  /// Writes the collection as the last child of the parent and returns that node.
  std::shared_ptr<IXmlNode> Save(std::shared_ptr<IXmlNode> Parent) const {
    return IStandardColl_Save(std::move(Parent));
  }
  /// Prints the limits: `asHeader` is limit key, heading, and "0" (all standards). `Printed` is the element
  /// they belong to, or empty.
  void Print(std::shared_ptr<IReport> Report, std::shared_ptr<IObject> Printed,
             const std::vector<std::string>& asHeader) const {
    IStandardColl_Print(std::move(Report), std::move(Printed), asHeader);
  }

 private:
  virtual std::int32_t IStandardColl_Count() const = 0;
  virtual std::shared_ptr<IStandard> IStandardColl_item(std::int32_t lIndex) const = 0;
  virtual void IStandardColl_Add(std::shared_ptr<IStandard> Standard) = 0;
  virtual void IStandardColl_Remove(std::shared_ptr<IStandard> Standard) = 0;
  virtual std::shared_ptr<IStandard> IStandardColl_Find(const std::string& sName,
                                                        const std::string& sDescription) const = 0;
  virtual std::shared_ptr<IStandardColl> IStandardColl_Clone() const = 0;
  virtual void IStandardColl_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) = 0;
  virtual std::shared_ptr<IXmlNode> IStandardColl_Save(std::shared_ptr<IXmlNode> Parent) const = 0;
  virtual void IStandardColl_Print(std::shared_ptr<IReport> Report, std::shared_ptr<IObject> Printed,
                                   const std::vector<std::string>& asHeader) const = 0;
};

}  // namespace orvik
