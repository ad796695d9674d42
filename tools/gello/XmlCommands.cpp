#include "Commands.h"

namespace gello::tool {

void AddXmlCommands(CLI::App& App) {
  App.add_subcommand("xml", "Look inside XML documents")->require_subcommand(1);
}

}  // namespace gello::tool
