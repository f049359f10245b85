#include "settings/TokenInsertion.h"

#include "core/Characters.h"
#include "settings/SettingsRules.h"

std::optional<TokenInsertion> InsertedToken(std::string_view text, std::size_t start, std::size_t length,
                                            std::string_view token) {
    const std::string_view before = FirstCharacters(text, start);
    const std::string_view selected = FirstCharacters(text.substr(before.size()), length);
    const std::string_view after = text.substr(before.size() + selected.size());
    const std::size_t kept = CharacterCount(before) + CharacterCount(after);
    if (kept + token.size() > customFormatLimit) return std::nullopt;
    TokenInsertion inserted{std::string(before), CharacterCount(before) + token.size()};
    inserted.text.append(token).append(after);
    return inserted;
}
