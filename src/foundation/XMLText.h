#pragma once
// What the streaming XML reader and writer share inside the library: byte-exact text conversion
// and silencing of libxml2's console reports.
#include <libxml/xmlerror.h>

#include <cstddef>

#include "gello/foundation/String.h"

namespace gello::xmltext {

/// Replaces Out with Bytes widened one by one (ISO-8859-1), reusing Out's storage.
inline void Widen(String& Out, const unsigned char* Bytes, std::size_t Count) {
  Out.resize(Count);
  char16_t* Dest = Out.data();
  for (std::size_t i = 0; i < Count; ++i)
    Dest[i] = Bytes[i];
}

/// A structured error handler that drops the report: failures surface as our own exceptions.
void IgnoreError(void* Context, xmlErrorPtr Error);

/// While alive, libxml2 reports on this thread go nowhere (they would otherwise reach stderr).
class TQuietErrors {
 public:
  TQuietErrors();
  ~TQuietErrors();
  TQuietErrors(const TQuietErrors&) = delete;
  TQuietErrors& operator=(const TQuietErrors&) = delete;

 private:
  xmlStructuredErrorFunc FSaved;
  void* FSavedContext;
};

}  // namespace gello::xmltext
