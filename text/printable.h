// Text that can be shown: no byte of it drives a terminal or a browser.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace attrtext {

// The bytes of the UTF-8 character that begins the text; 0 where none does (RFC 3629, section 4), or the text is empty.
std::size_t utf8_length(std::string_view text);

// The same for a character that may stand on a terminal as it is: no control character, none that is invisible or
// changes the direction of the text around it.
std::size_t printable_length(std::string_view text);

// The text with \xNN in place of each byte that is no part of such a character. The second form writes an escape in
// place of the characters named, too.
std::string printable(std::string_view text);
std::string printable(std::string_view text, std::string_view escaped);

}  // namespace attrtext
