#include "gello/foundation/Logic.h"

#include <algorithm>

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {
constexpr auto F = rtti_false, T = rtti_true, U = rtti_unknown;
const String BooleanNames[3] = {u"false", u"true", u"unknown"};
}  // namespace

const TTruthTables TruthTables = {
    /*Or*/ {F, T, U, T, T, T, U, T, U},
    /*And*/ {F, F, F, F, T, U, F, U, U},
    /*Xor*/ {F, T, U, T, F, U, U, U, U},
    /*Implies*/ {T, T, T, F, T, U, U, T, U},
    /*Not*/ {T, F, U},
    /*Null*/ {},
};

const TRTTIExtendedBoolean (&truth_table_or)[9] = TruthTables.Or;
const TRTTIExtendedBoolean (&truth_table_and)[9] = TruthTables.And;
const TRTTIExtendedBoolean (&truth_table_xor)[9] = TruthTables.Xor;
const TRTTIExtendedBoolean (&truth_table_implies)[9] = TruthTables.Implies;
const TRTTIExtendedBoolean (&truth_table_not)[3] = TruthTables.Not;
const GUID& nullGUID = TruthTables.Null;

String ExtendedBooleanToString(TRTTIExtendedBoolean Value) { return BooleanNames[Value]; }

TRTTIExtendedBoolean StringToExtendedBoolean(StringView Text) {
  String Lower(Text);
  std::transform(Lower.begin(), Lower.end(), Lower.begin(),
                 [](char16_t C) { return C >= u'A' && C <= u'Z' ? C + (u'a' - u'A') : C; });
  if (Lower == u"false" || Lower == u"0") return rtti_false;
  if (Lower == u"true" || Lower == u"1") return rtti_true;
  if (Lower == u"unknown" || Lower.empty()) return rtti_unknown;
  throw EConvertError(u"bad StringToExtendedBoolean conversion: " + Lower);
}

}  // namespace gello
