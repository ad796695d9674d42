#pragma once
// Cursors over collections: the engine's fast iterator and the script-visible Iterator.
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

class TOCLCollection;

/// The in-memory fast iterator: stands before element 0 until the first Advance.
class GELLO_API TFastIterator : public virtual IFastIterator {
 public:
  explicit TFastIterator(const Ref<IOCLCollection>& Collection) : ACollection(Collection) {}

  bool AtEnd() const override;
  Ref<IOCLAny> CurrentElement() const override { return FElement; }
  int CurrentPosition() const override { return FIndex; }
  bool Advance() override;

 private:
  Ref<IOCLAny> FElement;
  Ref<IOCLCollection> ACollection;
  int FIndex = -1;
};

/// The GELLO Iterator: a 0-based position over a collection it keeps alive.
class GELLO_API TOCLIterator : public TOCLAny, public virtual IOCLIterator {
 public:
  explicit TOCLIterator(const Ref<TOCLCollection>& Collection);
  ~TOCLIterator() override;

  Ref<IRTTIClass> GetInstanceType() const override;
  bool at_end() const override;
  Ref<IOCLAny> get_element() const override;
  /// Yields the current element and moves on; false (and no element) at the end.
  bool get_next_element(Ref<IOCLAny>& TheElement) override;
  /// Always true: no script operation changes a collection that is being walked.
  Ref<IOCLBoolean> is_stable() const override;
  void next_position() override { ++FIndex; }
  void replace_element(const Ref<IOCLAny>& AElement) override;
  void reset() override { FIndex = 0; }

 private:
  int FIndex = 0;
  Ref<TOCLCollection> FTheCollection;
};

}  // namespace gello
