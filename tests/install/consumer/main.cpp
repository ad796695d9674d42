// Loads a native model with an installed gello and prints how many classes its package holds.
#include <iostream>

#include "gello/foundation/Exceptions.h"
#include "gello/interchange/PackageFiles.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/Globals.h"

int main(int argc, char** argv) {
  using namespace gello;
  if (argc != 2) {
    std::cerr << "usage: consumer MODEL\n";
    return 2;
  }
  try {
    auto Globals = MakeRef<TRTTIGlobals>();
    auto Model = MakeRef<TRTTIPackage>(String());
    LoadFromFile(*Model, FromUTF8(argv[1]), Globals.get());
    Globals->AddMember(Model);
    Model->Resolve(Globals.get());
    // An alias names a class the package already counts.
    int Classes = 0;
    const Ref<IRTTIElementList> Members = Model->GetMembers();
    for (int i = 0; i < Members->GetCount(); ++i) {
      const Ref<IRTTIElement> Member = Members->GetItems(i);
      if (DynCast<IRTTIClass>(Member) && !DynCast<TRTTIClassAlias>(Member)) ++Classes;
    }
    std::cout << "classes: " << Classes << '\n';
    Globals->Clear();
  } catch (const Exception& E) {
    std::cerr << "consumer: " << ToUTF8(LocatedMessage(E)) << '\n';
    return 1;
  }
  return 0;
}
