#include "gello/foundation/XMLTextWriter.h"

#include <libxml/xmlwriter.h>

#include "XMLText.h"
#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

// libxml2 calls back through C: no exception may cross it, so a failed write reports -1.
int StreamWrite(void* Context, const char* Buffer, int Len) {
  try {
    const auto Count = static_cast<std::size_t>(Len);
    return static_cast<TStream*>(Context)->Write(Buffer, Count) == Count ? Len : -1;
  } catch (...) {
    return -1;
  }
}

int StringWrite(void* Context, const char* Buffer, int Len) {
  try {
    auto& Target = *static_cast<String*>(Context);
    const auto* Bytes = reinterpret_cast<const unsigned char*>(Buffer);
    Target.append(Bytes, Bytes + Len);
    return Len;
  } catch (...) {
    return -1;
  }
}

int NoClose(void*) {
  return 0;
}

xmlTextWriterPtr WriterFor(xmlOutputWriteCallback Write, void* Context) {
  xmlOutputBufferPtr Buffer = xmlOutputBufferCreateIO(Write, NoClose, Context, nullptr);
  xmlTextWriterPtr Writer = Buffer ? xmlNewTextWriter(Buffer) : nullptr;
  if (!Writer) {
    if (Buffer) xmlOutputBufferClose(Buffer);
    throw Exception(u"unable to create XML stream writer");
  }
  return Writer;
}

const xmlChar* Narrow(std::string& Bytes, const String& Text) {
  Bytes = ToLatin1(Text);
  return reinterpret_cast<const xmlChar*>(Bytes.c_str());
}

void Check(int Result, const char16_t* Message) {
  if (Result < 0) throw EXMLTextReader(Message);
}

}  // namespace

TXMLTextWriter::TXMLTextWriter(xmlTextWriterPtr Writer) : FWriter(Writer) {}

TXMLTextWriter::~TXMLTextWriter() {
  Close();
}

// Takes over Writer, so that a document that fails to start is still freed.
Ref<TXMLTextWriter> TXMLTextWriter::Started(xmlTextWriterPtr Writer, bool Indent) {
  Ref<TXMLTextWriter> Result;
  try {
    Result = MakeRef<TXMLTextWriter>(Writer);
  } catch (...) {
    xmlFreeTextWriter(Writer);
    throw;
  }
  xmltext::TQuietErrors Quiet;
  if (xmlTextWriterStartDocument(Writer, nullptr, nullptr, nullptr) < 0)
    throw Exception(u"failed to start text document");
  if (Indent) xmlTextWriterSetIndent(Writer, 2);
  return Result;
}

Ref<TXMLTextWriter> TXMLTextWriter::Create(const String& FileName, bool Indent) {
  xmlTextWriterPtr Writer;
  {
    xmltext::TQuietErrors Quiet;
    Writer = xmlNewTextWriterFilename(ToLatin1(FileName).c_str(), 0);
  }
  if (!Writer) throw Exception(u"unable to open " + FileName);
  return Started(Writer, Indent);
}

Ref<TXMLTextWriter> TXMLTextWriter::Create(TStream& Stream, bool Indent) {
  return Started(WriterFor(StreamWrite, &Stream), Indent);
}

Ref<TXMLTextWriter> TXMLTextWriter::CreateForString(String& Target, bool Indent) {
  return Started(WriterFor(StringWrite, &Target), Indent);
}

// libxml2 would print each failure, a failing target's included, on stderr; the caller learns of
// it from our exception, so every call runs with its reports silenced.
void TXMLTextWriter::StartElement(const String& Name) {
  xmltext::TQuietErrors Quiet;
  std::string N;
  Check(xmlTextWriterStartElement(FWriter, Narrow(N, Name)), u"write error in StartElement");
}

void TXMLTextWriter::WriteAttribute(const String& Name, const String& Value) {
  xmltext::TQuietErrors Quiet;
  std::string N, V;
  Check(xmlTextWriterWriteAttribute(FWriter, Narrow(N, Name), Narrow(V, Value)),
        u"write error in WriteAttribute");
}

void TXMLTextWriter::WriteElement(const String& Name, const String& Text) {
  xmltext::TQuietErrors Quiet;
  std::string N, T;
  Check(xmlTextWriterWriteElement(FWriter, Narrow(N, Name), Narrow(T, Text)),
        u"write error in WriteElement");
}

void TXMLTextWriter::WriteString(const String& Text) {
  xmltext::TQuietErrors Quiet;
  std::string T;
  Check(xmlTextWriterWriteString(FWriter, Narrow(T, Text)), u"write error in WriteString");
}

void TXMLTextWriter::EndElement() {
  xmltext::TQuietErrors Quiet;
  Check(xmlTextWriterEndElement(FWriter), u"write error in EndElement");
}

void TXMLTextWriter::Close() {
  if (!FWriter) return;
  xmltext::TQuietErrors Quiet;  // the final flush may still fail; Close reports nothing
  xmlTextWriterEndDocument(FWriter);
  xmlFreeTextWriter(FWriter);
  FWriter = nullptr;
}

}  // namespace gello
