#include "toolkit/platform/CaptureExclusion.h"

#include "toolkit/platform/SystemFunction.h"

namespace {

constexpr DWORD excluded = 0x11;            // WDA_EXCLUDEFROMCAPTURE, which not all headers have
constexpr DWORD firstThatExcludes = 19041;  // Windows 10, version 2004

/// The manifest decides what other functions tell of the version.
DWORD WindowsBuild() {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    SystemFunction<LONG WINAPI(OSVERSIONINFOW*)>("ntdll.dll", "RtlGetVersion")(&version);
    return version.dwBuildNumber;
}

}  // namespace

bool ExcludeFromCaptures(HWND window) {
    // An older Windows takes the value for another one and paints the window black in every picture.
    return WindowsBuild() >= firstThatExcludes && ::SetWindowDisplayAffinity(window, excluded);
}
