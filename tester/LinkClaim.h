#pragma once

#include <string>

#include "tester/UniqueFd.h"

namespace sim {

/// The right of one running tester to the link at a path, held as long as this object lives and given back by
/// the system however the process ends: a link without a holder was left by a dead one. It needs no
/// file, and it is kept while the cable is unplugged and the link is not there.
class LinkClaim {
 public:
  /// Throws InputError when another tester holds the path, under any name of its folder; SystemFailure.
  explicit LinkClaim(const std::string& path);

 private:
  UniqueFd holder_;
};

}  // namespace sim
