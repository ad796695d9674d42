// The gello command-line tool: the front door to models and instance documents.
#include <CLI/CLI.hpp>

#include <iostream>

#include "Commands.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/model/MethodTimer.h"

namespace {

// Exit statuses: the input was bad, or the command line was.
constexpr int BadInput = 1;
constexpr int BadCommandLine = 2;

void Discard(const gello::String&) {}
void DiscardPair(const gello::String&, const gello::String&) {}

// The library's log goes to standard error: all of it with --verbose, none with --quiet, and
// everything but the timings otherwise.
void ChooseLog(bool Quiet, bool Verbose) {
  gello::SetMethodTimersLogged(Verbose);
  if (!Quiet) return;
  gello::LogMessage = Discard;
  gello::LogMessageStr = DiscardPair;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App App{"gello: GELLO models, expressions and instance documents"};
  App.set_version_flag("--version", std::string("gello ") + GELLO_VERSION);
  bool Quiet = false;
  bool Verbose = false;
  CLI::Option* QuietFlag = App.add_flag("-q,--quiet", Quiet, "Show none of the library's log");
  App.add_flag("-v,--verbose", Verbose, "Show all of the library's log, timings included")
      ->excludes(QuietFlag);
  App.parse_complete_callback([&] { ChooseLog(Quiet, Verbose); });
  App.require_subcommand(1);
  gello::tool::AddXmlCommands(App);
  gello::tool::AddModelCommands(App);
  gello::tool::AddRegistryCommands(App);
  try {
    App.parse(argc, argv);
  } catch (const CLI::ParseError& E) {
    return App.exit(E) == 0 ? 0 : BadCommandLine;
  } catch (const gello::Exception& E) {
    std::cerr << "gello: " << gello::ToUTF8(gello::LocatedMessage(E)) << '\n';
    return BadInput;
  } catch (const std::exception& E) {
    std::cerr << "gello: " << E.what() << '\n';
    return BadInput;
  }
  return 0;
}
