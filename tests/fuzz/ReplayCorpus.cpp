// Without libFuzzer, a fuzz target runs once over every file of its corpus folder, so the corpus
// stays a regression test in the ordinary build.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size);

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " CORPUS_DIR\n";
    return 2;
  }
  int Count = 0;
  for (const auto& Entry : std::filesystem::directory_iterator(argv[1])) {
    std::ifstream In(Entry.path(), std::ios::binary);
    const std::string Bytes{std::istreambuf_iterator<char>(In), std::istreambuf_iterator<char>()};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(Bytes.data()), Bytes.size());
    ++Count;
  }
  std::cout << "replayed " << Count << " inputs\n";
  return Count > 0 ? 0 : 1;
}
