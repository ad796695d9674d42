#pragma once
// Reading and writing native documents in memory, with a global scope cleared at the end.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "gello/interchange/NativeXML.h"
#include "gello/interchange/XMLDocument.h"
#include "gello/model/Globals.h"

struct FormsFixture : testing::Test {
  gello::Ref<gello::TRTTIGlobals> Globals = gello::MakeRef<gello::TRTTIGlobals>();
  void TearDown() override { Globals->Clear(); }

  // A package read from the text of a native document.
  gello::Ref<gello::TRTTIPackage> Read(const std::string& Text) {
    pugi::xml_document Document;
    gello::ParseXMLDocument(Document, Text);
    auto Package = gello::MakeRef<gello::TRTTIPackage>(gello::String());
    gello::ReadXML(*Package, Document.child("GELLO"), Globals.get());
    return Package;
  }
  // The element's native node, as text without indentation.
  static std::string Written(gello::IRTTIElement& Element) {
    pugi::xml_document Document;
    gello::WriteXML(Element, Document.append_child("GELLO"));
    std::ostringstream Out;
    Document.save(Out, "", pugi::format_raw | pugi::format_no_declaration);
    return Out.str();
  }
};
