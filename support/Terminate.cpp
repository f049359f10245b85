// What does the runtime do when an exception leaves the program, which none does?
#include <cstdlib>

// The runtime's own handler prints the exception's name on a console, which this program has not, and the
// code that makes the name readable is a fifth of the program's size. It gives way to a handler of the same
// name.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
namespace __gnu_cxx {
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming)
void __verbose_terminate_handler() { std::abort(); }
}  // namespace __gnu_cxx
