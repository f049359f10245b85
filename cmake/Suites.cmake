# suite_tests(TARGET PREFIX FILTER PROPERTY VALUE ...): one test for each suite of a Windows program that the filter lets
# through, because starting a program under Wine takes longer than most tests. The runner asks the program for its suites once
# there is a desktop to start it on.
function(suite_tests target prefix filter)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${prefix}.suites.cmake)
    file(GENERATE OUTPUT ${script} CONTENT
"set(program [[$<TARGET_FILE:${target}>]])
set(starter [[${CMAKE_CROSSCOMPILING_EMULATOR}]])
set(prefix [[${prefix}]])
set(filter [[${filter}]])
set(folder [[${PROJECT_BINARY_DIR}]])
set(properties [[${ARGN}]])
include([[${PROJECT_SOURCE_DIR}/cmake/AddSuites.cmake]])
")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${script})
endfunction()
