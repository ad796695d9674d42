#pragma once
// Pull-parsing of XML on libxml2's text reader, adding a running element path, a per-node cache of
// name and value, and one fixed message per failure. Text crosses to and from libxml2 in the
// single-byte code page (ISO-8859-1): each byte libxml2 hands over becomes one character.
#include <cstdint>
#include <memory>
#include "gello/foundation/Export.h"

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/GUID.h"
#include "gello/foundation/RefCounted.h"
#include "gello/foundation/Stream.h"
#include "gello/foundation/String.h"

struct _xmlTextReader;

namespace gello {

/// Node kinds, in the order and with the values of libxml2's xmlReaderTypes.
enum class TxmlReaderTypes : std::int32_t {
  XML_READER_TYPE_NONE = 0,
  XML_READER_TYPE_ELEMENT = 1,
  XML_READER_TYPE_ATTRIBUTE = 2,
  XML_READER_TYPE_TEXT = 3,
  XML_READER_TYPE_CDATA = 4,
  XML_READER_TYPE_ENTITY_REFERENCE = 5,
  XML_READER_TYPE_ENTITY = 6,
  XML_READER_TYPE_PROCESSING_INSTRUCTION = 7,
  XML_READER_TYPE_COMMENT = 8,
  XML_READER_TYPE_DOCUMENT = 9,
  XML_READER_TYPE_DOCUMENT_TYPE = 10,
  XML_READER_TYPE_DOCUMENT_FRAGMENT = 11,
  XML_READER_TYPE_NOTATION = 12,
  XML_READER_TYPE_WHITESPACE = 13,
  XML_READER_TYPE_SIGNIFICANT_WHITESPACE = 14,
  XML_READER_TYPE_END_ELEMENT = 15,
  XML_READER_TYPE_END_ENTITY = 16,
  XML_READER_TYPE_XML_DECLARATION = 17
};

/// A forward-only XML reader. Name and value stay valid until the next Read or attribute move.
struct GELLO_API IXMLTextReader : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{6B0E3C52-9D41-4F7A-8E21-3A5C7D90B1E4}");

  /// Moves to the next node; false at the end of input. Raises EXMLTextReader on malformed XML.
  virtual bool Read() = 0;
  virtual int GetDepth() = 0;
  /// True on an element written as `<a/>`.
  virtual bool GetIsEmpty() = 0;
  virtual const String& GetName() = 0;
  virtual TxmlReaderTypes GetNodeType() = 0;
  /// "/root/child/..." down to the element the reader is in (empty outside the root).
  virtual const String& GetPath() = 0;
  virtual const String& GetValue() = 0;
  /// 1 when it moved to the element's next attribute, 0 when there are no more.
  virtual int MoveToNextAttribute() = 0;
};

/// IXMLTextReader over a file, a borrowed stream or a string.
class GELLO_API TXMLTextReader : public virtual IXMLTextReader {
 public:
  /// Raises "unable to open " + FileName when libxml2 cannot open it.
  static Ref<TXMLTextReader> Create(const String& FileName);
  /// Reads from Stream, which must outlive the reader.
  static Ref<TXMLTextReader> Create(TStream& Stream);
  /// Reads the document Text, narrowed to the single-byte code page.
  static Ref<TXMLTextReader> CreateForString(const String& Text);

  ~TXMLTextReader() override;
  TXMLTextReader(const TXMLTextReader&) = delete;
  TXMLTextReader& operator=(const TXMLTextReader&) = delete;

  bool Read() override;
  int GetDepth() override;
  bool GetIsEmpty() override;
  const String& GetName() override;
  TxmlReaderTypes GetNodeType() override;
  const String& GetPath() override { return FPath; }
  const String& GetValue() override;
  int MoveToNextAttribute() override;

  void PushPath(StringView Name);
  /// Cuts the path back to its last "/" (to empty when there is none).
  void PopPath();
  /// Forgets the cached name and value.
  void ResetNode();

 private:
  template <class U, class... A>
  friend Ref<U> MakeRef(A&&...);
  TXMLTextReader(_xmlTextReader* Reader, std::unique_ptr<TStream> Owned);
  static Ref<TXMLTextReader> Wrap(_xmlTextReader* Reader, const String& Failure,
                                  std::unique_ptr<TStream> Owned);

  String FName;
  bool FNameCached = false;
  String FPath;
  std::unique_ptr<TStream> FOwnedStream;
  String FValue;
  bool FValueCached = false;
  _xmlTextReader* FReader;
  bool FPendingEmpty = false;
  // Where libxml2 first reported a fault; a failing read raises with it.
  TSourcePosition FFault;
  [[noreturn]] void Fail(const char16_t* Message) const;
};

}  // namespace gello
