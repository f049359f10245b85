# Tests that need Windows. On Debian they run under Wine, on their own display (scripts/desktop).
# In one process with the code: the toolkit's contract, and code that calls Windows.
add_executable(program_tests
    driver/Input.cpp
    driver/LastKeys.cpp
    driver/Legible.cpp
    driver/Modifiers.cpp
    driver/Pixel.cpp
    driver/Theme.cpp
    driver/Usage.cpp
    program/AboutFormTest.cpp
    program/AutocopyTest.cpp
    program/ColorBarTest.cpp
    program/ColorMarksTest.cpp
    program/ColorsOnTheWayTest.cpp
    program/ContrastFormTest.cpp
    program/DroppedFilesTest.cpp
    program/FatalErrorTest.cpp
    program/FoldersTest.cpp
    program/HeldThumbTest.cpp
    program/KeptTraitsTest.cpp
    program/LibrarySearchTest.cpp
    program/MainWindowTest.cpp
    program/PickerFormsTest.cpp
    program/RegistryStringHandlerTest.cpp
    program/SaveDialogTest.cpp
    program/SavingWaysTest.cpp
    program/LoupeTest.cpp
    program/ScreenPickTest.cpp
    program/SystemColorsTest.cpp
    program/TextFitTest.cpp
    program/UndoCommandsTest.cpp
    toolkit/controls/CellStripTest.cpp
    toolkit/controls/EventContractTest.cpp
    toolkit/controls/IconPixelsTest.cpp
    toolkit/controls/LabelTest.cpp
    toolkit/controls/TextBoxTest.cpp
    toolkit/controls/ToolBarTest.cpp
    toolkit/controls/UnloadedControlsTest.cpp
    toolkit/forms/FormTest.cpp
    toolkit/forms/FormUnloadTest.cpp
    toolkit/forms/ModalFormTest.cpp
    toolkit/forms/ModalHoldTest.cpp
    toolkit/forms/ScalingTest.cpp
    toolkit/forms/SystemMenuTest.cpp
    toolkit/forms/TopOrderTest.cpp
    toolkit/forms/TrappedEdgeTest.cpp
    toolkit/forms/YieldTest.cpp
    toolkit/platform/TextTest.cpp)
add_library(Planted MODULE EXCLUDE_FROM_ALL program/Planted.cpp)
set_target_properties(Planted PROPERTIES PREFIX "")
target_link_libraries(Planted PRIVATE huevox_flags)
add_dependencies(program_tests Planted)
add_resources(test_resources toolkit/TestForm.rc)
target_link_libraries(program_tests PRIVATE huevox_program test_resources GTest::gtest_main)
compile_tests(program_tests ${PROJECT_SOURCE_DIR}/toolkit/platform/Platform.h)

# The program once more, for a system whose code page is UTF-8: its manifest asks for that.
file(READ ${PROJECT_BINARY_DIR}/resources/app.manifest manifest)
set(utf8 "<activeCodePage xmlns=\"http://schemas.microsoft.com/SMI/2019/WindowsSettings\">UTF-8</activeCodePage>")
string(REPLACE "</windowsSettings>" "${utf8}</windowsSettings>" manifest "${manifest}")
file(CONFIGURE OUTPUT utf8/app.manifest CONTENT "${manifest}" @ONLY)
add_library(huevox_utf8_resources OBJECT ${PROJECT_SOURCE_DIR}/resources/app.rc)
target_include_directories(huevox_utf8_resources PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/utf8
    $<TARGET_PROPERTY:huevox_resources,INCLUDE_DIRECTORIES>)
