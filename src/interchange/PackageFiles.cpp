// A package's native model files, and its stream form: the header, then the same document.
#include "gello/interchange/PackageFiles.h"

#include <filesystem>
#include <fstream>

#include "gello/foundation/Exceptions.h"
#include "gello/interchange/NativeXML.h"
#include "gello/interchange/XMLDocument.h"
#include "gello/model/Names.h"

namespace gello {
namespace {

// All three exports write their documents the same way: indented, UTF-8.
constexpr unsigned OutputFormat = pugi::format_indent;

void BuildDocument(pugi::xml_document& Document, IRTTIPackage& Package) {
  pugi::xml_node Root = Document.append_child("GELLO");
  Root.append_attribute("xmlns").set_value(GelloModelNamespace);
  WriteXML(Package, Root);
}

}  // namespace

Ref<TRTTIPackage> CreatePackageFromFile(const String& FileName, IRTTIGlobals* Globals) {
  String Stem = std::filesystem::path(FileName).stem().u16string();
  auto Package = MakeRef<TRTTIPackage>(ValidGelloName(Stem));
  LoadFromFile(*Package, FileName, Globals);
  return Package;
}

void LoadFromFile(IRTTIPackage& Package, const String& FileName, IRTTIGlobals* Globals) {
  pugi::xml_document Document;
  LoadXMLDocument(Document, FileName);
  try {
    ReadXML(Package, Document.child("GELLO"), Globals);
  } catch (Exception& E) {
    LocateInFile(E, FileName);
    throw;
  }
}

void SaveToFile(IRTTIPackage& Package, const String& FileName) {
  pugi::xml_document Document;
  BuildDocument(Document, Package);
  if (!Document.save_file(ToUTF8(FileName).c_str(), "  ", OutputFormat, pugi::encoding_utf8))
    throw Exception(u"Cannot create file \"" + FileName + u"\"");
}

void WriteModelDocument(IRTTIPackage& Package, std::ostream& Out) {
  pugi::xml_document Document;
  BuildDocument(Document, Package);
  Document.save(Out, "  ", OutputFormat, pugi::encoding_utf8);
}

void SaveToStream(IRTTIPackage& Package, const String& FileName) {
  std::ofstream Stream(ToUTF8(FileName), std::ios::binary | std::ios::trunc);
  if (!Stream) throw Exception(u"Cannot create file \"" + FileName + u"\"");
  // The header was always written with its character count as byte count: 13 bytes of
  // UTF-16, ending in the low byte of "P". Readers expect exactly that.
  const String Header = u"GELLO_PACKAGE";
  std::string Bytes;
  for (char16_t C : Header) {
    Bytes.push_back(static_cast<char>(C & 0xFF));
    Bytes.push_back(static_cast<char>(C >> 8));
  }
  Stream.write(Bytes.data(), static_cast<std::streamsize>(Header.size()));
  WriteModelDocument(Package, Stream);
  if (!Stream) throw Exception(u"Cannot write file \"" + FileName + u"\"");
}

}  // namespace gello
