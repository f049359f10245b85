# The 32-bit program, driven by the tests with windows: they act on the program in the folder that they start in.
set(folder_32_bits ${PROJECT_SOURCE_DIR}/build/windows-x86)
add_random_user(x86.random_user_2 2 ${folder_32_bits})
set_tests_properties(x86.random_user_2 PROPERTIES FAIL_REGULAR_EXPRESSION "program of 64 bits")

# Start, mixing, copying, saving, opening, dropping, picking, undoing, contrast, settings and dialogs. Left to the 64-bit program: tests
# that try every place or every key, and tests that run a thread of their own, with 64-bit code, in the program. Each filter is one
# process, because starting one takes longer than many tests.
set(filters
    WordLength.Is32
    Start.*-*.LooksForLibraries*:*.ADrive*
    Sliders.*
    HexValues.*
    ColorBarClicks.*-*.EveryStep*
    Autocopy.*
    SavingKeeps.*
    SavingPalettes.*
    OpeningPalettes.*
    OpeningInNotepad.*
    ScreenPicking.*
    LoupeWindow.*
    PickKeys.*
    PickByKeyboard.*
    Undo.*
    ContrastOfMarks.*
    DroppedFile.*
    AlwaysOnTop.*
    PickersJavaScript.*-*.Every*:*.ToolTipsAre*:*.Switching*
    SettingsFaults.*
    StoredSettings.*
    ColorProperties.Are*
    CustomFormat.AButton*
    Options.Ok*
    Options.Show*
    About.*Shell
    Help.*Viewer*)
foreach(filter IN LISTS filters)
    string(REGEX MATCH "^[A-Za-z]+([.][A-Za-z0-9]+)?" name ${filter})
    add_test(NAME x86.${name}
        COMMAND ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:ui_tests> --gtest_filter=${filter}
        WORKING_DIRECTORY ${folder_32_bits})
    # A filter that matches no test would be a test that cannot fail.
    set_tests_properties(x86.${name} PROPERTIES ${alone} FAIL_REGULAR_EXPRESSION "PASSED  . 0 tests")
endforeach()
add_test(NAME x86.product_is_known_to_terminal_servers COMMAND ${CMAKE_OBJDUMP} -p ${folder_32_bits}/Huevox.exe)
set_tests_properties(x86.product_is_known_to_terminal_servers PROPERTIES PASS_REGULAR_EXPRESSION "TERMINAL_SERVICE_AWARE")
