// Stands in for another program: writes the command line that it was started by into a file beside the
// palettes.
#include <fstream>

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Text.h"

int WINAPI WinMain(HINSTANCE /*hInstance*/, HINSTANCE /*hPrevInstance*/, LPSTR /*lpCmdLine*/,
                   int /*nShowCmd*/) {
    std::ofstream file("C:\\Huevox Palettes\\command.txt", std::ios::binary);
    file << Utf8(::GetCommandLineW());
    return 0;
}
