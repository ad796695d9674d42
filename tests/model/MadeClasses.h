#pragma once
// A test fixture that keeps the classes a test makes and clears them at its end, breaking cycles,
// and helpers shared by the model tests.
#include <gtest/gtest.h>

#include <vector>

#include "gello/foundation/Exceptions.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/Property.h"

struct MadeClasses : testing::Test {
  std::vector<gello::Ref<gello::IRTTIClass>> Made;
  gello::Ref<gello::IRTTIClass> Class(const gello::String& Name,
                                      const gello::Ref<gello::IRTTIClass>& Ancestor = nullptr) {
    Made.push_back(gello::MakeRef<gello::TRTTIClass>(Name, Ancestor));
    return Made.back();
  }
  void TearDown() override {
    for (auto& C : Made)
      C->Clear();
  }
};

// A property Name of type Type, added to Owner.
inline gello::Ref<gello::IRTTIProperty> Property(const gello::Ref<gello::IRTTIClass>& Owner,
                                                 const gello::String& Name,
                                                 const gello::Ref<gello::IRTTIClass>& Type) {
  auto P = gello::MakeRef<gello::TRTTIProperty>(Name, Type);
  Owner->AddMember(P);
  return P;
}

// The text of the assertion failure Action raises, or "<none>".
template <typename F>
gello::String AssertionText(F&& Action) {
  try {
    Action();
  } catch (const gello::EAssertionFailed& Failure) {
    return Failure.Text();
  }
  return u"<none>";
}

// The message of the error Action raises, or "<none>".
template <typename F>
gello::String ErrorMessage(F&& Action) {
  try {
    Action();
  } catch (const gello::Exception& Error) {
    return Error.Message();
  }
  return u"<none>";
}

// The UML id an element makes from its GUID.
inline gello::String UMLIdOf(const gello::GUID& Id) {
  gello::String Groups = Id.ToString().substr(1, 36);
  for (char16_t& C : Groups)
    if (C == u'-') C = u'_';
  return u"QX_" + Groups;
}

// The names of a list's elements, in order.
inline std::vector<gello::String> Names(gello::IRTTIElementList& List) {
  std::vector<gello::String> Result;
  for (int i = 0; i < List.GetCount(); ++i)
    Result.push_back(List.GetItems(i)->GetName());
  return Result;
}
