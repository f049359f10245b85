// What is the first thing that is not as expected?
#pragma once

#include <set>
#include <string>

#include "core/Color.h"

/// How much is looked at: whether the program runs and answers, what is in front and the preview, and of the
/// rest what must have changed; or everything, to the pixels.
enum class Extent { changes, everything };

/// How a difference tells a value.
std::string Printed(const std::string& text);
std::string Printed(bool isTrue);
std::string Printed(int number);
std::string Printed(const Color& color);
std::string Printed(const std::set<std::string>& texts);

class Comparison {
public:
    explicit Comparison(Extent extent) : isEverything(extent == Extent::everything) {}

    /// "what: ...", or "".
    const std::string& difference() const { return found; }
    bool isLookingAtAll() const { return found.empty() && isEverything; }

    template <class Value>
    void same(const std::string& what, const Value& expected, const Value& seen) {
        if (found.empty() && expected != seen) tell(what, Printed(expected), Printed(seen));
    }
    /// Reads only what must have changed, if that is all that is looked at.
    template <class Value, class Read>
    void same(const std::string& what, const Value& expected, const Value& earlier, Read read) {
        if (!found.empty() || (!isEverything && expected == earlier)) return;
        same(what, expected, static_cast<Value>(read()));
    }
    template <class Read>
    void oneOf(const std::string& what, const std::set<std::string>& expected, Read read) {
        if (!isLookingAtAll()) return;
        const std::string seen = read();
        if (!expected.contains(seen)) tell(what, Printed(expected), Printed(seen));
    }

private:
    void tell(const std::string& what, const std::string& expected, const std::string& seen) {
        found = what + ": expected " + expected + ", seen " + seen;
    }

    std::string found;
    bool isEverything;
};
