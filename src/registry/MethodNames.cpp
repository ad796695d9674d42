#include "MethodNames.h"

namespace gello {

namespace {

struct TOperatorName {
  StringView Host;
  const char16_t* Model;
};

constexpr TOperatorName Operators[] = {
    {u"_EQ_", u"="},       {u"_NE_", u"<>"},          {u"_LT_", u"<"},     {u"_LE_", u"<="},
    {u"_GT_", u">"},       {u"_GE_", u">="},          {u"_ADD_", u"+"},    {u"_SUBTRACT_", u"-"},
    {u"_MULTIPLY_", u"*"}, {u"_DIVIDE_", u"/"},       {u"_NEGATE_", u"-"}, {u"_MOD_", u"mod"},
    {u"_DIV_", u"div"},    {u"_AND_", u"and"},        {u"_OR_", u"or"},    {u"_XOR_", u"xor"},
    {u"_NOT_", u"not"},    {u"_IMPLIES_", u"implies"}};

constexpr StringView CollectOp = u"_COLLECTOP_";

}  // namespace

String OperatorName(StringView HostName) {
  for (const TOperatorName& Operator : Operators)
    if (Operator.Host == HostName) return Operator.Model;
  return {};
}

String RTTIMethodName(const String& HostName, bool& CollectionOp) {
  CollectionOp = HostName.starts_with(CollectOp);
  if (CollectionOp) return HostName.substr(CollectOp.size());
  if (String Operator = OperatorName(HostName); !Operator.empty()) return Operator;
  if (HostName == u"_PLUS_") return u"+";
  if (HostName == u"_MINUS_") return u"-";
  if (HostName.size() >= 2 && HostName.front() == u'_' && HostName.back() == u'_')
    return HostName.substr(1, HostName.size() - 2);
  return HostName;
}

}  // namespace gello
