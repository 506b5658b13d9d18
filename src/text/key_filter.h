#pragma once

namespace quarvel {

/// The key filter of the name box, the entry fields and the notes: a to z (97 to 122) become A to Z,
/// every other character code, accented letters included, comes back unchanged.
[[nodiscard]] constexpr char16_t UpperCaseKey(char16_t key) noexcept {
    return key >= u'a' && key <= u'z' ? static_cast<char16_t>(key - 32) : key;
}

} // namespace quarvel
