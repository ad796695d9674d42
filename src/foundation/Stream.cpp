#include "gello/foundation/Stream.h"

#include <algorithm>
#include <cstring>
#include <istream>
#include <ostream>

namespace gello {

std::size_t TMemoryStream::Read(void* Buffer, std::size_t Count) {
  const std::size_t N = std::min(Count, FBytes.size() - FPosition);
  std::memcpy(Buffer, FBytes.data() + FPosition, N);
  FPosition += N;
  return N;
}

std::size_t TMemoryStream::Write(const void* Buffer, std::size_t Count) {
  FBytes.append(static_cast<const char*>(Buffer), Count);
  return Count;
}

std::size_t TStdStream::Read(void* Buffer, std::size_t Count) {
  if (!FIn) return 0;
  FIn->read(static_cast<char*>(Buffer), static_cast<std::streamsize>(Count));
  return static_cast<std::size_t>(FIn->gcount());
}

std::size_t TStdStream::Write(const void* Buffer, std::size_t Count) {
  if (!FOut || !FOut->write(static_cast<const char*>(Buffer), static_cast<std::streamsize>(Count)))
    return 0;
  return Count;
}

}  // namespace gello
