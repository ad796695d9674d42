#include "gello/ocl/SystemClasses.h"

namespace gello {

namespace {
TOCLSystemClasses& Handles() noexcept {
  static TOCLSystemClasses Classes;
  return Classes;
}
}  // namespace

const TOCLSystemClasses& OCLSystemClasses() noexcept {
  return Handles();
}

void SetOCLSystemClasses(const IRTTIGlobals& Globals) {
  TOCLSystemClasses Classes;
  Classes.Any = Globals.Get_Any();
  Classes.T = Globals.Get_T();
  Classes.Boolean = Globals.Get_Boolean();
  Classes.String = Globals.Get_String();
  Classes.Real = Globals.Get_Real();
  Classes.Integer = Globals.Get_Integer();
  Classes.Iterator = Handles().Iterator;
  Classes.Collection = Globals.Get_Collection();
  Classes.Bag = Globals.Get_Bag();
  Classes.Sequence = Globals.Get_Sequence();
  Classes.Set = Globals.Get_Set();
  Classes.Tuple = Globals.Get_Tuple();
  SetOCLSystemClasses(Classes);
}

void SetOCLSystemClasses(const TOCLSystemClasses& Classes) {
  Handles() = Classes;
}

void ClearOCLSystemClasses() {
  Handles() = TOCLSystemClasses{};
}

}  // namespace gello
