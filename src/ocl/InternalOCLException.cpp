#include "gello/ocl/InternalOCLException.h"

namespace gello {

TInternalOCLException::~TInternalOCLException() {
  // Unlink the tail first, one record at a time, so a long chain cannot exhaust the stack.
  std::unique_ptr<TInternalOCLException> Next = std::move(previous_exception);
  while (Next)
    Next = std::move(Next->previous_exception);
}

}  // namespace gello
