# The library of the tests. Debian has its sources for the cross compiler.
if(HUEVOX_PORTABLE)
    # The static one: the test programs have their C++ library built in, and a DLL would come with another.
    foreach(library gtest gtest_main)
        find_library(HUEVOX_${library} lib${library}.a REQUIRED)
        add_library(GTest::${library} STATIC IMPORTED GLOBAL)
        set_target_properties(GTest::${library} PROPERTIES IMPORTED_LOCATION ${HUEVOX_${library}})
    endforeach()
    set_target_properties(GTest::gtest_main PROPERTIES INTERFACE_LINK_LIBRARIES GTest::gtest)
elseif(WIN32)
    add_subdirectory(/usr/src/googletest/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
else()
    find_package(GTest REQUIRED)
endif()
