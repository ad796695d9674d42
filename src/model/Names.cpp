#include "gello/model/Names.h"

#include <algorithm>
#include <vector>

namespace gello {
namespace {

String LowerASCII(String Text) {
  for (char16_t& C : Text)
    if (C >= u'A' && C <= u'Z') C = static_cast<char16_t>(C - u'A' + u'a');
  return Text;
}

// Built on first use and kept for the life of the module.
const std::vector<String>& Keywords() {
  static const std::vector<String> List = [] {
    const String All =
        u"and|or|xor|div|mod|not|min|max|true|false|unknown|iterate|join|if|then|else|endif|let|"
        u"in|package|endpackage|class|extends|context|sequence|bag|set";
    std::vector<String> Words;
    std::size_t Start = 0;
    for (std::size_t Bar; (Bar = All.find(u'|', Start)) != String::npos; Start = Bar + 1)
      Words.push_back(All.substr(Start, Bar - Start));
    Words.push_back(All.substr(Start));
    return Words;
  }();
  return List;
}

bool IsNameChar(char16_t C) {
  return (C >= u'A' && C <= u'Z') || (C >= u'a' && C <= u'z') || (C >= u'0' && C <= u'9') ||
         C == u'_' || C == u':';
}

}  // namespace

String ValidGelloName(const String& Name) {
  String Result = Name;
  for (char16_t& C : Result)
    if (!IsNameChar(C)) C = u'_';
  if (!Result.empty() && Result.front() == u'_') Result = u"C" + Result;
  const std::vector<String>& Words = Keywords();
  if (std::find(Words.begin(), Words.end(), LowerASCII(Result)) != Words.end()) Result += u"_fixed";
  return Result;
}

String FormatAnnotation(const String& Text) {
  if (Text.find(u'\n') != String::npos) return u" /* " + Text + u" */";
  return u" -- " + Text;
}

}  // namespace gello
