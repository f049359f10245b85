# The tests that need nothing but a Windows: all that not-portable.txt does not name. On Windows they are started as they are, on
# the user's own desktop. On Debian one test does the same; the others run all tests, these among them.
set(exceptions ${CMAKE_CURRENT_SOURCE_DIR}/not-portable.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${exceptions})
file(STRINGS ${exceptions} lines REGEX "^[a-z]")
foreach(line IN LISTS lines)
    string(REGEX MATCH "^([a-z]+) +([^ ]+)" _ "${line}")
    list(APPEND without_${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
endforeach()

add_test(NAME help.words COMMAND ${PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/help/WordsTest.py ${PROJECT_SOURCE_DIR})
set_tests_properties(help.words PROPERTIES LABELS portable)
if(HUEVOX_PORTABLE)
    foreach(program pure program ui)
        list(JOIN without_${program} ":" without_${program})
    endforeach()
    add_test(NAME pure.all COMMAND pure_tests --gtest_filter=-${without_pure})
    set_tests_properties(pure.all PROPERTIES LABELS portable)
    foreach(program program ui)
        # One at a time: keys and clicks go to whatever window is in front.
        suite_tests(${program}_tests ${program} -${without_${program}} LABELS portable RESOURCE_LOCK desktop)
    endforeach()
else()
    # One at a time they take six minutes, so of the suites that act on the program only a few are run, and of the
    # program's own not the three longest; without -R and -E all are.
    add_test(NAME windows.portable
        COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/portable ${CMAKE_COMMAND} ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}
            -R "^(pure|program|help)[.]|^ui[.](Start|Sliders|SavingPalettes|ScreenPicking|Options)$"
            -E "^program[.](LoupeOfAPick|MainWindow|ContrastForm)$")
    set_tests_properties(windows.portable PROPERTIES LABELS portable TIMEOUT 3000 COST 700)
endif()
