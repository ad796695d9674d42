#include <iostream>
#include <memory>
#include <string>

#include "Commands.h"
#include "ToolFiles.h"
#include "gello/foundation/Stream.h"
#include "gello/foundation/XMLTextReader.h"

namespace gello::tool {
namespace {

// The reader hands out each byte as one character; narrowing gives the file's own bytes back, so
// a UTF-8 document prints as UTF-8.
void PrintPaths(IXMLTextReader& Reader) {
  std::string Line;
  while (Reader.Read()) {
    if (Reader.GetNodeType() != TxmlReaderTypes::XML_READER_TYPE_ELEMENT) continue;
    Line = ToLatin1(Reader.GetPath());
    Line += '\n';
    std::cout << Line;
  }
}

// A file is streamed from disk, however large; standard input is read first.
void PrintPaths(const std::string& FileName) {
  if (FileName != "-") {
    ExpectReadable(FileName);
    return PrintPaths(*TXMLTextReader::Create(FromLatin1(FileName)));
  }
  TMemoryStream Input(ReadInput(FileName));
  try {
    PrintPaths(*TXMLTextReader::Create(Input));
  } catch (Exception& E) {
    PlaceInInput(E, FileName, {});
    throw;
  }
}

}  // namespace

void AddXmlCommands(CLI::App& App) {
  CLI::App* Xml = App.add_subcommand("xml", "Look inside XML documents")->require_subcommand(1);
  CLI::App* Paths = Xml->add_subcommand("paths", "Print the path of every element, one per line");
  auto FileName = std::make_shared<std::string>();
  Paths->add_option("FILE", *FileName, "The XML document, or - for standard input")->required();
  Paths->callback([FileName] { PrintPaths(*FileName); });
}

}  // namespace gello::tool
