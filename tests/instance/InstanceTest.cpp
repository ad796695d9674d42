#include "gello/instance/Instance.h"

#include <gtest/gtest.h>

#include "../ocl/ExpectMessage.h"
#include "gello/foundation/Exceptions.h"
#include "gello/instance/CollectionInstance.h"
#include "gello/instance/DataCells.h"
#include "gello/instance/InstanceStack.h"
#include "gello/model/Class.h"
#include "gello/model/Globals.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

struct InstanceTest : testing::Test {
  Ref<TRTTIGlobals> Globals = MakeRef<TRTTIGlobals>();
  // Person(name: String, age: Integer); Patient extends Person with (weight: Real).
  Ref<TRTTIClass> Person = MakeRef<TRTTIClass>(u"Person", Globals->Get_Any());
  Ref<TRTTIClass> Patient = MakeRef<TRTTIClass>(u"Patient", Person);

  void SetUp() override {
    AddProperty(Person, u"name", Globals->Get_String());
    AddProperty(Person, u"age", Globals->Get_Integer());
    AddProperty(Patient, u"weight", Globals->Get_Real());
  }
  void TearDown() override {
    Patient->Clear();
    Person->Clear();
    Globals->Clear();
  }
  static void AddProperty(const Ref<TRTTIClass>& Class, const String& Name,
                          const Ref<IRTTIClass>& Type) {
    ASSERT_TRUE(Class->AddMember(MakeRef<TRTTIProperty>(Name, Type)));
  }
  Ref<IRTTIClassInstance> Cell(const Ref<IRTTIClass>& Type, const String& Text) {
    Ref<IRTTIClassInstance> Made = TRTTIClassInstance::CreateFromClass(Type);
    Made->SetasString(Text);
    return Made;
  }
};

template <class T>
bool Is(const Ref<IRTTIClassInstance>& Instance) {
  return dynamic_cast<T*>(Instance.get()) != nullptr;
}

}  // namespace

TEST_F(InstanceTest, CreateFromClassChoosesByKind) {
  EXPECT_TRUE(Is<TRTTIStringData>(TRTTIClassInstance::CreateFromClass(Globals->Get_String())));
  EXPECT_TRUE(Is<TRTTIIntegerData>(TRTTIClassInstance::CreateFromClass(Globals->Get_Integer())));
  EXPECT_TRUE(Is<TRTTIRealData>(TRTTIClassInstance::CreateFromClass(Globals->Get_Real())));
  EXPECT_TRUE(Is<TRTTIBooleanData>(TRTTIClassInstance::CreateFromClass(Globals->Get_Boolean())));
  EXPECT_TRUE(
      Is<TRTTICollectionInstance>(TRTTIClassInstance::CreateFromClass(Globals->Get_Sequence())));
  Ref<IRTTIClassInstance> Plain = TRTTIClassInstance::CreateFromClass(Patient);
  EXPECT_TRUE(Is<TRTTIClassInstance>(Plain) && !Is<TRTTICollectionInstance>(Plain));
  // The top bit of the kind is masked off.
  auto Flagged = MakeRef<TRTTIClass>(u"Flagged");
  Flagged->SetClassKind(static_cast<TRTTIClassKind>(128 | rtti_integer));
  EXPECT_TRUE(Is<TRTTIIntegerData>(TRTTIClassInstance::CreateFromClass(Flagged)));
  Flagged->SetClassKind(static_cast<TRTTIClassKind>(9));
  EXPECT_EQ(TRTTIClassInstance::CreateFromClass(Flagged), nullptr);
  auto Undefined = MakeRef<TRTTIClass>(u"Vague");
  ExpectMessage<Exception>([&] { TRTTIClassInstance::CreateFromClass(Undefined); },
                           u"Internal error: undefined class kind (Vague)");
}

TEST_F(InstanceTest, PropertiesByNameAndPositionAcrossAncestors) {
  auto Instance = MakeRef<TRTTIClassInstance>(Patient);
  ASSERT_EQ(Instance->GetPropertyCount(), 3);
  EXPECT_EQ(Instance->GetPropertyName(3), u"");
  Instance->SetPropertyByName(u"name", Cell(Globals->Get_String(), u"Ann"));
  Instance->SetPropertyValue(2, Cell(Globals->Get_Real(), u"61.5"));
  EXPECT_EQ(Instance->GetPropertyValue(0)->GetasString(), u"Ann");
  EXPECT_EQ(Instance->GetPropertyByName(u"weight")->GetasString(), u"61.5");
  EXPECT_EQ(Instance->GetPropertyByName(u"age"), nullptr);
  Instance->SetPropertyByName(u"missing", Cell(Globals->Get_String(), u"x"));  // ignored
  EXPECT_EQ(Instance->GetSlotCount(), 3);

  Ref<IRTTIClassInstance> Age = Instance->CreateProperty(u"age");
  ASSERT_TRUE(Is<TRTTIIntegerData>(Age));
  EXPECT_EQ(Instance->GetPropertyValue(1), Age);
  EXPECT_EQ(Instance->CreateProperty(u"missing"), nullptr);
  // The value array grows when the class gained properties.
  AddProperty(Patient, u"height", Globals->Get_Real());
  Instance->SetPropertyByName(u"height", Cell(Globals->Get_Real(), u"1.7"));
  EXPECT_EQ(Instance->GetSlotCount(), 4);
  EXPECT_EQ(Instance->GetPropertyByName(u"height")->GetasString(), u"1.7");
}

