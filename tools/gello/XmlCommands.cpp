#include <iostream>
#include <memory>
#include <string>

#include "Commands.h"
#include "gello/foundation/XMLTextReader.h"

namespace gello::tool {
namespace {

// The reader hands out each byte as one character; narrowing gives the file's own bytes back, so
// a UTF-8 document prints as UTF-8.
void PrintPaths(const std::string& FileName) {
  auto Reader = TXMLTextReader::Create(FromLatin1(FileName));
  std::string Line;
  while (Reader->Read()) {
    if (Reader->GetNodeType() != TxmlReaderTypes::XML_READER_TYPE_ELEMENT) continue;
    Line = ToLatin1(Reader->GetPath());
    Line += '\n';
    std::cout << Line;
  }
}

}  // namespace

void AddXmlCommands(CLI::App& App) {
  CLI::App* Xml = App.add_subcommand("xml", "Look inside XML documents")->require_subcommand(1);
  CLI::App* Paths = Xml->add_subcommand("paths", "Print the path of every element, one per line");
  auto FileName = std::make_shared<std::string>();
  Paths->add_option("FILE", *FileName, "The XML document")->required();
  Paths->callback([FileName] { PrintPaths(*FileName); });
}

}  // namespace gello::tool
