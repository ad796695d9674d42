#pragma once
// Text in gello: UTF-16 code units, converted at the edges (UTF-8 for files, JSON and the log,
// ISO-8859-1 for the streaming XML layer).
#include <cstdint>
#include <string>
#include <string_view>
#include "gello/foundation/Export.h"

namespace gello {

/// The system's string: UTF-16 code units; positions and lengths count code units.
using String = std::u16string;
using StringView = std::u16string_view;

/// How a conversion treats malformed input.
enum class TMalformed : std::uint8_t {
  Replace,  ///< each malformed sequence becomes U+FFFD
  Reject    ///< the conversion raises EConvertError
};

/// UTF-8 to UTF-16. Overlong forms, surrogate code points and truncated sequences are malformed.
GELLO_API String FromUTF8(std::string_view Text, TMalformed Mode = TMalformed::Replace);
/// UTF-16 to UTF-8. An unpaired surrogate is malformed.
GELLO_API std::string ToUTF8(StringView Text, TMalformed Mode = TMalformed::Replace);

/// The fixed single-byte code page (ISO-8859-1): each byte widened to one character.
GELLO_API String FromLatin1(std::string_view Bytes);
/// Back to the single-byte code page; characters above U+00FF become '?'.
GELLO_API std::string ToLatin1(StringView Text);

/// Text the streaming XML reader handed over (the document's UTF-8 bytes, one character each)
/// as the text of the model and the values: UTF-16, decoded.
GELLO_API String FromXMLStreamText(StringView Streamed);
/// Text of the model and the values as the streaming XML writer takes it: its UTF-8 bytes, one
/// character each.
GELLO_API String ToXMLStreamText(StringView Text);

/// Decimal text of an integer.
GELLO_API String IntToStr(std::int64_t Value);

}  // namespace gello
