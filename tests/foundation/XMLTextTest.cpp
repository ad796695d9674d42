#include <dlfcn.h>
#include <gtest/gtest.h>
#include <libxml/xmlreader.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/XMLTextReader.h"
#include "gello/foundation/XMLTextWriter.h"

using namespace gello;
using T = TxmlReaderTypes;

namespace {

int NameFetches = 0;

struct TNode {
  T Type;
  String Name, Path;
  bool operator==(const TNode&) const = default;
};

std::vector<TNode> Walk(IXMLTextReader& R) {
  std::vector<TNode> Nodes;
  while (R.Read())
    Nodes.push_back({R.GetNodeType(), R.GetName(), R.GetPath()});
  return Nodes;
}

template <class F>
void ExpectRaises(F&& Action, const String& Message, bool ReaderClass) {
  try {
    Action();
    ADD_FAILURE() << "no exception, expected " << ToUTF8(Message);
  } catch (const Exception& E) {
    EXPECT_EQ(E.Message(), Message);
    EXPECT_EQ(dynamic_cast<const EXMLTextReader*>(&E) != nullptr, ReaderClass) << E.what();
  }
}

std::string TempFile(const char* Name) {
  return (std::filesystem::temp_directory_path() / (std::to_string(getpid()) + Name)).string();
}

struct TFailingStream : TStream {
  std::size_t Read(void*, std::size_t) override { throw std::runtime_error("gone"); }
  std::size_t Write(const void*, std::size_t) override { throw std::runtime_error("gone"); }
};

}  // namespace

// Counts how often the library asks libxml2 for a node name, passing the call on.
extern "C" xmlChar* xmlTextReaderName(xmlTextReaderPtr Reader) {
  using Fn = xmlChar* (*)(xmlTextReaderPtr);
  static const auto Real = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "xmlTextReaderName"));
  ++NameFetches;
  return Real(Reader);
}

TEST(XMLTextReader, KeepsTheElementPathAndPopsEmptyElementsAtTheNextRead) {
  auto R = TXMLTextReader::CreateForString(u"<a><b/><c>x</c><d/>t</a>");
  const std::vector<TNode> Expected = {
      {T::XML_READER_TYPE_ELEMENT, u"a", u"/a"},     {T::XML_READER_TYPE_ELEMENT, u"b", u"/a/b"},
      {T::XML_READER_TYPE_ELEMENT, u"c", u"/a/c"},   {T::XML_READER_TYPE_TEXT, u"#text", u"/a/c"},
      {T::XML_READER_TYPE_END_ELEMENT, u"c", u"/a"}, {T::XML_READER_TYPE_ELEMENT, u"d", u"/a/d"},
      {T::XML_READER_TYPE_TEXT, u"#text", u"/a"},    {T::XML_READER_TYPE_END_ELEMENT, u"a", u""}};
  EXPECT_EQ(Walk(*R), Expected);
  EXPECT_FALSE(R->Read());
  R->PopPath();
  EXPECT_EQ(R->GetPath(), u"");
}

TEST(XMLTextReader, AsksLibxml2ForANameOncePerNode) {
  auto R = TXMLTextReader::CreateForString(u"<a k='1'>x</a>");
  NameFetches = 0;
  ASSERT_TRUE(R->Read());  // the element's name is fetched for the path
  EXPECT_EQ(R->GetName(), u"a");
  EXPECT_EQ(NameFetches, 1);
  ASSERT_EQ(R->MoveToNextAttribute(), 1);
  EXPECT_EQ(R->GetName(), u"k");
  EXPECT_EQ(R->GetName(), u"k");
  EXPECT_EQ(NameFetches, 2);
  ASSERT_TRUE(R->Read());
  EXPECT_EQ(R->GetName(), u"#text");
  EXPECT_EQ(NameFetches, 3);
}

TEST(XMLTextReader, WalksAttributesWithoutTouchingThePath) {
  auto R = TXMLTextReader::CreateForString(u"<a><b x='1' y='two'/></a>");
  ASSERT_TRUE(R->Read() && R->Read());
  EXPECT_TRUE(R->GetIsEmpty());
  std::vector<String> Seen;
  while (R->MoveToNextAttribute()) {
    EXPECT_EQ(R->GetNodeType(), T::XML_READER_TYPE_ATTRIBUTE);
    EXPECT_EQ(R->GetPath(), u"/a/b");
    Seen.push_back(R->GetName() + u"=" + R->GetValue());
  }
  EXPECT_EQ(Seen, (std::vector<String>{u"x=1", u"y=two"}));
  ASSERT_TRUE(R->Read());
  EXPECT_EQ(R->GetPath(), u"");
}

