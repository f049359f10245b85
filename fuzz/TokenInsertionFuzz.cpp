// A placeholder may be inserted anywhere in any template: only the selected text is lost, or nothing happens.
#include "fuzz/FuzzInput.h"
#include "settings/TokenInsertion.h"

namespace {

constexpr std::size_t limit = 250;

/// Whole characters from the front of text, for as long as they take no more than count units; text loses
/// them.
std::string Take(std::string_view& text, std::size_t count) {
    std::string taken;
    for (const std::string_view character : CharactersOf(text)) {
        if (CountUnits(taken) + UnitsOf(character) > count) break;
        taken += character;
    }
    text.remove_prefix(taken.size());
    return taken;
}

void Try(std::string_view text, std::size_t start, std::size_t length, const std::string& token) {
    const std::optional<TokenInsertion> inserted = InsertedToken(text, start, length, token);
    const std::string before = Take(text, start);
    Take(text, length);
    const bool fits = CountUnits(before) + CountUnits(text) + token.size() <= limit;
    Require(inserted.has_value() == fits);
    if (!inserted) return;
    Require(inserted->text == before + token + std::string(text));
    Require(inserted->caret == CountUnits(before) + token.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int start = input.takeByte();
    const int length = input.takeByte();
    Try(input.takeRest(), start, length, std::string(4, '%'));
    return 0;
}
