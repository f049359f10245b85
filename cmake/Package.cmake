# What is installed, and how it is packaged: run ./package, or cpack in a build of the product.
configure_file(LICENSE ${PROJECT_BINARY_DIR}/installer/LICENSE.txt NEWLINE_STYLE CRLF)
configure_file(installer/README.txt.in ${PROJECT_BINARY_DIR}/installer/README.txt @ONLY NEWLINE_STYLE CRLF)
configure_file(installer/THIRD-PARTY.txt ${PROJECT_BINARY_DIR}/installer/THIRD-PARTY.txt NEWLINE_STYLE CRLF)

# Packages contain the product, not the tests, which need not be built for them.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
install(TARGETS Huevox RUNTIME DESTINATION .)
install(FILES
    ${help_file}
    ${PROJECT_BINARY_DIR}/installer/LICENSE.txt
    ${PROJECT_BINARY_DIR}/installer/README.txt
    ${PROJECT_BINARY_DIR}/installer/THIRD-PARTY.txt
    DESTINATION .)

# CPack's own zips contain owners and local times, and its installers ask for an administrator. So CPack only collects the
# files, and a script makes both packages.
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${PROJECT_SOURCE_DIR}/cmake/MakePackages.cmake)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGE_VENDOR "the Huevox authors")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_HUEVOX_SOURCE ${PROJECT_SOURCE_DIR})
set(CPACK_HUEVOX_ICON ${rendered_dir}/huevox.ico)
set(CPACK_HUEVOX_HOME_PAGE ${HUEVOX_HOME_PAGE})
set(HUEVOX_DOWNLOADS "https://huevox.example/downloads" CACHE STRING "Address of the folder that offers the packages")
set(CPACK_HUEVOX_DOWNLOADS ${HUEVOX_DOWNLOADS})

# The bill of materials names what the program is linked with and built by.
set(CPACK_HUEVOX_MAP ${PROJECT_BINARY_DIR}/Huevox.map)
target_link_options(Huevox PRIVATE -Wl,-Map=${CPACK_HUEVOX_MAP})
set(CPACK_HUEVOX_TOOLS ${CMAKE_CXX_COMPILER} ${CMAKE_LINKER} ${CHMCMD})
include(CPack)
