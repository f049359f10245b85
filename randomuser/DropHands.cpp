#include "randomuser/DropHands.h"

#include <array>
#include <vector>

#include "randomuser/model/SessionFiles.h"
#include "tests/driver/Dropping.h"

void DropHands::drop(const std::string& first, int others) {
    constexpr std::array<const char*, 2> names = {"\\old.txt", "\\letter.txt"};
    std::vector<std::string> paths = {first};
    for (int other = 0; other < others; ++other)
        paths.push_back(std::string(filesFolder) + names.at(static_cast<std::size_t>(other)));
    const bool hasCome = Drop(eyes.main(), paths);
    reach.await("a drop", [hasCome] { return hasCome; });
}
