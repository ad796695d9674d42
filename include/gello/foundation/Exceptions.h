#pragma once
// The exception classes of gello. Messages are the system's own texts, kept exactly.
#include <cstdint>
#include <exception>
#include <string>
#include <utility>
#include "gello/foundation/Export.h"

#include "gello/foundation/String.h"

namespace gello {

/// Where in a document a failure arose; a part that is not known stays empty, -1 or 0.
struct GELLO_API TSourcePosition {
  String File;
  std::int64_t Offset = -1;  ///< bytes into the document's UTF-8 text
  int Line = 0;              ///< from 1
  int Column = 0;            ///< from 1, in characters
};

/// The general exception: a message as String, and as UTF-8 through what(), and where in a
/// document it arose when a reader knows.
class GELLO_API Exception : public std::exception {
 public:
  explicit Exception(String Message);
  const String& Message() const noexcept { return FMessage; }
  const char* what() const noexcept override { return FWhat.c_str(); }
  const TSourcePosition& Where() const noexcept { return FWhere; }
  /// Records where the failure arose; the message stays as it is.
  void SetWhere(TSourcePosition Where) { FWhere = std::move(Where); }

 private:
  String FMessage;
  std::string FWhat;
  TSourcePosition FWhere;
};

/// The message behind "FILE:LINE:COLUMN: ", with only the parts of the position that are known.
GELLO_API String LocatedMessage(const Exception& E);

/// A text that does not convert (numbers, booleans, GUIDs, malformed UTF).
class GELLO_API EConvertError : public Exception {
  using Exception::Exception;
};

/// A broken contract: the fixed text, plus the source unit and line where it was checked.
class GELLO_API EAssertionFailed : public Exception {
 public:
  EAssertionFailed(String Text, std::string Unit, int Line);
  const String& Text() const noexcept { return FText; }
  const std::string& Unit() const noexcept { return FUnit; }
  int Line() const noexcept { return FLine; }

 private:
  String FText;
  std::string FUnit;
  int FLine;
};

/// Failures of the streaming XML reader, and of the writer after it was created.
class GELLO_API EXMLTextReader : public Exception {
  using Exception::Exception;
};

/// Declared for the writer; its failures are raised as EXMLTextReader.
class GELLO_API EXMLTextWriter : public Exception {
  using Exception::Exception;
};

/// Failures of OCL value operations.
class GELLO_API EOCLException : public Exception {
  using Exception::Exception;
};

/// Integer div or mod by zero.
class GELLO_API EDivByZero : public Exception {
  using Exception::Exception;
};

/// Raises EAssertionFailed for Text at File (reduced to its base name) and Line.
[[noreturn]] GELLO_API void AssertionFailed(const String& Text, const char* File, int Line);

}  // namespace gello

/// Checks a contract; on failure raises EAssertionFailed with Text, this file and line.
#define GELLO_ASSERT(Condition, Text)                                     \
  do {                                                                    \
    if (!(Condition)) ::gello::AssertionFailed(Text, __FILE__, __LINE__); \
  } while (false)
