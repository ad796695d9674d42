#pragma once
// The files a command names: "-" is standard input or output, and an output file appears whole
// or not at all.
#include <functional>
#include <ostream>
#include <string>

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/String.h"

namespace gello::tool {

/// How the file Name is called in messages: "<stdin>" or "<stdout>" for "-".
String InputName(const std::string& Name);

/// Raises, placed in the file Name, when it is a folder or cannot be opened for reading.
void ExpectReadable(const std::string& Name);

/// The bytes of the file Name, or of standard input for "-". A folder, or a file that cannot be
/// read, raises an exception placed in that file.
std::string ReadInput(const std::string& Name);

/// Places E in the input Name whose bytes were Bytes: the file, and the line and column of the
/// offset the reader recorded.
void PlaceInInput(Exception& E, const std::string& Name, std::string_view Bytes);

/// Runs Write on standard output for "-"; otherwise on a temporary file beside Name that is
/// renamed onto it once Write has finished, and removed if Write raises.
void WriteOutput(const std::string& Name, const std::function<void(std::ostream&)>& Write);

}  // namespace gello::tool
