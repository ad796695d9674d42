#include "gello/interchange/JSONForm.h"

#include <gtest/gtest.h>

#include "gello/expr/Literals.h"
#include "gello/expr/Navigation.h"
#include "gello/foundation/Exceptions.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/Globals.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

std::vector<std::string> Keys(const TJSON& Object) {
  std::vector<std::string> Result;
  for (const auto& Item : Object.items())
    Result.push_back(Item.key());
  return Result;
}

using TKeys = std::vector<std::string>;

}  // namespace

TEST(JSONForm, KeysAndKeptAsymmetries) {
  auto Globals = MakeRef<TRTTIGlobals>();
  auto Integer = Globals->Get_Integer();
  auto Package = MakeRef<TRTTIPackage>(u"Clinic");
  auto Patient = MakeRef<TRTTIClass>(u"Patient", Globals->Get_Any());
  Patient->SetAnnotation(u"under care");
  auto Age = MakeRef<TRTTIMethod>(u"age", Integer);
  Age->GetParams()->Add(MakeRef<TRTTIProperty>(u"at", Integer));
  Age->SetResultValue(MakeRef<TRTTIIntegerLiteral>(Integer, 40));
  Patient->AddMember(Age);
  auto Weight = MakeRef<TRTTIProperty>(u"weight", Globals->Get_Real());
  Weight->SetPropertyValue(MakeRef<TRTTIRealLiteral>(Globals->Get_Real(), 2.5));
  Patient->AddMember(Weight);
  Package->AddMember(Patient);
  auto Params = MakeRef<TRTTIElementList>();
  Params->Add(MakeRef<TRTTIIntegerLiteral>(Integer, 1));
  Package->GetStatements()->Add(MakeRef<TRTTIMethodCall>(u"f", Integer, nullptr, Params, nullptr));

  const TJSON Value = GetasJSON(*Package);
  EXPECT_EQ(Keys(Value), (TKeys{"name", "kind", "ownsMembers", "members", "statements"}));
  const TJSON& Class = Value["members"][0];
  EXPECT_EQ(Keys(Class), (TKeys{"name", "kind", "ownsMembers", "members", "ancestor"}));
  EXPECT_EQ(Class["ancestor"], "Any");
  EXPECT_EQ(Keys(Class["members"][0]), (TKeys{"name", "kind", "type", "params", "value"}));
  EXPECT_EQ(Class["members"][1]["value"]["value"], "2.5");
  // Without a receiver a call loses its parameters.
  EXPECT_EQ(Keys(Value["statements"][0]), (TKeys{"name", "kind", "type"}));

  auto Read = MakeRef<TRTTIPackage>(String());
  auto Imports = MakeRef<TRTTIElementList>();
  Read->SetImports(Imports);
  SetasJSON(*Read, Value);
  EXPECT_EQ(Read->GetName(), u"Clinic");
  EXPECT_EQ(Read->GetImports(), Imports);  // no "imports": kept as they were
  auto ReadPatient = Read->Find<IRTTIClass>(u"Patient");
  EXPECT_EQ(ReadPatient->GetAnnotation(), u"");  // never written
  EXPECT_EQ(ReadPatient->GetAncestor()->GetName(), u"Any");
  auto ReadAge = ReadPatient->Find<IRTTIMethod>(u"age");
  EXPECT_EQ(ReadAge->GetParams()->GetCount(), 1);
  EXPECT_FALSE(ReadAge->GetResultValue());  // written, not read
  EXPECT_EQ(DynCast<IRTTILiteral>(ReadPatient->Find<IRTTIProperty>(u"weight")->GetPropertyValue())
                ->GetasString(),
            u"2.5");
  auto Call = DynCast<TRTTIMethodCall>(Read->GetStatements()->GetItems(0));
  EXPECT_EQ(Call->GetValueType()->GetName(), u"Integer");

  // A list reads an object of a name it holds into that item; an unknown kind is refused.
  SetasJSON(*Read->GetMembers(),
            TJSON::parse(R"([{"name": "Patient", "kind": "Class", "annotation": "again"}])"));
  EXPECT_EQ(Read->GetMembers()->GetCount(), 1);
  EXPECT_EQ(ReadPatient->GetAnnotation(), u"again");
  try {
    SetasJSON(*Read->GetMembers(), TJSON::parse(R"([{"name": "X", "kind": "Thing"}])"));
    ADD_FAILURE() << "an unknown kind must be refused";
  } catch (const Exception& Error) {
    EXPECT_EQ(Error.Message(), u"RTTI class name not registered : TRTTIThing");
  }
  Read->Clear();
  Package->Clear();
  Globals->Clear();
}
