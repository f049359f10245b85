# The 32-bit program, by the tests with windows: they act on whatever program stands in the folder that they start in.
set(folder_32_bits ${PROJECT_SOURCE_DIR}/build/windows-x86)
add_random_user(x86.random_user_2 2 ${folder_32_bits})
set_tests_properties(x86.random_user_2 PROPERTIES FAIL_REGULAR_EXPRESSION "program of 64 bits")

# Start, mixing, copying, saving, opening, picking, settings and dialogs; what tries every place or every key is left to
# the other word length, and so is what lets the program run a thread of the test's, whose code is of 64 bits. Each is one
# process, because to start one takes longer than many a test.
set(filters
    WordLength.Is32
    Start.*-*.LooksForLibraries*
    Sliders.*
    HexValues.*
    ColorBarClicks.*-*.EveryStep*
    Autocopy.*
    SavingPalettes.*
    OpeningPalettes.*
    OpeningInNotepad.*
    ScreenPicking.*
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
    # A filter that no test passes would be a test that cannot fail.
    set_tests_properties(x86.${name} PROPERTIES ${alone} FAIL_REGULAR_EXPRESSION "PASSED  . 0 tests")
endforeach()
