// A placeholder may be inserted anywhere in any template: only the selected text is lost, or nothing happens.
#include "fuzz/FuzzInput.h"
#include "settings/TokenInsertion.h"

namespace {

constexpr std::size_t limit = 250;

void Try(const std::string& text, std::size_t start, std::size_t length, const std::string& token,
         LeadByteTest isLeadByte) {
    const std::vector<std::string_view> characters = CharactersOf(text, isLeadByte);
    const std::size_t first = start % (characters.size() + 1);
    const std::size_t replaced = std::min(length, characters.size() - first);
    const bool fits = characters.size() - replaced + token.size() <= limit;

    const std::optional<TokenInsertion> inserted = InsertedToken(text, first, length, token, isLeadByte);
    Require(inserted.has_value() == fits);
    if (!inserted) return;
    Require(inserted->text ==
            Joined(characters, 0, first) + token + Joined(characters, first + replaced, characters.size()));
    Require(inserted->caret == first + token.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int start = input.takeByte();
    const int length = input.takeByte();
    const std::string token(4, '%');
    const std::string text(input.takeRest());
    Try(text, start, length, token, NoLeadByte);
    Try(text, start, length, token, HighLeadByte);
    return 0;
}
