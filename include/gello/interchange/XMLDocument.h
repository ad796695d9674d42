#pragma once
// Loading the XML documents that model files are: any declared encoding, parsed as UTF-8.
#include <pugixml.hpp>
#include <string_view>
#include "gello/foundation/Export.h"

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/String.h"

namespace gello {

/// Parses Bytes into Document; a declared encoding other than UTF-8 or UTF-16 is converted to
/// UTF-8 first. A document that is not well-formed raises with the parser's own message and
/// the line and column where it stopped.
GELLO_API void ParseXMLDocument(pugi::xml_document& Document, std::string_view Bytes);
/// ParseXMLDocument over the file's bytes; a file that cannot be read raises.
GELLO_API void LoadXMLDocument(pugi::xml_document& Document, const String& FileName);

/// Turns the offset where E arose (into the document read from Bytes) into a line and column.
GELLO_API void LocateInText(Exception& E, std::string_view Bytes);
/// LocateInText over the named file, which E's position then names too.
GELLO_API void LocateInFile(Exception& E, const String& FileName);

}  // namespace gello
