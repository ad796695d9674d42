#pragma once
// Three-valued booleans and their truth tables; other modules combine them only through the tables.
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/foundation/GUID.h"
#include "gello/foundation/String.h"

namespace gello {

/// A three-valued boolean.
enum TRTTIExtendedBoolean : std::uint8_t { rtti_false = 0, rtti_true = 1, rtti_unknown = 2 };

/// What kind of type a model class is; collections (2..4) and primitives (5..8) lie together.
enum TRTTIClassKind : std::uint8_t {
  rtti_undefined = 0,
  rtti_class = 1,
  rtti_bag = 2,
  rtti_sequence = 3,
  rtti_set = 4,
  rtti_string = 5,
  rtti_integer = 6,
  rtti_real = 7,
  rtti_boolean = 8
};

/// How a model is printed.
enum TOutputStyle : std::uint8_t {
  style_gello = 0,
  style_host_intf = 1,
  style_host_impl = 2,
  style_host_methods = 3
};

/// The exported tables, one after another, followed by the all-zero GUID.
struct GELLO_API TTruthTables {
  TRTTIExtendedBoolean Or[9];
  TRTTIExtendedBoolean And[9];
  TRTTIExtendedBoolean Xor[9];
  TRTTIExtendedBoolean Implies[9];
  TRTTIExtendedBoolean Not[3];
  GUID Null;
};
extern GELLO_API const TTruthTables TruthTables;

/// Two-operand tables are indexed [Left * 3 + Right]; the not table by the operand.
extern GELLO_API const TRTTIExtendedBoolean (&truth_table_or)[9];
extern GELLO_API const TRTTIExtendedBoolean (&truth_table_and)[9];
extern GELLO_API const TRTTIExtendedBoolean (&truth_table_xor)[9];
extern GELLO_API const TRTTIExtendedBoolean (&truth_table_implies)[9];
extern GELLO_API const TRTTIExtendedBoolean (&truth_table_not)[3];

/// "false", "true" or "unknown".
GELLO_API String ExtendedBooleanToString(TRTTIExtendedBoolean Value);
/// Case-insensitive "false"/"0", "true"/"1", "unknown"/""; anything else raises EConvertError.
GELLO_API TRTTIExtendedBoolean StringToExtendedBoolean(StringView Text);

}  // namespace gello
