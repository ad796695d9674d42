#include "gello/interchange/XMLDocument.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

// A buffer from pugixml's allocator, which the document takes over when parsing in place.
struct TPugiBuffer {
  char* Data = nullptr;
  std::size_t Size = 0;
  explicit TPugiBuffer(std::size_t Bytes)
      : Data(static_cast<char*>(pugi::get_memory_allocation_function()(Bytes ? Bytes : 1))),
        Size(Bytes) {
    if (!Data) throw Exception(u"Out of memory for an XML document");
  }
  ~TPugiBuffer() {
    if (Data) pugi::get_memory_deallocation_function()(Data);
  }
  TPugiBuffer(TPugiBuffer&& Other) noexcept
      : Data(std::exchange(Other.Data, nullptr)), Size(Other.Size) {}
  TPugiBuffer& operator=(TPugiBuffer&&) = delete;
  char* Release() { return std::exchange(Data, nullptr); }
};

std::string Lower(std::string Text) {
  for (char& C : Text)
    if (C >= 'A' && C <= 'Z') C = static_cast<char>(C - 'A' + 'a');
  return Text;
}

// The encoding named in the declaration; empty when there is none or a byte-order mark
// already says how to read the bytes.
std::string DeclaredEncoding(std::string_view Bytes) {
  if (Bytes.size() >= 2 &&
      (static_cast<unsigned char>(Bytes[0]) >= 0xEF || Bytes[0] == 0 || Bytes[1] == 0))
    return {};
  if (Bytes.substr(0, 5) != "<?xml") return {};
  const std::string_view Declaration = Bytes.substr(0, Bytes.find("?>"));
  const std::size_t Key = Declaration.find("encoding");
  if (Key == std::string_view::npos) return {};
  const std::size_t Open = Declaration.find_first_of("\"'", Key);
  if (Open == std::string_view::npos) return {};
  const std::size_t Close = Declaration.find(Declaration[Open], Open + 1);
  if (Close == std::string_view::npos) return {};
  return Lower(std::string(Declaration.substr(Open + 1, Close - Open - 1)));
}

bool IsUnicode(const std::string& Encoding) {
  return Encoding.empty() || Encoding.starts_with("utf-") || Encoding.starts_with("utf8") ||
         Encoding.starts_with("utf16") || Encoding.starts_with("ucs-");
}

// iconv from the declared encoding to UTF-8, into a buffer the document can own.
TPugiBuffer Transcode(std::string_view Bytes, const std::string& Encoding) {
  iconv_t Converter = iconv_open("UTF-8", Encoding.c_str());
  if (Converter == reinterpret_cast<iconv_t>(-1))
    throw Exception(u"Unsupported encoding \"" + FromLatin1(Encoding) + u"\"");
  std::unique_ptr<void, int (*)(iconv_t)> Closer(Converter, iconv_close);
  // Single-byte code pages grow at most threefold in UTF-8; others get more room as needed.
  std::size_t Capacity = Bytes.size() * 3 + 16;
  for (;;) {
    TPugiBuffer Out(Capacity);
    char* In = const_cast<char*>(Bytes.data());
    std::size_t InLeft = Bytes.size();
    char* Next = Out.Data;
    std::size_t OutLeft = Capacity;
    iconv(Converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(Converter, &In, &InLeft, &Next, &OutLeft) != static_cast<std::size_t>(-1)) {
      Out.Size = Capacity - OutLeft;
      return Out;
    }
    if (errno != E2BIG)
      throw Exception(u"Invalid " + FromLatin1(Encoding) + u" text at offset " +
                      IntToStr(static_cast<std::int64_t>(Bytes.size() - InLeft)));
    Capacity *= 2;
  }
}

void Parse(pugi::xml_document& Document, TPugiBuffer& Buffer, pugi::xml_encoding Encoding,
           const String& Where) {
  const std::size_t Size = Buffer.Size;
  pugi::xml_parse_result Result =
      Document.load_buffer_inplace_own(Buffer.Release(), Size, pugi::parse_default, Encoding);
  if (!Result)
    throw Exception(FromUTF8(Result.description()) + u" at offset " + IntToStr(Result.offset) +
                    Where);
}

void ParseOwned(pugi::xml_document& Document, TPugiBuffer& Buffer, const String& Where) {
  const std::string Encoding =
      DeclaredEncoding(std::string_view(Buffer.Data, std::min<std::size_t>(Buffer.Size, 256)));
  if (IsUnicode(Encoding)) return Parse(Document, Buffer, pugi::encoding_auto, Where);
  TPugiBuffer Converted = Transcode(std::string_view(Buffer.Data, Buffer.Size), Encoding);
  Parse(Document, Converted, pugi::encoding_utf8, Where);
}

}  // namespace

void ParseXMLDocument(pugi::xml_document& Document, std::string_view Bytes) {
  TPugiBuffer Buffer(Bytes.size());
  std::memcpy(Buffer.Data, Bytes.data(), Bytes.size());
  ParseOwned(Document, Buffer, {});
}

void LoadXMLDocument(pugi::xml_document& Document, const String& FileName) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> File(std::fopen(ToUTF8(FileName).c_str(), "rb"),
                                                       std::fclose);
  if (!File) throw Exception(u"File was not found: " + FileName);
  std::fseek(File.get(), 0, SEEK_END);
  const long Length = std::ftell(File.get());
  std::fseek(File.get(), 0, SEEK_SET);
  if (Length < 0) throw Exception(u"Cannot read file \"" + FileName + u"\"");
  TPugiBuffer Buffer(static_cast<std::size_t>(Length));
  if (std::fread(Buffer.Data, 1, Buffer.Size, File.get()) != Buffer.Size)
    throw Exception(u"Cannot read file \"" + FileName + u"\"");
  ParseOwned(Document, Buffer, u" in " + FileName);
}

}  // namespace gello
