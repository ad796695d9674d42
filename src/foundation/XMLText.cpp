#include "XMLText.h"

#include <libxml/globals.h>

namespace gello::xmltext {

void IgnoreError(void*, xmlErrorPtr) {}

// libxml2 keeps its handlers per thread, so swapping them for the length of one call cannot
// disturb another thread or the host's own choice once we are done.
TQuietErrors::TQuietErrors()
    : FSaved(xmlStructuredError), FSavedContext(xmlStructuredErrorContext) {
  xmlSetStructuredErrorFunc(nullptr, IgnoreError);
}

TQuietErrors::~TQuietErrors() {
  xmlSetStructuredErrorFunc(FSavedContext, FSaved);
}

}  // namespace gello::xmltext
