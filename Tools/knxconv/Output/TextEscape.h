#pragma once

#include <string>
#include <string_view>

namespace Knxconv {

// Text for a terminal: control characters and bytes that are not UTF-8 are
// written out, so that no text from a telegram, a trace or the library can
// move the cursor or switch the terminal's mode. Valid UTF-8 passes as it is;
// a backslash becomes "\\"; LF, CR and TAB become "\n", "\r", "\t"; other C0
// characters and DEL become "\xNN"; C1 characters (U+0080 to U+009F) become
// "\u0080" to "\u009F"; each byte that is not part of valid UTF-8 becomes
// "\xNN".
std::string EscapeText(std::string_view text);
// The same appended to escaped, which keeps its capacity.
void AppendEscapedText(std::string& escaped, std::string_view text);
// Whether text is printable ASCII without a backslash, which EscapeText
// leaves as it is.
bool IsPlainText(std::string_view text);

// Compact JSON whose strings may still hold DEL and C1 characters (JSON only
// requires C0 to be escaped): those become "\u007f" and "\u0080" to
// "\u009f" as well. Everything outside strings is ASCII, so a byte-wise pass
// is exact.
std::string EscapeJsonControls(std::string_view json);

}  // namespace Knxconv
