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

file(STRINGS ${kept} suites REGEX "^[^ ]+[.]")
string(REGEX MATCH "-.*" without "${filter}")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "[.].*" "" suite ${suite})
    # A suite with parameters is called "Parameters/Suite"; a file of figures cannot be.
    string(REPLACE "/" "." name ${prefix}.${suite})
    add_test(${name} ${starter} ${program} --gtest_filter=${suite}.*${without}
        --gtest_output=json:results/${name}.json)
    set_tests_properties(${name} PROPERTIES WORKING_DIRECTORY ${folder} ${properties})
endforeach()
