#include "gello/interchange/XMLDocument.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
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

std::string EncodingOf(std::string_view Bytes) {
  return DeclaredEncoding(Bytes.substr(0, std::min<std::size_t>(Bytes.size(), 256)));
}

void Parse(pugi::xml_document& Document, TPugiBuffer& Buffer, pugi::xml_encoding Encoding) {
  const std::size_t Size = Buffer.Size;
  pugi::xml_parse_result Result =
      Document.load_buffer_inplace_own(Buffer.Release(), Size, pugi::parse_default, Encoding);
  if (Result) return;
  TSourcePosition Where;
  Where.Offset = Result.offset;
  Exception Failure(FromUTF8(Result.description()));
  Failure.SetWhere(std::move(Where));
  throw Failure;
}

void ParseOwned(pugi::xml_document& Document, TPugiBuffer& Buffer) {
  const std::string Encoding = EncodingOf(std::string_view(Buffer.Data, Buffer.Size));
  if (IsUnicode(Encoding)) return Parse(Document, Buffer, pugi::encoding_auto);
  TPugiBuffer Converted = Transcode(std::string_view(Buffer.Data, Buffer.Size), Encoding);
  Parse(Document, Converted, pugi::encoding_utf8);
}

// Lines count from 1; columns count characters from 1, so UTF-8 continuation bytes are skipped.
void SetLineAndColumn(TSourcePosition& Where, std::string_view Text) {
  const std::string_view Before = Text.substr(0, static_cast<std::size_t>(Where.Offset));
  const std::size_t LineStart = Before.rfind('\n') + 1;  // 0 on the first line
  Where.Line = 1 + static_cast<int>(std::count(Before.begin(), Before.end(), '\n'));
  Where.Column = 1 + static_cast<int>(std::count_if(
                         Before.begin() + static_cast<std::ptrdiff_t>(LineStart), Before.end(),
                         [](char C) { return (static_cast<unsigned char>(C) & 0xC0) != 0x80; }));
}

}  // namespace

void LocateInText(Exception& E, std::string_view Bytes) {
  TSourcePosition Where = E.Where();
  if (Where.Offset < 0 || Where.Line > 0) return;
  const std::string Encoding = EncodingOf(Bytes);
  if (IsUnicode(Encoding)) {
    SetLineAndColumn(Where, Bytes);
  } else {
    const TPugiBuffer Converted = Transcode(Bytes, Encoding);
    SetLineAndColumn(Where, std::string_view(Converted.Data, Converted.Size));
  }
  E.SetWhere(std::move(Where));
}

void LocateInFile(Exception& E, const String& FileName) {
  if (E.Where().Offset < 0 || E.Where().Line > 0) return;
  TSourcePosition Where = E.Where();
  Where.File = FileName;
  E.SetWhere(Where);
  std::ifstream File(ToUTF8(FileName), std::ios::binary);
  const std::string Bytes{std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>()};
  LocateInText(E, Bytes);
}

void ParseXMLDocument(pugi::xml_document& Document, std::string_view Bytes) {
  TPugiBuffer Buffer(Bytes.size());
  std::memcpy(Buffer.Data, Bytes.data(), Bytes.size());
  try {
    ParseOwned(Document, Buffer);
  } catch (Exception& E) {
    LocateInText(E, Bytes);
    throw;
  }
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
  try {
    ParseOwned(Document, Buffer);
  } catch (Exception& E) {
    LocateInFile(E, FileName);
    throw;
  }
}

}  // namespace gello
