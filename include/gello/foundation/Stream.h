#pragma once
// Byte streams: the minimal source and target that the streaming XML reader and writer accept
// besides files. A stream stays its owner's; readers and writers only borrow it.
#include <cstddef>
#include <iosfwd>
#include <string>
#include <utility>
#include "gello/foundation/Export.h"

namespace gello {

/// A sequential source or target of bytes.
class GELLO_API TStream {
 public:
  virtual ~TStream() = default;
  /// Reads up to Count bytes into Buffer; returns how many it read (0 at the end).
  virtual std::size_t Read(void* Buffer, std::size_t Count) = 0;
  /// Writes Count bytes from Buffer; returns how many it wrote.
  virtual std::size_t Write(const void* Buffer, std::size_t Count) = 0;
};

/// Bytes held in memory: reads from the start onwards, writes append.
class GELLO_API TMemoryStream : public TStream {
 public:
  TMemoryStream() = default;
  explicit TMemoryStream(std::string Bytes) : FBytes(std::move(Bytes)) {}
  std::size_t Read(void* Buffer, std::size_t Count) override;
  std::size_t Write(const void* Buffer, std::size_t Count) override;
  /// Everything written or given so far.
  const std::string& Bytes() const noexcept { return FBytes; }

 private:
  std::string FBytes;
  std::size_t FPosition = 0;
};

/// Adapts a standard stream: reads from the istream, writes to the ostream (either may be absent).
class GELLO_API TStdStream : public TStream {
 public:
  explicit TStdStream(std::istream& In) : FIn(&In) {}
  explicit TStdStream(std::ostream& Out) : FOut(&Out) {}
  std::size_t Read(void* Buffer, std::size_t Count) override;
  std::size_t Write(const void* Buffer, std::size_t Count) override;

 private:
  std::istream* FIn = nullptr;
  std::ostream* FOut = nullptr;
};

}  // namespace gello
