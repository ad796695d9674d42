#pragma once
// Texts the registry writes: names of host things and method signatures.
#include "gello/model/Interfaces.h"
#include "gello/registry/RegisteredMethod.h"

namespace gello {

/// A host name (8-bit) as a String.
String Text(const char* Name);
/// The class part of a qualified name, or the interface's name when Name is empty.
String DisplayName(const String& Name, const TIntfInfo& Intf);
/// "(a: Integer, b: String): Boolean stdcall" for a model method (with its calling convention
/// when the registry bound it).
String MethodSignature(const IRTTIMethod& Method);
/// The name of an element, "<null>" when it has none.
String NameOrNull(const IRTTIElement* Element);

}  // namespace gello
