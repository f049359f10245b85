# Style and static checks as tests. A source is checked again when it or a header has changed.
find_program(CLANG_TIDY clang-tidy REQUIRED)
find_program(CLANG_FORMAT clang-format REQUIRED)
find_program(CPPCHECK cppcheck REQUIRED)

set(rooms core help mainwindow palette pickers settings support toolkit resources tests bench fuzz randomuser)
list(TRANSFORM rooms PREPEND ${PROJECT_SOURCE_DIR}/)
set(header_patterns ${rooms})
list(TRANSFORM header_patterns APPEND /*.h)
file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${header_patterns})
set(source_patterns ${rooms})
list(TRANSFORM source_patterns APPEND /*.cpp)
file(GLOB_RECURSE all_sources CONFIGURE_DEPENDS ${source_patterns})

set(tidy_arguments -std=c++20 -I${PROJECT_SOURCE_DIR} -DHUEVOX_TEST_FILES="files/"
    -DHUEVOX_COLOR_NAMES="index.js" -DHUEVOX_CONTRAST="contrast.js" -DHUEVOX_HELP_TOPICS="topics/" -I${PROJECT_BINARY_DIR}/help)
if(WIN32)
    # clang knows the target, but not where the cross compiler's headers are.
    list(APPEND tidy_arguments --target=${HUEVOX_TARGET}-w64-mingw32 -isystem /usr/src/googletest/googletest/include)
    foreach(dir IN LISTS CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES)
        if(NOT dir MATCHES "/lib/gcc/.*/include(-fixed)?$")
            list(APPEND tidy_arguments -isystem ${dir})
        endif()
    endforeach()
    get_target_property(definitions huevox_flags INTERFACE_COMPILE_DEFINITIONS)
    list(TRANSFORM definitions PREPEND -D)
    list(APPEND tidy_arguments ${definitions} -DHUEVOX_EXE="Huevox.exe" -DHUEVOX_UTF8_EXE="Huevox_utf8.exe"
        -DHUEVOX_DROPPER="Dropper.exe" -DHUEVOX_STAND_IN="StandIn.exe"
        -DHUEVOX_STAND_IN_VIEWER="hhctrl.ocx"
        -DHUEVOX_VERSION="1.2.3" -DHUEVOX_NEWER_VERSION="1.2.4")
endif()

# tidy_unit(NAME TARGET...): checks the targets' sources, except those of earlier units. They are read as one file, because
# the headers of Windows and of the standard library take far longer than the sources.
function(tidy_unit name)
    get_property(read_before GLOBAL PROPERTY tidy_sources)
    set(sources "")
    foreach(target IN LISTS ARGN)
        get_target_property(target_sources ${target} SOURCES)
        get_target_property(dir ${target} SOURCE_DIR)
        foreach(source IN LISTS target_sources)
            cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${dir} NORMALIZE)
            list(APPEND sources ${source})
        endforeach()
    endforeach()
    list(FILTER sources INCLUDE REGEX "[.]cpp$")
    list(REMOVE_DUPLICATES sources)
    list(REMOVE_ITEM sources ${read_before})
    set_property(GLOBAL APPEND PROPERTY tidy_sources ${sources})

    list(TRANSFORM sources REPLACE "(.+)" "#include \"\\1\"\n" OUTPUT_VARIABLE includes)
    list(JOIN includes "" text)
    set(whole ${PROJECT_BINARY_DIR}/tidy/${name}.cpp)
    file(CONFIGURE OUTPUT ${whole} CONTENT "${text}" @ONLY)
    add_custom_command(
        OUTPUT ${whole}.checked
        COMMAND ${CLANG_TIDY} --quiet --checks=-bugprone-suspicious-include
            --config-file=${PROJECT_SOURCE_DIR}/.clang-tidy ${whole} -- ${tidy_arguments}
        COMMAND ${CMAKE_COMMAND} -E touch ${whole}.checked
        DEPENDS ${whole} ${sources} ${headers} ${PROJECT_SOURCE_DIR}/.clang-tidy
        COMMENT "Checking ${name}"
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY lint_stamps ${whole}.checked)
endfunction()

# style_checks(): the layout of all sources, and a second opinion on all of the program's.
function(style_checks)
    set(layout ${PROJECT_BINARY_DIR}/layout.checked)
    add_custom_command(
        OUTPUT ${layout}
        COMMAND ${CLANG_FORMAT} --dry-run --Werror ${all_sources} ${headers}
        COMMAND ${CMAKE_COMMAND} -E touch ${layout}
        DEPENDS ${all_sources} ${headers} ${PROJECT_SOURCE_DIR}/.clang-format
        COMMENT "Checking the layout"
        VERBATIM)
    set(program_rooms ${rooms})
    list(FILTER program_rooms EXCLUDE REGEX "/(tests|resources)$")
    set(opinion ${PROJECT_BINARY_DIR}/cppcheck.checked)
    add_custom_command(
        OUTPUT ${opinion}
        COMMAND ${CPPCHECK} --quiet --error-exitcode=1 --std=c++20 --language=c++ --inline-suppr
            --enable=warning,performance,portability,style
            --suppressions-list=${PROJECT_SOURCE_DIR}/.cppcheck-suppressions
            -I${PROJECT_SOURCE_DIR} ${program_rooms}
        COMMAND ${CMAKE_COMMAND} -E touch ${opinion}
        DEPENDS ${all_sources} ${headers} ${PROJECT_SOURCE_DIR}/.cppcheck-suppressions
        COMMENT "Checking the program once more"
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY lint_stamps ${layout} ${opinion})
endfunction()

# lint_test(): a target "lint" that makes all checks, and a test that builds it.
function(lint_test)
    get_property(stamps GLOBAL PROPERTY lint_stamps)
    add_custom_target(lint DEPENDS ${stamps})
    get_filename_component(preset ${PROJECT_BINARY_DIR} NAME)
    # The processor time that the tests with windows leave unused is enough for it, if it gets some of it from the beginning.
    add_test(NAME lint.${preset} COMMAND nice -n 5 ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target lint)
    set_tests_properties(lint.${preset} PROPERTIES TIMEOUT 3000 COST 800)
endfunction()
