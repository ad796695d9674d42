#pragma once
// Why a value is undefined: a chain of reasons, newest first. Not an exception that is raised.
#include <memory>
#include "gello/foundation/Export.h"
#include "gello/foundation/String.h"

namespace gello {

/// One reason of an undefined value; it owns the rest of the chain behind it.
class GELLO_API TInternalOCLException {
 public:
  explicit TInternalOCLException(String AMessage) : FMessage(std::move(AMessage)) {}
  /// Frees the chain behind it without recursing, however long it is.
  ~TInternalOCLException();
  TInternalOCLException(const TInternalOCLException&) = delete;
  TInternalOCLException& operator=(const TInternalOCLException&) = delete;

  const String& GetMessage() const noexcept { return FMessage; }
  const TInternalOCLException* GetPrevious() const noexcept { return previous_exception.get(); }

  std::unique_ptr<TInternalOCLException> previous_exception;

 private:
  String FMessage;
};

}  // namespace gello
