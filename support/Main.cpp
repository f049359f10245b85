// Where does the program begin and end?
#include <cstdlib>

#include "mainwindow/frmMain.h"
#include "support/AppState.h"
#include "support/FatalError.h"
#include "support/Messages.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/LibrarySearch.h"
#include "toolkit/platform/Platform.h"

namespace {

bool allowMultipleInstances = false;

bool IsPreviousInstanceRunning() { return ::FindWindowW(L"frmMain", nullptr) != nullptr; }

/// Returns the exit code.
int RunProgram(int showCommand) {
    // Any number of copies may run. The test and its message are kept for a program that allows only one.
    allowMultipleInstances = true;
    // cppcheck-suppress knownConditionTrueFalse
    if (!allowMultipleInstances && IsPreviousInstanceRunning()) {
        MsgBox(nullptr, messages::alreadyRunning, MB_OK | MB_ICONINFORMATION, messages::title);
        return EXIT_SUCCESS;
    }
    AppState state;
    frmMain mainWindow(state);
    int exitCode = EXIT_FAILURE;
    // Inside the window's life: with the last window go all message boxes, that of an error too.
    Trapped([&] {
        mainWindow.load();
        mainWindow.show(showCommand);
        mainWindow.activate();
        exitCode = RunMessageLoop();
    });
    return exitCode;
}

int Main(int showCommand) {
    int exitCode = EXIT_FAILURE;
    errorTrap = HandleFatalError;
    RegisterControlClasses();
    Trapped([&] { exitCode = RunProgram(showCommand); });
    return IsErrorExitInProgress() ? EXIT_FAILURE : exitCode;
}

}  // namespace

int WINAPI WinMain(HINSTANCE /*hInstance*/, HINSTANCE /*hPrevInstance*/, LPSTR /*lpCmdLine*/, int nShowCmd) {
    SearchSystemFolderOnly();
    // A drive without a disk is an error for the program to handle, not a box of the system.
    ::SetErrorMode(::GetErrorMode() | SEM_FAILCRITICALERRORS);
    return Main(nShowCmd);
}
