#pragma once
// Source positions of compiled elements.
#include "gello/foundation/Export.h"
#include "gello/model/Interfaces.h"

namespace gello {

/// The source file and line an element was compiled from.
class GELLO_API TRTTIDebugInfo : public virtual IRTTIDebugInfo {
 public:
  TRTTIDebugInfo(const String& SourceFile, std::int32_t Line)
      : FSourceFile(SourceFile), FLineNumber(Line) {}
  String GetSourceFile() const override { return FSourceFile; }
  void SetSourceFile(const String& Value) override { FSourceFile = Value; }
  std::int32_t GetLineNumber() const override { return FLineNumber; }
  void SetLineNumber(std::int32_t Value) override { FLineNumber = Value; }

 private:
  String FSourceFile;
  std::int32_t FLineNumber;
};

}  // namespace gello
