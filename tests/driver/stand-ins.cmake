# What the program starts or loads in tests in place of Windows programs and libraries, built for the same word length.
add_executable(StandIn WIN32 driver/StandIn.cpp)
target_link_libraries(StandIn PRIVATE huevox_toolkit)
add_library(StandInViewer MODULE driver/StandInViewer.cpp)
set_target_properties(StandInViewer PROPERTIES PREFIX "" OUTPUT_NAME hhctrl SUFFIX .ocx)
target_link_libraries(StandInViewer PRIVATE huevox_toolkit)
# Windows libraries export plain names, without what 32-bit compilers add to them.
target_link_options(StandInViewer PRIVATE -Wl,--kill-at)
# Drops files onto the program, from inside of it.
add_executable(Dropper driver/Dropper.cpp)
target_link_libraries(Dropper PRIVATE huevox_flags)
target_link_options(Dropper PRIVATE -municode)
add_library(Dropped MODULE driver/Dropped.cpp)
set_target_properties(Dropped PROPERTIES PREFIX "")
target_link_libraries(Dropped PRIVATE huevox_flags)
# Without the compiler's own start: in 32-bit programs that of Debian 13 leaves a thread and an event behind in whoever loads it.
target_compile_options(Dropped PRIVATE -fno-exceptions -fno-stack-protector -U_FORTIFY_SOURCE)
if(HUEVOX_TARGET STREQUAL i686)
    set(entry _DllMain@12)
else()
    set(entry DllMain)
endif()
target_link_options(Dropped PRIVATE -nostartfiles -Wl,--entry=${entry})
add_dependencies(Dropper Dropped)
