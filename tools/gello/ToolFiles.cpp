#include "ToolFiles.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "gello/foundation/Exceptions.h"
#include "gello/interchange/XMLDocument.h"

namespace gello::tool {
namespace {

[[noreturn]] void FailIn(const String& File, const String& Message) {
  Exception Failure(Message);
  TSourcePosition Where;
  Where.File = File;
  Failure.SetWhere(std::move(Where));
  throw Failure;
}

String SystemError() {
  return FromUTF8(std::strerror(errno));
}

// mkstemp makes the file private; the output gets the mode any new file would.
void GiveUsualMode(int Descriptor) {
  const mode_t Mask = umask(0);
  umask(Mask);
  fchmod(Descriptor, 0666 & ~Mask);
}

}  // namespace

String InputName(const std::string& Name) {
  return Name == "-" ? String(u"<stdin>") : FromUTF8(Name);
}

void ExpectReadable(const std::string& Name) {
  std::error_code Ignored;
  if (std::filesystem::is_directory(Name, Ignored)) FailIn(InputName(Name), u"is a directory");
  if (access(Name.c_str(), R_OK) != 0) FailIn(InputName(Name), SystemError());
}

std::string ReadInput(const std::string& Name) {
  if (Name == "-")
    return {std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>()};
  ExpectReadable(Name);
  std::ifstream File(Name, std::ios::binary);
  if (!File) FailIn(InputName(Name), SystemError());
  std::string Bytes{std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>()};
  if (File.bad()) FailIn(InputName(Name), SystemError());
  return Bytes;
}

void PlaceInInput(Exception& E, const std::string& Name, std::string_view Bytes) {
  LocateInText(E, Bytes);
  TSourcePosition Where = E.Where();
  Where.File = InputName(Name);
  E.SetWhere(std::move(Where));
}

void WriteOutput(const std::string& Name, const std::function<void(std::ostream&)>& Write) {
  if (Name == "-") {
    Write(std::cout);
    std::cout.flush();
    if (!std::cout) FailIn(u"<stdout>", u"cannot write");
    return;
  }
  std::string Temporary = Name + ".XXXXXX";
  const int Descriptor = mkstemp(Temporary.data());
  if (Descriptor < 0) FailIn(FromUTF8(Name), u"cannot create: " + SystemError());
  GiveUsualMode(Descriptor);
  close(Descriptor);
  try {
    {
      std::ofstream Stream(Temporary, std::ios::binary | std::ios::trunc);
      Write(Stream);
      Stream.flush();
      if (!Stream) FailIn(FromUTF8(Name), u"cannot write");
    }
    std::filesystem::rename(Temporary, Name);
  } catch (...) {
    std::filesystem::remove(Temporary);
    throw;
  }
}

}  // namespace gello::tool
