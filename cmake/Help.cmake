# The help file, compiled from its pages and put beside the program.
find_program(CHMCMD chmcmd)
if(NOT CHMCMD)
    message(FATAL_ERROR "There is no chmcmd on the path, which compiles the help: it comes with Free Pascal.")
endif()
# Windows starts no script by its name.
find_program(PYTHON NAMES python3 python REQUIRED)

set(help_compile ${PROJECT_SOURCE_DIR}/help/compile)
set(help_topics ${PROJECT_SOURCE_DIR}/help/topics)
set(help_file ${PROJECT_BINARY_DIR}/huevox.chm)
file(GLOB help_sources CONFIGURE_DEPENDS ${help_topics}/*)

add_custom_command(
    OUTPUT ${help_file}
    COMMAND ${PYTHON} ${help_compile} ${CHMCMD} ${help_topics}/huevox.hhp ${help_file}
    DEPENDS ${help_sources} ${help_compile}
    COMMENT "Compiling huevox.chm"
    VERBATIM)
add_custom_target(huevox_help ALL DEPENDS ${help_file})
