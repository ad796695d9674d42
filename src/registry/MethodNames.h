#pragma once
// The GELLO names of host operations.
#include "gello/foundation/String.h"

namespace gello {

/// The GELLO operator of an operator name ("_ADD_" gives "+"), or empty.
String OperatorName(StringView HostName);

/// The model name of an OCL interface operation: operators translated (also _PLUS_ and
/// _MINUS_), other names in underscores stripped, "_COLLECTOP_" dropped (CollectionOp set).
String RTTIMethodName(const String& HostName, bool& CollectionOp);

}  // namespace gello
