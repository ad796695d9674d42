#include "gello/ocl/Iterator.h"

#include <algorithm>
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Collection.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

bool TFastIterator::AtEnd() const {
  return std::max(FIndex, 0) >= ACollection->GetCount();
}

bool TFastIterator::Advance() {
  ++FIndex;
  FElement = AtEnd() ? nullptr : ACollection->GetItems(FIndex);
  return AtEnd();
}

TOCLIterator::TOCLIterator(const Ref<TOCLCollection>& Collection) : FTheCollection(Collection) {}

TOCLIterator::~TOCLIterator() = default;

Ref<IRTTIClass> TOCLIterator::GetInstanceType() const {
  return OCLSystemClasses().Iterator;
}

bool TOCLIterator::at_end() const {
  return FIndex >= FTheCollection->GetCount();
}

Ref<IOCLAny> TOCLIterator::get_element() const {
  return FTheCollection->GetItems(FIndex);
}

bool TOCLIterator::get_next_element(Ref<IOCLAny>& TheElement) {
  if (at_end()) {
    TheElement = nullptr;
    return false;
  }
  TheElement = FTheCollection->GetItems(FIndex++);
  return true;
}

Ref<IOCLBoolean> TOCLIterator::is_stable() const {
  return TOCLBoolean::BooleanValue(true);
}

void TOCLIterator::replace_element(const Ref<IOCLAny>& AElement) {
  FTheCollection->SetItems(FIndex, AElement);
}

}  // namespace gello
