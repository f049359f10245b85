# What the program starts or loads in the tests instead of programs and libraries of Windows: of its own word length.
add_executable(StandIn WIN32 driver/StandIn.cpp)
target_link_libraries(StandIn PRIVATE huevox_flags)
add_library(StandInViewer MODULE driver/StandInViewer.cpp)
set_target_properties(StandInViewer PROPERTIES PREFIX "" OUTPUT_NAME hhctrl SUFFIX .ocx)
target_link_libraries(StandInViewer PRIVATE huevox_flags)
# Libraries of Windows export their names without what 32-bit compilers add to them.
target_link_options(StandInViewer PRIVATE -Wl,--kill-at)
