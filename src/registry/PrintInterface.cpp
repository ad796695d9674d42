#include "gello/foundation/Exceptions.h"
#include "gello/registry/IntfQueries.h"

namespace gello {

namespace {

String Text(const char* Name) {
  return FromLatin1(Name);
}

// "function abs(Self: IOCLReal): IOCLReal", or "property Items[Index: Integer]: IOCLAny".
String EntryText(const TIntfInfo& Intf, const TIntfEntry& Entry) {
  const bool SelfMethod = IsSelfMethod(Intf, Entry);
  String Line = Entry.Kind == mk_procedure  ? u"procedure "
                : Entry.Kind == mk_function ? u"function "
                                            : u"";
  Line += Text(Entry.Name);
  for (std::size_t i = 0; i < Entry.Params.size(); ++i) {
    Line += i > 0 ? u"," : SelfMethod ? u"(" : u"[";
    Line += Text(Entry.Params[i].Name) + u": " + Text(Entry.Params[i].TypeName);
  }
  if (!Entry.Params.empty()) Line += SelfMethod ? u")" : u"]";
  if (Entry.Kind == mk_function) Line += u": " + Text(Entry.ResultTypeName);
  if (SelfMethod) return Line;
  const std::size_t Blank = Line.find(u' ');
  return u"property " + (Blank == String::npos ? Line : Line.substr(Blank + 1));
}

}  // namespace

int PrintInterface(const TIntfInfo& Intf, std::vector<String>& Lines) {
  int Slot = Intf.Parent ? PrintInterface(*Intf.Parent, Lines) : 0;
  Lines.push_back(Text(Intf.Name) + u" :" + Intf.IID.ToString());
  if (!Intf.HasDetails) {
    Lines.push_back(IntToStr(Intf.DeclaredCount) + u" methods with no RTTI");
    return Slot + Intf.DeclaredCount;
  }
  if (Intf.Entries.size() != Intf.DeclaredCount)
    throw Exception(u"mistmatch of interface method count for " + Text(Intf.Name));
  for (const TIntfEntry& Entry : Intf.Entries) {
    Lines.push_back(IntToStr(Slot) + u": " + IntToStr(Entry.Kind) + u" " +
                    IntToStr(Entry.CallConv) + u"; " + EntryText(Intf, Entry));
    if (IsSelfMethod(Intf, Entry)) ++Slot;
  }
  return Slot;
}

}  // namespace gello
