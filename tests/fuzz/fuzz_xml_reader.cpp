// Feeds arbitrary bytes to the streaming XML reader: every input must end in a clean result or in
// one of the reader's own exceptions, never in a crash or a leak.
#include <cstddef>
#include <cstdint>
#include <string>

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Stream.h"
#include "gello/foundation/XMLTextReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
  gello::TMemoryStream Source(std::string(reinterpret_cast<const char*>(Data), Size));
  try {
    auto Reader = gello::TXMLTextReader::Create(Source);
    while (Reader->Read()) {
      Reader->GetName();
      Reader->GetValue();
      while (Reader->MoveToNextAttribute() == 1)
        Reader->GetValue();
    }
  } catch (const gello::EXMLTextReader&) {
  }
  return 0;
}
