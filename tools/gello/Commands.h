#pragma once
// Each family of subcommands registers itself on the tool's application.
#include <CLI/CLI.hpp>

namespace gello::tool {

/// "xml paths FILE": streams an XML file and prints each element's path.
void AddXmlCommands(CLI::App& App);
/// "registry [INTERFACE]": the class registry's dump, or an interface's slot listing.
void AddRegistryCommands(CLI::App& App);

/// "model info FILE" and "model convert IN OUT --to xml|json": native models.
void AddModelCommands(CLI::App& App);

}  // namespace gello::tool
