#pragma once
// Push-writing of XML on libxml2's text writer. Text goes to libxml2 in the single-byte code page
// (ISO-8859-1), and a string target gets each output byte back as one character.
#include "gello/foundation/Export.h"
#include "gello/foundation/GUID.h"
#include "gello/foundation/RefCounted.h"
#include "gello/foundation/Stream.h"
#include "gello/foundation/String.h"

struct _xmlTextWriter;

namespace gello {

/// A forward-only XML writer; the document is started when it is created. Every failure after
/// creation raises EXMLTextReader, so one handler covers reading and writing.
struct GELLO_API IXMLTextWriter : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{C3A87F10-25B4-4E6D-9B0C-71D4E8F25A63}");

  virtual void StartElement(const String& Name) = 0;
  virtual void WriteAttribute(const String& Name, const String& Value) = 0;
  /// Start tag, escaped Text, end tag.
  virtual void WriteElement(const String& Name, const String& Text) = 0;
  /// Escaped character data.
  virtual void WriteString(const String& Text) = 0;
  virtual void EndElement() = 0;
  /// Ends the document and flushes it; later calls do nothing.
  virtual void Close() = 0;
};

/// IXMLTextWriter to a file, a borrowed stream or a caller's string. Indent lays elements out
/// on lines of their own.
class GELLO_API TXMLTextWriter : public virtual IXMLTextWriter {
 public:
  /// Raises "unable to open " + FileName when libxml2 cannot create it.
  static Ref<TXMLTextWriter> Create(const String& FileName, bool Indent);
  /// Writes to Stream, which must outlive the writer.
  static Ref<TXMLTextWriter> Create(TStream& Stream, bool Indent);
  /// Appends to Target, one character per output byte; Target must outlive the writer.
  static Ref<TXMLTextWriter> CreateForString(String& Target, bool Indent);

  /// Closes the document.
  ~TXMLTextWriter() override;
  TXMLTextWriter(const TXMLTextWriter&) = delete;
  TXMLTextWriter& operator=(const TXMLTextWriter&) = delete;

  void StartElement(const String& Name) override;
  void WriteAttribute(const String& Name, const String& Value) override;
  void WriteElement(const String& Name, const String& Text) override;
  void WriteString(const String& Text) override;
  void EndElement() override;
  void Close() override;

 private:
  template <class U, class... A>
  friend Ref<U> MakeRef(A&&...);
  explicit TXMLTextWriter(_xmlTextWriter* Writer);
  static Ref<TXMLTextWriter> Started(_xmlTextWriter* Writer, bool Indent);

  _xmlTextWriter* FWriter;
};

}  // namespace gello
