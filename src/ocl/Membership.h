#pragma once
// Membership in any collection by the elements' own equality, without a scan per question.
#include "gello/ocl/Collection.h"

namespace gello {

/// An in-memory collection answers from its own index; other data is read once into an index.
class TMembership {
 public:
  explicit TMembership(IOCLCollection* c);
  TMembership(const TMembership&) = delete;
  TMembership& operator=(const TMembership&) = delete;

  bool Contains(IOCLAny* o) const { return FElements.Contains(o); }
  /// Positions of the elements equal to o.
  std::vector<int> Matches(IOCLAny* o) const { return FElements.Matches(o); }

 private:
  TElements FElements;
};

}  // namespace gello
