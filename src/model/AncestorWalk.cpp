#include "AncestorWalk.h"

#include "gello/foundation/Log.h"

namespace gello {

void LogAncestorLoop(StringView Operation, const String& Name) {
  LogMessage(u"TRTTIClass." + String(Operation) + u": ancestor loops back to self \"" + Name +
             u"\"");
}

TWalkGuard::TWalkGuard(std::uint32_t& Flags, std::uint32_t Bit, StringView Operation,
                       const String& Name, bool Report)
    : FFlags(Flags), FBit(Bit), FLooped((Flags & Bit) != 0) {
  if (FLooped && Report) LogAncestorLoop(Operation, Name);
  FFlags |= FBit;
}

TWalkGuard::~TWalkGuard() {
  if (!FLooped) FFlags &= ~FBit;
}

}  // namespace gello
