// Streaming a large instance document: the reader with its running paths and per-node caches,
// against a bare libxml2 text-reader loop doing the same work in UTF-8, opened each of the ways
// libxml2 offers; the fastest of them is the floor.
#include <benchmark/benchmark.h>
#include <libxml/xmlreader.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "gello/foundation/XMLTextReader.h"

namespace {

// About 30 MB of clinical records, written once per run and removed at exit.
class TDocument {
 public:
  TDocument()
      : FName((std::filesystem::temp_directory_path() /
               ("gello-bench-" + std::to_string(getpid()) + ".xml"))
                  .string()) {
    std::ofstream Out(FName, std::ios::binary);
    Out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Records>\n";
    for (int i = 0; i < 30000; ++i) {
      Out << "  <PatientRecord id=\"PR-" << i << "\">\n"
          << "    <Patient><name><family>M\xC3\xBCller</family><given>Anna</given></name>"
             "<gender code=\"F\"/><birthDate value=\"1957-08-02\"/></Patient>\n"
          << "    <Observations>\n";
      for (int j = 0; j < 4; ++j)
        Out << "      <Observation status=\"final\"><code code=\"8480-6\" codeSystem=\"LOINC\"/>"
               "<value value=\""
            << 100 + (i + j) % 80
            << "\" unit=\"mm[Hg]\"/><effectiveTime value=\"2026-03-14T09:12:00Z\"/>"
               "<note>measured seated</note></Observation>\n";
      Out << "    </Observations>\n  </PatientRecord>\n";
    }
    Out << "</Records>\n";
  }
  ~TDocument() { std::filesystem::remove(FName); }
  const std::string& Name() const { return FName; }
  std::int64_t Bytes() const {
    return static_cast<std::int64_t>(std::filesystem::file_size(FName));
  }

 private:
  std::string FName;
};

const TDocument& Document() {
  static const TDocument Doc;
  return Doc;
}

void BM_TXMLTextReader(benchmark::State& State) {
  const gello::String Name = gello::FromLatin1(Document().Name());
  for (auto _ : State) {
    auto Reader = gello::TXMLTextReader::Create(Name);
    std::size_t Seen = 0;
    while (Reader->Read())
      if (Reader->GetNodeType() == gello::TxmlReaderTypes::XML_READER_TYPE_ELEMENT)
        Seen += Reader->GetName().size() + Reader->GetPath().size();
    benchmark::DoNotOptimize(Seen);
  }
  State.SetBytesProcessed(State.iterations() * Document().Bytes());
}

void PopPath(std::string& Path) {
  const auto Slash = Path.rfind('/');
  Path.resize(Slash == std::string::npos ? 0 : Slash);
}

std::string ReadWhole(const std::string& Name) {
  std::ifstream In(Name, std::ios::binary);
  return {std::istreambuf_iterator<char>(In), std::istreambuf_iterator<char>()};
}

// Opens the document the way Opener does; the file's bytes, when it needs them, are read in the
// timed loop as well.
enum TOpener { by_filename, by_file, by_memory };

xmlTextReaderPtr Open(TOpener Opener, std::string& Bytes) {
  const std::string& Name = Document().Name();
  switch (Opener) {
    case by_filename:
      return xmlNewTextReaderFilename(Name.c_str());
    case by_file:
      return xmlReaderForFile(Name.c_str(), nullptr, 0);
    case by_memory:
      Bytes = ReadWhole(Name);
      return xmlReaderForMemory(Bytes.data(), static_cast<int>(Bytes.size()), Name.c_str(), nullptr,
                                0);
  }
  return nullptr;
}

void BM_BareLibxml2(benchmark::State& State) {
  const auto Opener = static_cast<TOpener>(State.range(0));
  for (auto _ : State) {
    std::string Bytes;
    xmlTextReaderPtr Reader = Open(Opener, Bytes);
    std::string Path;
    bool PendingEmpty = false;
    std::size_t Seen = 0;
    while (xmlTextReaderRead(Reader) == 1) {
      if (PendingEmpty) PopPath(Path);
      PendingEmpty = false;
      const int Type = xmlTextReaderNodeType(Reader);
      if (Type == XML_READER_TYPE_ELEMENT) {
        const char* Name = reinterpret_cast<const char*>(xmlTextReaderConstName(Reader));
        Path += '/';
        Path += Name;
        PendingEmpty = xmlTextReaderIsEmptyElement(Reader) == 1;
        Seen += std::strlen(Name) + Path.size();
      } else if (Type == XML_READER_TYPE_END_ELEMENT) {
        PopPath(Path);
      }
    }
    xmlFreeTextReader(Reader);
    benchmark::DoNotOptimize(Seen);
  }
  State.SetBytesProcessed(State.iterations() * Document().Bytes());
}

BENCHMARK(BM_TXMLTextReader)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BareLibxml2)
    ->ArgName("opener")  // 0 xmlNewTextReaderFilename, 1 xmlReaderForFile, 2 xmlReaderForMemory
    ->Arg(by_filename)
    ->Arg(by_file)
    ->Arg(by_memory)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
