// What becomes of a custom template when a placeholder is put into it?
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/Characters.h"

struct TokenInsertion {
    std::string text;   ///< the new template
    std::size_t caret;  ///< behind the placeholder, in characters
};

/// Puts token in the place of length characters of text from start on; both count from 0 and in characters.
/// Nothing when the template would become longer than one may be.
std::optional<TokenInsertion> InsertedToken(std::string_view text, std::size_t start, std::size_t length,
                                            std::string_view token, LeadByteTest isLeadByte);
