#include "gello/foundation/XMLTextReader.h"

#include <libxml/xmlreader.h>

#include <climits>

#include "XMLText.h"
#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

// libxml2 calls back through C: no exception may cross it, so a failing stream reports -1.
int ReadCallback(void* Context, char* Buffer, int Len) {
  try {
    return static_cast<int>(
        static_cast<TStream*>(Context)->Read(Buffer, static_cast<std::size_t>(Len)));
  } catch (...) {
    return -1;
  }
}

int CloseCallback(void*) {
  return 0;
}

struct ReaderDeleter {
  void operator()(xmlTextReaderPtr Reader) const { xmlFreeTextReader(Reader); }
};
using ReaderHandle = std::unique_ptr<xmlTextReader, ReaderDeleter>;

// The first report is the cause; later ones follow from it.
void RecordFault(void* Context, xmlErrorPtr Error) {
  auto& Fault = *static_cast<TSourcePosition*>(Context);
  if (Fault.Line > 0 || Error->line <= 0) return;
  Fault.Line = Error->line;
  Fault.Column = Error->int2;
}

}  // namespace

TXMLTextReader::TXMLTextReader(xmlTextReaderPtr Reader, std::unique_ptr<TStream> Owned)
    : FOwnedStream(std::move(Owned)), FReader(Reader) {
  xmlTextReaderSetStructuredErrorHandler(FReader, RecordFault, &FFault);
}

// Takes over Reader, or raises Failure when there is none.
Ref<TXMLTextReader> TXMLTextReader::Wrap(xmlTextReaderPtr Reader, const String& Failure,
                                         std::unique_ptr<TStream> Owned) {
  ReaderHandle Handle(Reader);
  if (!Handle) throw Exception(Failure);
  auto Result = MakeRef<TXMLTextReader>(Handle.get(), std::move(Owned));
  Handle.release();
  return Result;
}

Ref<TXMLTextReader> TXMLTextReader::Create(const String& FileName) {
  const String Failure = u"unable to open " + FileName;
  xmltext::TQuietErrors Quiet;
  // The way libxml2 reads a file fastest (no separate input buffer of its own).
  auto Reader = Wrap(xmlReaderForFile(ToLatin1(FileName).c_str(), nullptr, 0), Failure, nullptr);
  Reader->FFault.File = FileName;
  return Reader;
}

Ref<TXMLTextReader> TXMLTextReader::Create(TStream& Stream) {
  xmltext::TQuietErrors Quiet;
  return Wrap(xmlReaderForIO(ReadCallback, CloseCallback, &Stream, nullptr, nullptr, 0),
              u"unable to create XML stream reader", nullptr);
}

Ref<TXMLTextReader> TXMLTextReader::CreateForString(const String& Text) {
  auto Owned = std::make_unique<TMemoryStream>(ToLatin1(Text));
  xmltext::TQuietErrors Quiet;
  TStream& Source = *Owned;
  return Wrap(xmlReaderForIO(ReadCallback, CloseCallback, &Source, nullptr, nullptr, 0),
              u"unable to create XML stream reader", std::move(Owned));
}

TXMLTextReader::~TXMLTextReader() {
  // The reader goes before the stream it may still pull from.
  ResetNode();
  xmlFreeTextReader(FReader);
}

void TXMLTextReader::Fail(const char16_t* Message) const {
  EXMLTextReader Failure(Message);
  Failure.SetWhere(FFault);
  throw Failure;
}

bool TXMLTextReader::Read() {
  if (FPendingEmpty) PopPath();
  FPendingEmpty = false;
  ResetNode();
  const int R = xmlTextReaderRead(FReader);
  if (R < 0) Fail(u"parse error on Read");
  switch (xmlTextReaderNodeType(FReader)) {
    case XML_READER_TYPE_ELEMENT:
      PushPath(GetName());
      FPendingEmpty = GetIsEmpty();
      break;
    case XML_READER_TYPE_END_ELEMENT:
      PopPath();
      break;
    default:
      break;
  }
  return R == 1;
}

int TXMLTextReader::GetDepth() {
  return xmlTextReaderDepth(FReader);
}

bool TXMLTextReader::GetIsEmpty() {
  return xmlTextReaderIsEmptyElement(FReader) == 1;
}

// Both caches keep their storage across nodes, so a name costs no allocation once the longest
// one has been seen; libxml2's copy is released as soon as it is widened.
static void Fetch(String& Cache, xmlChar* Bytes) {
  if (Bytes) {
    xmltext::Widen(Cache, Bytes, static_cast<std::size_t>(xmlStrlen(Bytes)));
    xmlFree(Bytes);
  } else {
    Cache.clear();
  }
}

const String& TXMLTextReader::GetName() {
  if (!FNameCached) {
    Fetch(FName, xmlTextReaderName(FReader));
    FNameCached = true;
  }
  return FName;
}

const String& TXMLTextReader::GetValue() {
  if (!FValueCached) {
    Fetch(FValue, xmlTextReaderValue(FReader));
    FValueCached = true;
  }
  return FValue;
}

TxmlReaderTypes TXMLTextReader::GetNodeType() {
  return static_cast<TxmlReaderTypes>(xmlTextReaderNodeType(FReader));
}

int TXMLTextReader::MoveToNextAttribute() {
  ResetNode();
  const int R = xmlTextReaderMoveToNextAttribute(FReader);
  if (R < 0) Fail(u"parse error on MoveToNextAttribute");
  return R;
}

void TXMLTextReader::PushPath(StringView Name) {
  FPath += u'/';
  FPath += Name;
}

void TXMLTextReader::PopPath() {
  const auto Slash = FPath.rfind(u'/');
  FPath.resize(Slash == String::npos ? 0 : Slash);
}

void TXMLTextReader::ResetNode() {
  FNameCached = false;
  FValueCached = false;
}

}  // namespace gello
