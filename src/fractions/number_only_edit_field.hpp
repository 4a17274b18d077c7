// The key filter of the fractions tab's input fields.
#pragma once

#include <string_view>

namespace tessarine {

// NumberOnlyEditField's key down: true swallows the key. Control keys (below code 32)
// pass, and of the rest only digits, comma, point and minus, in any position and any
// number. Pasted text never comes this way.
bool NumberOnlyEditFieldKeyDown(std::string_view key);

}  // namespace tessarine
