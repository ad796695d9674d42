#include <iostream>
#include <memory>
#include <string>

#include "Commands.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/registry/IntfQueries.h"
#include "gello/registry/Registry.h"

namespace gello::tool {
namespace {

void PrintLines(const std::vector<String>& Lines) {
  for (const String& Line : Lines)
    std::cout << ToUTF8(Line) << '\n';
}

// The registry for one command; its closing dump would repeat what the command printed.
struct TRegistryScope {
  TRegistryScope() { RegisterInterfaces(); }
  ~TRegistryScope() {
    TLogCapture Quiet;
    FinalizeOCLRegistry();
  }
  TRegistryScope(const TRegistryScope&) = delete;
  TRegistryScope& operator=(const TRegistryScope&) = delete;
};

// The registry's dump, or one interface's method table with its slots.
void PrintRegistry(const std::string& Interface) {
  TRegistryScope Registry;
  std::vector<String> Lines;
  {
    TLogCapture Log;
    if (Interface.empty()) OCLRegistry().Dump(true);
    Lines = Log.Lines();
  }
  if (!Interface.empty()) {
    const TIntfInfo* Intf = OCLRegistry().FindInterfaceTypeByName(FromUTF8(Interface));
    if (!Intf) throw Exception(u"no registered interface " + FromUTF8(Interface));
    PrintInterface(*Intf, Lines);
  }
  PrintLines(Lines);
}

}  // namespace

void AddRegistryCommands(CLI::App& App) {
  CLI::App* Registry = App.add_subcommand(
      "registry", "Print the OCL class registry, or the method table of one interface");
  auto Interface = std::make_shared<std::string>();
  Registry->add_option("INTERFACE", *Interface, "An interface name, such as IOCLInteger");
  Registry->callback([Interface] { PrintRegistry(*Interface); });
}

}  // namespace gello::tool
