#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "Commands.h"
#include "ModelSummary.h"
#include "gello/foundation/Exceptions.h"
#include "gello/interchange/JSONForm.h"
#include "gello/interchange/PackageFiles.h"
#include "gello/model/Globals.h"

namespace gello::tool {
namespace {

// The package is named by its file; it joins the global scope only once read, so the
// classes it names are placeholders until resolving binds them.
Ref<TRTTIPackage> LoadModel(const std::string& FileName, IRTTIGlobals& Globals) {
  auto Package = MakeRef<TRTTIPackage>(String());
  LoadFromFile(*Package, FromUTF8(FileName), &Globals);
  Globals.AddMember(Package);
  return Package;
}

void Info(const std::string& FileName) {
  auto Globals = MakeRef<TRTTIGlobals>();
  Ref<TRTTIPackage> Package = LoadModel(FileName, *Globals);
  Package->Resolve(Globals.get());
  PrintSummary(*Package, *Globals, std::cout);
  Globals->Clear();
}

void Convert(const std::string& In, const std::string& Out, const std::string& Format) {
  auto Globals = MakeRef<TRTTIGlobals>();
  Ref<TRTTIPackage> Package = LoadModel(In, *Globals);
  if (Format == "xml") {
    SaveToFile(*Package, FromUTF8(Out));
  } else {
    std::ofstream Stream(Out, std::ios::binary | std::ios::trunc);
    Stream << GetasJSON(*Package).dump(2) << '\n';
    if (!Stream) throw Exception(u"Cannot create file \"" + FromUTF8(Out) + u"\"");
  }
  Globals->Clear();
}

}  // namespace

void AddModelCommands(CLI::App& App) {
  CLI::App* Model =
      App.add_subcommand("model", "Read, summarise and convert models")->require_subcommand(1);
  CLI::App* InfoCommand = Model->add_subcommand("info", "Summarise a model in the native form");
  auto FileName = std::make_shared<std::string>();
  InfoCommand->add_option("FILE", *FileName, "The model file")->required();
  InfoCommand->callback([FileName] { Info(*FileName); });

  CLI::App* ConvertCommand = Model->add_subcommand("convert", "Write a native model in a form");
  auto In = std::make_shared<std::string>();
  auto Out = std::make_shared<std::string>();
  auto Format = std::make_shared<std::string>();
  ConvertCommand->add_option("IN", *In, "The model file in the native form")->required();
  ConvertCommand->add_option("OUT", *Out, "The file to write")->required();
  ConvertCommand->add_option("--to", *Format, "The form to write")
      ->required()
      ->check(CLI::IsMember({"xml", "json"}));
  ConvertCommand->callback([In, Out, Format] { Convert(*In, *Out, *Format); });
}

}  // namespace gello::tool
