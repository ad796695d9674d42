// The gello command-line tool: the front door to models and instance documents.
#include <CLI/CLI.hpp>

#include <iostream>

#include "Commands.h"
#include "gello/foundation/Exceptions.h"

int main(int argc, char** argv) {
  CLI::App App{"gello: GELLO models, expressions and instance documents"};
  App.set_version_flag("--version", std::string("gello ") + GELLO_VERSION);
  App.require_subcommand(1);
  gello::tool::AddXmlCommands(App);
  gello::tool::AddModelCommands(App);
  gello::tool::AddRegistryCommands(App);
  try {
    App.parse(argc, argv);
  } catch (const CLI::ParseError& E) {
    return App.exit(E);
  } catch (const gello::Exception& E) {
    std::cerr << "gello: " << E.what() << '\n';
    return 1;
  }
  return 0;
}