TEST(XMLTextReader, RaisesOnMalformedOrTruncatedDocumentsAfterTheGoodPart) {
  for (const String Doc : {u"", u"<a><b></a>", u"<a x='1' x='2'/>", u"<a/><b/>", u"<a>&nope;</a>"})
    ExpectRaises([&] { Walk(*TXMLTextReader::CreateForString(Doc)); }, u"parse error on Read",
                 true);
  // Large enough that libxml2 hands out nodes before it reaches the cut.
  String Long = u"<a>";
  for (int i = 0; i < 5000; ++i)
    Long += u"<b>text</b>";
  auto R = TXMLTextReader::CreateForString(Long.substr(0, Long.size() - 5));
  int Nodes = 0;
  ExpectRaises(
      [&] {
        while (R->Read())
          ++Nodes;
      },
      u"parse error on Read", true);
  EXPECT_GT(Nodes, 1000);
  TFailingStream Failing;
  ExpectRaises([&] { Walk(*TXMLTextReader::Create(Failing)); }, u"parse error on Read", true);
}

TEST(XMLTextReader, AFailedReadSaysWhereInTheFileItStopped) {
  const std::string Name = TempFile("bad.xml");
  std::ofstream(Name) << "<a>\n  <b></c>\n</a>\n";
  auto R = TXMLTextReader::Create(FromUTF8(Name));
  try {
    Walk(*R);
    ADD_FAILURE() << "no exception";
  } catch (const EXMLTextReader& E) {
    EXPECT_EQ(LocatedMessage(E), FromUTF8(Name) + u":2:10: parse error on Read");
  }
  std::filesystem::remove(Name);
  // A string has no file to name, but still a line.
  try {
    Walk(*TXMLTextReader::CreateForString(u"<a>\n<b>"));
    ADD_FAILURE() << "no exception";
  } catch (const EXMLTextReader& E) {
    EXPECT_EQ(E.Where().Line, 2);
    EXPECT_TRUE(E.Where().File.empty());
  }
}

TEST(XMLTextReader, ReadsFilesAndStreamsAndWidensEachByte) {
  ExpectRaises([] { TXMLTextReader::Create(u"/no/such/file.xml"); },
               u"unable to open /no/such/file.xml", false);
  const std::string Bytes = "<r n=\"M\xC3\xBCller\"><s>\xC3\xA9</s></r>";  // UTF-8 on disk
  const std::string Name = TempFile("reader.xml");
  std::ofstream(Name, std::ios::binary) << Bytes;
  std::istringstream In(Bytes);
  TStdStream Std(In);
  for (auto R : {TXMLTextReader::Create(FromLatin1(Name)), TXMLTextReader::Create(Std)}) {
    ASSERT_TRUE(R->Read() && R->MoveToNextAttribute());
    EXPECT_EQ(R->GetValue(), u"M\u00C3\u00BCller");
    ASSERT_TRUE(R->Read() && R->Read());
    EXPECT_EQ(R->GetValue(), u"\u00C3\u00A9");
    EXPECT_EQ(R->GetPath(), u"/r/s");
  }
  std::filesystem::remove(Name);
}

TEST(XMLTextWriter, EscapesAndSendsTheSameBytesToStringStreamAndFile) {
  const auto Fill = [](IXMLTextWriter& W) {
    W.StartElement(u"r");
    W.WriteAttribute(u"q", u"a\"<&");
    W.WriteString(u"1 < 2 & 3 > 2");
    W.WriteElement(u"e", u"\u00C3");
    W.EndElement();
    W.Close();
    W.Close();
  };
  String Text;
  Fill(*TXMLTextWriter::CreateForString(Text, false));
  EXPECT_EQ(Text,
            u"<?xml version=\"1.0\"?>\n<r q=\"a&quot;&lt;&amp;\">1 &lt; 2 &amp; 3 &gt; "
            u"2<e>\u00C3</e></r>\n");
  TMemoryStream Memory;
  Fill(*TXMLTextWriter::Create(Memory, false));
  EXPECT_EQ(Memory.Bytes(),
            "<?xml version=\"1.0\"?>\n<r q=\"a&quot;&lt;&amp;\">1 &lt; 2 &amp; 3 "
            "&gt; 2<e>\xC3</e></r>\n");
  const std::string Name = TempFile("writer.xml");
  Fill(*TXMLTextWriter::Create(FromLatin1(Name), false));
  std::stringstream File;
  File << std::ifstream(Name, std::ios::binary).rdbuf();
  EXPECT_EQ(File.str(), Memory.Bytes());
  std::filesystem::remove(Name);
  ExpectRaises([] { TXMLTextWriter::Create(u"/no/such/dir/x.xml", true); },
               u"unable to open /no/such/dir/x.xml", false);
}