TEST_F(InstanceTest, JSONForms) {
  auto Instance = MakeRef<TRTTIClassInstance>(Patient);
  EXPECT_EQ(Instance->GetasJSON().dump(), R"({"#type":"Patient"})");
  Instance->SetPropertyByName(u"weight", Cell(Globals->Get_Real(), u"61.5"));
  Instance->SetPropertyByName(u"name", Cell(Globals->Get_String(), u"Ann"));
  EXPECT_EQ(Instance->GetasJSON().dump(),
            R"({"#type":"Patient","name":{"#type":"String",".value":"Ann"},)"
            R"("weight":{"#type":"Real",".value":61.5}})");
  EXPECT_EQ(Instance->GetasCompactJSON().dump(),
            R"({"#type":"Patient","name":"Ann","weight":61.5})");

  auto List = MakeRef<TRTTICollectionInstance>(Globals->Get_Sequence());
  List->Add(Cell(Globals->Get_Integer(), u"7"));
  List->Add(nullptr);
  List->Add(Cell(Globals->Get_Boolean(), u"unknown"));
  EXPECT_EQ(List->GetasCompactJSON().dump(), "[7,null,true]");
  EXPECT_EQ(List->GetasJSON().dump(),
            R"J({"#type":"Sequence(T)",".value":[{"#type":"Integer",".value":7},null,)J"
            R"J({"#type":"Boolean",".value":true}]})J");
  EXPECT_EQ(Cell(Globals->Get_Real(), u"NAN")->GetasCompactJSON().dump(), R"("NAN")");
}

TEST_F(InstanceTest, DataCellTextAndTokens) {
  Ref<IRTTIClassInstance> Text = Cell(Globals->Get_String(), u"it's");
  EXPECT_EQ(Text->GetasToken(), u"'it''s'");
  Text->SetasToken(u"'it''s'");
  EXPECT_EQ(Text->GetasString(), u"it's");

  Ref<IRTTIClassInstance> Whole = Cell(Globals->Get_Integer(), u"-42");
  EXPECT_THROW(Whole->SetasString(u"4x"), EConvertError);
  EXPECT_EQ(Whole->GetasString(), u"-42");  // unchanged after a failed set

  EXPECT_THROW(Cell(Globals->Get_Real(), u"inf"), EConvertError);
  EXPECT_EQ(Cell(Globals->Get_Boolean(), u"TRUE")->GetasString(), u"true");

  auto Plain = MakeRef<TRTTIClassInstance>(Person);
  Plain->SetasToken(u"stored");
  EXPECT_EQ(Plain->GetasString(), u"stored");
}

TEST_F(InstanceTest, Collections) {
  auto Bag = Globals->BuildCollection(u"Bag", u"Integer");
  Bag->SetClassKind(rtti_bag);
  auto List = MakeRef<TRTTICollectionInstance>(Bag);
  Ref<IRTTIClassInstance> First = List->CreateElement();
  EXPECT_TRUE(Is<TRTTIIntegerData>(First));
  List->SetElements(3, First);
  EXPECT_EQ(List->GetCount(), 4);
  EXPECT_EQ(List->GetElements(3), First);
  EXPECT_EQ(List->GetElements(1), nullptr);
  List->SetCount(1);
  EXPECT_EQ(List->GetasString(), u"(Collection): Bag(Integer)");
  ExpectMessage<Exception>(
      [&] { List->SetasString(u"x"); },
      u"RTTI collection instance can't be assigned a string value: Bag(Integer)");
  Bag->Clear();
}

TEST_F(InstanceTest, StackPopsLastPushedAndGrowsBySixteen) {
  TRTTIInstanceStack Stack;
  ExpectMessage<Exception>([&] { Stack.pop(); }, u" trying to pop from empty RTTI instance stack.");
  std::vector<Ref<IRTTIClassInstance>> Pushed;
  for (int i = 0; i < 17; ++i) {
    Pushed.push_back(MakeRef<TRTTIClassInstance>(Person));
    Stack.push(Pushed.back());
  }
  EXPECT_EQ(Stack.Capacity(), 32u);
  for (int i = 16; i >= 0; --i)
    EXPECT_EQ(Stack.pop(), Pushed[static_cast<std::size_t>(i)]);
  EXPECT_TRUE(Stack.empty());
}