add_dependencies(huevox_utf8_resources huevox_resources)
add_executable(Huevox_utf8 WIN32 ${PROJECT_SOURCE_DIR}/support/Main.cpp ${PROJECT_SOURCE_DIR}/support/Terminate.cpp)
target_link_libraries(Huevox_utf8 PRIVATE huevox_program huevox_utf8_resources)
set_target_properties(Huevox_utf8 PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

# Drives the running program from another process, with real keys and mouse.
add_library(ui_driver STATIC
    driver/Dialogs.cpp
    driver/Huevox.cpp
    driver/Input.cpp
    driver/LastKeys.cpp
    driver/Legible.cpp
    driver/Modifiers.cpp
    driver/OptionsDialog.cpp
    driver/Palettes.cpp
    driver/PickerWindow.cpp
    driver/Pixel.cpp
    driver/Theme.cpp
    driver/UiTest.cpp
    driver/Usage.cpp)
target_link_libraries(ui_driver PUBLIC huevox_toolkit GTest::gtest advapi32 gdi32 psapi)
compile_together(ui_driver <gtest/gtest.h> ${PROJECT_SOURCE_DIR}/toolkit/platform/Platform.h)
# Where the system scales what DPI-unaware programs see, a program that drives Huevox must see the same places as Huevox does.
target_link_libraries(ui_driver INTERFACE $<TARGET_OBJECTS:huevox_manifest>)
target_compile_definitions(ui_driver PUBLIC HUEVOX_EXE="Huevox.exe" HUEVOX_UTF8_EXE="Huevox_utf8.exe"
    HUEVOX_DROPPER="tests/Dropper.exe" HUEVOX_STAND_IN="tests/StandIn.exe"
    HUEVOX_STAND_IN_VIEWER="tests/hhctrl.ocx"
    HUEVOX_TEST_FILES="${drive}${CMAKE_CURRENT_SOURCE_DIR}/palette/files/"
    HUEVOX_COLOR_NAMES="${drive}${color_names}")

add_executable(ui_tests
    ui/help/AboutTest.cpp
    ui/help/HelpTest.cpp
    ui/help/HomePageTest.cpp
    ui/mainwindow/AccessKeysTest.cpp
    ui/mainwindow/ActivationTest.cpp
    ui/mainwindow/AlwaysOnTopTest.cpp
    ui/mainwindow/BurstTest.cpp
    ui/mainwindow/ClosingTest.cpp
    ui/mainwindow/HighContrastTest.cpp
    ui/mainwindow/KeyboardTest.cpp
    ui/mainwindow/LeftMonitorTest.cpp
    ui/mainwindow/LoadFaultTest.cpp
    ui/mainwindow/LowColorDepthTest.cpp
    ui/mainwindow/NewestColorTest.cpp
    ui/mainwindow/OneLineTextTest.cpp
    ui/mainwindow/PressedKeysTest.cpp
    ui/mainwindow/ScalingTest.cpp
    ui/mainwindow/SessionEndTest.cpp
    ui/mainwindow/StartTest.cpp
    ui/mainwindow/SuddenEndTest.cpp
    ui/mainwindow/WordLengthTest.cpp
    ui/mainwindow/panels/AutocopyTest.cpp
    ui/mainwindow/panels/ClipboardFaultTest.cpp
    ui/mainwindow/panels/ColorBarTest.cpp
    ui/mainwindow/panels/ColorPropertiesTest.cpp
    ui/mainwindow/panels/CommandsTest.cpp
    ui/mainwindow/panels/CustomNotationTest.cpp
    ui/mainwindow/panels/FindJavaScriptNamesTest.cpp
    ui/mainwindow/panels/JavaScriptNamesTest.cpp
    ui/mainwindow/panels/LoupeTest.cpp
    ui/mainwindow/panels/MarksTest.cpp
    ui/mainwindow/panels/PickFocusTest.cpp
    ui/mainwindow/panels/PickByKeyboardTest.cpp
    ui/mainwindow/panels/PickKeysTest.cpp
    ui/mainwindow/panels/ScreenPickTest.cpp
    ui/mainwindow/panels/SlidersTest.cpp
    ui/mainwindow/panels/TypedValuesTest.cpp
    ui/mainwindow/panels/UnawarePickTest.cpp
    ui/mainwindow/panels/UndoInBoxesTest.cpp
    ui/mainwindow/panels/UndoTest.cpp
    ui/mainwindow/panels/WaitingValuesTest.cpp
    ui/palette/ChangedFileTest.cpp
    ui/palette/ChangedNewPaletteTest.cpp
    ui/palette/CodePageTest.cpp
    ui/palette/DroppingTest.cpp
    ui/palette/FileNamesTest.cpp
    ui/palette/KeptFileTest.cpp
    ui/palette/KilledSaveTest.cpp
    ui/palette/NotepadTest.cpp
    ui/palette/PaletteFaultTest.cpp
    ui/palette/PaletteOpenTest.cpp
    ui/palette/PaletteSaveTest.cpp
    ui/palette/UndoneChangesTest.cpp
    ui/palette/VanishingFilesTest.cpp
    ui/pickers/ContrastTest.cpp
    ui/pickers/JavaScriptPickerTest.cpp
    ui/pickers/PickerWindowsTest.cpp
    ui/pickers/PickersTest.cpp
    ui/settings/CustomFormatTest.cpp
    ui/settings/FormatDialogTest.cpp
    ui/settings/FormatLimitTest.cpp
    ui/settings/OptionsExampleTest.cpp
    ui/settings/OptionsFolderTest.cpp
    ui/settings/OptionsKeysTest.cpp
    ui/settings/OptionsTest.cpp
    ui/settings/SettingsFaultTest.cpp
    ui/settings/SettingsTest.cpp)
target_link_libraries(ui_tests PRIVATE ui_driver GTest::gtest_main version)
compile_tests(ui_tests ${PROJECT_SOURCE_DIR}/toolkit/platform/Platform.h)
target_include_directories(ui_tests PRIVATE ${PROJECT_BINARY_DIR}/help)
add_dependencies(ui_tests Huevox Huevox_utf8)

include(driver/stand-ins.cmake)
add_executable(TwoColors WIN32 driver/TwoColors.cpp)
target_link_libraries(TwoColors PRIVATE huevox_flags gdi32)
add_dependencies(ui_tests Dropper StandIn StandInViewer TwoColors)

# It compares all pixels of a window.
set_source_files_properties(ui/mainwindow/NewestColorTest.cpp PROPERTIES
    COMPILE_OPTIONS -O1 SKIP_PRECOMPILE_HEADERS ON SKIP_UNITY_BUILD_INCLUSION ON)

include(portable.cmake)
if(HUEVOX_PORTABLE)
    return()
endif()

# The packages: installed, started, upgraded and removed.
set(newer_version ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.99)
add_executable(installer_tests
    installer/Installed.cpp
    installer/InstallerRefusalsTest.cpp
    installer/InstallerTest.cpp)
target_link_libraries(installer_tests PRIVATE huevox_toolkit GTest::gtest_main advapi32 ole32 shell32 uuid version)
target_compile_definitions(installer_tests PRIVATE HUEVOX_EXE="Huevox.exe"
    HUEVOX_VERSION="${PROJECT_VERSION}" HUEVOX_NEWER_VERSION="${newer_version}")
add_dependencies(installer_tests Huevox)
compile_tests(installer_tests)

# One test at a time on each desktop: keys and clicks go to whatever window is in front.
# Only a test that hangs reaches the limit.
set(patient TIMEOUT 3000 LABELS windows)
set(alone RESOURCE_GROUPS "desktops:1" ${patient})
suite_tests(program_tests program * ${alone})
suite_tests(ui_tests ui -LowColorDepth.*:FullDisk.*:ImmovableFile*:LeftMonitor.*:WordLength.Is32 ${alone})
suite_tests(installer_tests installer * ${alone} FIXTURES_REQUIRED packages)
add_test(NAME packages.made
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/packages/make ${CMAKE_CPACK_COMMAND} ${PROJECT_BINARY_DIR} ${newer_version})
set_tests_properties(packages.made PROPERTIES FIXTURES_SETUP packages TIMEOUT 3000)
add_test(NAME packages.release
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/packages/ReleaseTest.py
        ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/packages-tested ${PROJECT_VERSION})
set_tests_properties(packages.release PROPERTIES FIXTURES_REQUIRED packages)
add_test(NAME packages.signing
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/packages/SigningTest.py
        ${PROJECT_SOURCE_DIR} ${CMAKE_CPACK_COMMAND} ${PROJECT_BINARY_DIR} ${PROJECT_VERSION})
set_tests_properties(packages.signing PROPERTIES FIXTURES_REQUIRED packages ${patient})
add_test(NAME packages.are_the_same_bytes_when_built_again_elsewhere
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/reproducible
        ${CMAKE_COMMAND} ${CMAKE_CPACK_COMMAND} ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
set_tests_properties(packages.are_the_same_bytes_when_built_again_elsewhere PROPERTIES
    FIXTURES_REQUIRED packages TIMEOUT 3000 COST 500)
add_test(NAME ui.on_a_display_of_16_bits
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/desktop --depth 16
        ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:ui_tests> --gtest_filter=LowColorDepth.*
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
add_test(NAME ui.on_two_monitors
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/desktop --monitors 2
        ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:ui_tests> --gtest_filter=LeftMonitor.*
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
# The tests of characters in the three other code pages: two come with the language of the system, one with the program.
add_test(NAME ui.in_code_page_65001
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:ui_tests> --gtest_filter=CodePage.*
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
set_tests_properties(ui.in_code_page_65001 PROPERTIES ${alone} ENVIRONMENT HUEVOX_CODE_PAGE=65001)
foreach(page IN ITEMS 1251:ru_RU.UTF-8 932:ja_JP.UTF-8)
    string(REGEX MATCH "^([0-9]+):(.*)$" page ${page})
    add_test(NAME ui.in_code_page_${CMAKE_MATCH_1}
        COMMAND ${PROJECT_SOURCE_DIR}/scripts/desktop --locale ${CMAKE_MATCH_2}
            ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:ui_tests> --gtest_filter=CodePage.*
        WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
    set_tests_properties(ui.in_code_page_${CMAKE_MATCH_1} PROPERTIES ${patient}
        ENVIRONMENT HUEVOX_CODE_PAGE=${CMAKE_MATCH_1})
endforeach()
# At 96 DPI these run with all the others. Here: tests that look at places and pixels, and some whose result a click decides.
string(JOIN ":" scaled_ui Scaling.* UnawarePicking.* LoupeWindow.* ScreenPicking.Takes* ScreenPicking.LocksOpening* ColorBarClicks.*
    PickerWindows.OpenBeside* PickersWebsafe.BlackIs* PickersFailsafe.Swatch10* PickersJavaScript.OneName*
    PickersJavaScript.Switching* Keyboard.AFrame* OneLineText.* NewestColor.IsShownAfterKeys* ContrastOfMarks.Shows* ContrastOfMarks.KeysMove*)
foreach(dpi IN ITEMS 120 144 192)
    add_test(NAME ui.at_${dpi}_dpi
        COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scaled ${dpi}
            $<TARGET_FILE:ui_tests> ${scaled_ui} $<TARGET_FILE:program_tests> PickerForms.*:CellStripTest.*:TextFit.*:ContrastForm.Ratio*:ContrastForm.AChange*
        WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
    set_tests_properties(ui.at_${dpi}_dpi PROPERTIES ${patient})
endforeach()
add_test(NAME ui.on_a_full_disk
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/full-disk
        ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:ui_tests> --gtest_filter=FullDisk.*
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
add_test(NAME ui.on_a_file_that_cannot_be_replaced
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/immovable-file
        ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:ui_tests> --gtest_filter=ImmovableFile*
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
set_tests_properties(ui.on_a_file_that_cannot_be_replaced PROPERTIES SKIP_RETURN_CODE 77)
add_test(NAME program.with_few_fonts
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/few-fonts
        sans ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:program_tests> --gtest_filter=TextFit.*)
set_tests_properties(program.with_few_fonts ui.on_a_display_of_16_bits ui.on_a_file_that_cannot_be_replaced
    ui.on_a_full_disk ui.on_two_monitors PROPERTIES ${patient})
# The random users, each on its own desktop, share the minutes that HUEVOX_SOAK_MINUTES gives. They take what processor time
# the other tests leave: their minutes pass anyway.
function(add_random_user name seed folder)
    add_test(NAME ${name}
        COMMAND nice ${PROJECT_SOURCE_DIR}/scripts/desktop
            ${PROJECT_SOURCE_DIR}/scripts/wine $<TARGET_FILE:soak> --seed ${seed} --share-of-tests 2
        WORKING_DIRECTORY ${folder})
    # They take longest, so they start first.
    set_tests_properties(${name} PROPERTIES TIMEOUT 3000 COST 1000)
endfunction()
add_random_user(ui.random_user_1 1 ${PROJECT_BINARY_DIR})

# To run the 32-bit build, Wine needs one more package.
execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/wine32 RESULT_VARIABLE without_32_bits)
if(without_32_bits EQUAL 0)
    include(windows-x86.cmake)
else()
    add_random_user(ui.random_user_2 2 ${PROJECT_BINARY_DIR})
endif()

add_test(NAME product.size_imports_and_hardening
    COMMAND ${PROJECT_SOURCE_DIR}/tests/product ${CMAKE_OBJDUMP} $<TARGET_FILE:Huevox>
        ${CMAKE_CXX_COMPILER_VERSION})

add_test(NAME help.file COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/help/HelpFileTest.py ${PROJECT_SOURCE_DIR} ${help_file})
add_test(NAME help.pictures COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/help/PicturesTest.py ${PROJECT_SOURCE_DIR})
set_tests_properties(help.pictures PROPERTIES ${patient})

add_test(NAME bench.report COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/bench/ReportTest.py ${PROJECT_SOURCE_DIR})
add_test(NAME bench.curves COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/bench/CurvesTest.py ${PROJECT_SOURCE_DIR})

tidy_unit(program huevox_pure huevox_toolkit huevox_program Huevox program_tests Planted)
tidy_unit(ui_tests ui_driver ui_tests StandIn StandInViewer TwoColors)
tidy_unit(soak soak_model soak)
tidy_unit(bench huevox_bench)
tidy_unit(others huevox_growth Dropper Dropped installer_tests)
lint_test()
