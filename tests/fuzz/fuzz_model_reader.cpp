// Feeds arbitrary bytes to the native model reader, then writes what it read in both forms:
// every input must end in a package or in one of the system's exceptions, never in a crash or
// a leak.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "gello/foundation/Exceptions.h"
#include "gello/interchange/JSONForm.h"
#include "gello/interchange/NativeXML.h"
#include "gello/interchange/XMLDocument.h"
#include "gello/model/Globals.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
  auto Globals = gello::MakeRef<gello::TRTTIGlobals>();
  auto Package = gello::MakeRef<gello::TRTTIPackage>(gello::String());
  try {
    pugi::xml_document Document;
    gello::ParseXMLDocument(Document, std::string_view(reinterpret_cast<const char*>(Data), Size));
    gello::ReadXML(*Package, Document.child("GELLO"), Globals.get());
    pugi::xml_document Written;
    gello::WriteXML(*Package, Written.append_child("GELLO"));
    gello::GetasJSON(*Package).dump();
  } catch (const gello::Exception&) {
  }
  Package->Clear();
  Globals->Clear();
  return 0;
}
