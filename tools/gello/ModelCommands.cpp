#include <iostream>
#include <memory>
#include <string>

#include "Commands.h"
#include "ModelSummary.h"
#include "ToolFiles.h"
#include "gello/foundation/Exceptions.h"
#include "gello/interchange/JSONForm.h"
#include "gello/interchange/NativeXML.h"
#include "gello/interchange/PackageFiles.h"
#include "gello/interchange/XMLDocument.h"
#include "gello/model/Globals.h"

namespace gello::tool {
namespace {

// The model and the global scope it was read into, cleared when the command ends however it
// ends, since classes and their packages refer to one another.
struct TModel {
  Ref<TRTTIGlobals> Globals = MakeRef<TRTTIGlobals>();
  Ref<TRTTIPackage> Package = MakeRef<TRTTIPackage>(String());
  TModel() = default;
  TModel(const TModel&) = delete;
  TModel& operator=(const TModel&) = delete;
  ~TModel() {
    Package->Clear();
    Globals->Clear();
  }
};

void ExpectModelRoot(const std::string& FileName, const pugi::xml_node& Root) {
  if (std::string_view(Root.name()) == "GELLO") return;
  Exception Failure(u"not a gello model: the root element is <" + FromUTF8(Root.name()) +
                    u">, expected <GELLO>");
  Failure.SetWhere({InputName(FileName)});
  throw Failure;
}

// The package joins the global scope only once read, so the classes it names are placeholders
// until resolving binds them.
void LoadModel(const std::string& FileName, TModel& Model) {
  const std::string Bytes = ReadInput(FileName);
  pugi::xml_document Document;
  try {
    ParseXMLDocument(Document, Bytes);
    ExpectModelRoot(FileName, Document.document_element());
    ReadXML(*Model.Package, Document.document_element(), Model.Globals.get());
  } catch (Exception& E) {
    PlaceInInput(E, FileName, Bytes);
    throw;
  }
  Model.Globals->AddMember(Model.Package);
}

void Info(const std::string& FileName) {
  TModel Model;
  LoadModel(FileName, Model);
  Model.Package->Resolve(Model.Globals.get());
  PrintSummary(*Model.Package, *Model.Globals, std::cout);
}

void Convert(const std::string& In, const std::string& Out, const std::string& Format) {
  TModel Model;
  LoadModel(In, Model);
  WriteOutput(Out, [&](std::ostream& Stream) {
    if (Format == "xml")
      WriteModelDocument(*Model.Package, Stream);
    else
      Stream << GetasJSON(*Model.Package).dump(2) << '\n';
  });
}

}  // namespace

void AddModelCommands(CLI::App& App) {
  CLI::App* Model =
      App.add_subcommand("model", "Read, summarise and convert models")->require_subcommand(1);
  CLI::App* InfoCommand = Model->add_subcommand("info", "Summarise a model in the native form");
  auto FileName = std::make_shared<std::string>();
  InfoCommand->add_option("FILE", *FileName, "The model file, or - for standard input")->required();
  InfoCommand->callback([FileName] { Info(*FileName); });

  CLI::App* ConvertCommand = Model->add_subcommand("convert", "Write a native model in a form");
  auto In = std::make_shared<std::string>();
  auto Out = std::make_shared<std::string>();
  auto Format = std::make_shared<std::string>();
  ConvertCommand
      ->add_option("IN", *In, "The model file in the native form, or - for standard input")
      ->required();
  ConvertCommand->add_option("OUT", *Out, "The file to write, or - for standard output")
      ->required();
  ConvertCommand->add_option("--to", *Format, "The form to write")
      ->required()
      ->check(CLI::IsMember({"xml", "json"}));
  ConvertCommand->callback([In, Out, Format] { Convert(*In, *Out, *Format); });
}

}  // namespace gello::tool