TEST(XMLTextWriter, IndentsAndClosesOpenElementsOnDestruction) {
  String Text;
  {
    auto W = TXMLTextWriter::CreateForString(Text, true);
    W->StartElement(u"a");
    W->WriteElement(u"b", u"x");
    W->StartElement(u"c");
  }
  EXPECT_EQ(Text, u"<?xml version=\"1.0\"?>\n<a>\n <b>x</b>\n <c/>\n</a>\n");
}

TEST(XMLTextWriter, RaisesTheReaderClassWhenLibxml2RefusesAWrite) {
  String Text;
  auto W = TXMLTextWriter::CreateForString(Text, false);
  ExpectRaises([&] { W->EndElement(); }, u"write error in EndElement", true);
  ExpectRaises([&] { W->StartElement(u""); }, u"write error in StartElement", true);
  ExpectRaises([&] { W->WriteAttribute(u"a", u"1"); }, u"write error in WriteAttribute", true);
  W->Close();
  ExpectRaises([&] { W->WriteElement(u"a", u"1"); }, u"write error in WriteElement", true);
  ExpectRaises([&] { W->WriteString(u"1"); }, u"write error in WriteString", true);
  // A stream that throws is reported through libxml2 once its buffer spills.
  TFailingStream Failing;
  auto F = TXMLTextWriter::Create(Failing, false);
  F->StartElement(u"r");
  ExpectRaises(
      [&] {
        for (int i = 0; i < 100000; ++i)
          F->WriteElement(u"e", u"filler text");
      },
      u"write error in WriteElement", true);
}

TEST(XMLTextReaderWriter, RoundTripsNonAsciiTextThatCameFromTheReader) {
  // Text that came from the reader is bytes widened, so it goes back out as the same bytes.
  const String Value = u"M\u00C3\u00BCller \u00C2\u00B5g/dL";
  String Text;
  auto W = TXMLTextWriter::CreateForString(Text, false);
  W->StartElement(u"p");
  W->WriteAttribute(u"name", Value);
  W->WriteString(Value);
  W->Close();
  auto R = TXMLTextReader::CreateForString(Text);
  ASSERT_TRUE(R->Read() && R->MoveToNextAttribute());
  EXPECT_EQ(R->GetValue(), Value);
  ASSERT_TRUE(R->Read());
  EXPECT_EQ(R->GetValue(), Value);
  // A lone byte above 0x7F is not UTF-8, which is all libxml2 reads without a declaration.
  ExpectRaises([] { Walk(*TXMLTextReader::CreateForString(u"<p>\u00E9</p>")); },
               u"parse error on Read", true);
}

// The streaming reader and writer carry a document's bytes, one character each; the model's names
// are decoded UTF-16. The seam converts, so a non-ASCII name matches on both sides.
TEST(XMLTextReaderWriter, NonAsciiNamesCrossTheStreamingSeamBothWays) {
  const String ModelName = u"Gr\u00F6\u00DFe";
  TMemoryStream Document(
      "<Patient Gr\xC3\xB6\xC3\x9F"
      "e='1.8'/>");
  auto R = TXMLTextReader::Create(Document);
  ASSERT_TRUE(R->Read() && R->MoveToNextAttribute());
  EXPECT_NE(R->GetName(), ModelName);
  EXPECT_EQ(FromXMLStreamText(R->GetName()), ModelName);

  TMemoryStream Written;
  {
    auto W = TXMLTextWriter::Create(Written, false);
    W->StartElement(u"Patient");
    W->WriteAttribute(ToXMLStreamText(ModelName), ToXMLStreamText(u"\u20AC 5"));
    W->EndElement();
  }
  EXPECT_NE(Written.Bytes().find("<Patient Gr\xC3\xB6\xC3\x9F"
                                 "e="),
            std::string::npos);
  TMemoryStream Again(Written.Bytes());
  auto Back = TXMLTextReader::Create(Again);
  ASSERT_TRUE(Back->Read() && Back->MoveToNextAttribute());
  EXPECT_EQ(FromXMLStreamText(Back->GetName()), ModelName);
  EXPECT_EQ(FromXMLStreamText(Back->GetValue()), u"\u20AC 5");
  EXPECT_EQ(ToXMLStreamText(u"plain"), u"plain");
}
