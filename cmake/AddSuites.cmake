# Read by the test runner: adds the tests that cmake/Suites.cmake has described. The list of suites is kept until the program
# is rebuilt. Each suite leaves its figures in results/.
if(NOT EXISTS ${program})
    add_test(${prefix}.is_built ${program})
    return()
endif()

set(kept ${folder}/results/${prefix}.suites.txt)
if(NOT EXISTS ${kept} OR ${program} IS_NEWER_THAN ${kept})
    execute_process(
        COMMAND ${starter} ${program} --gtest_list_tests --gtest_filter=${filter}
        WORKING_DIRECTORY ${folder} OUTPUT_VARIABLE tests COMMAND_ERROR_IS_FATAL ANY)
    file(WRITE ${kept} "${tests}")
endif()

file(STRINGS ${kept} suites REGEX "^[A-Za-z0-9_]+[.]")
string(REGEX MATCH "-.*" without "${filter}")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "[.].*" "" suite ${suite})
    add_test(${prefix}.${suite} ${starter} ${program} --gtest_filter=${suite}.*${without}
        --gtest_output=json:results/${prefix}.${suite}.json)
    set_tests_properties(${prefix}.${suite} PROPERTIES WORKING_DIRECTORY ${folder} ${properties})
endforeach()
