// What does a custom template become when a placeholder is inserted?
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

struct TokenInsertion {
    std::string text;   ///< the new template
    std::size_t caret;  ///< after the placeholder, in characters
};

/// Replaces length characters of text from start on with token. start counts from 0, both in characters.
/// Nothing when the template would become longer than one may be.
std::optional<TokenInsertion> InsertedToken(std::string_view text, std::size_t start, std::size_t length,
                                            std::string_view token);
