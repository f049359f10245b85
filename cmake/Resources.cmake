# The program's resources: icons rendered from their drawings, forms, menus, version and manifest.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
find_program(OPTIPNG optipng REQUIRED)
find_program(PERL perl REQUIRED)
# By its path: Windows has a bash of its own, of another system, which it would find first.
find_program(BASH bash REQUIRED)

set(icon_dir ${PROJECT_SOURCE_DIR}/resources/icons)
set(rendered_dir ${PROJECT_BINARY_DIR}/icons)
file(MAKE_DIRECTORY ${rendered_dir})
set(icons "")

# render_icon(NAME SIZE...): NAME may end in ".full", which is not part of the drawing's name.
function(render_icon name)
    string(REPLACE ".full" "" drawing ${name})
    file(GLOB drawings CONFIGURE_DEPENDS ${icon_dir}/${drawing}.svg ${icon_dir}/*/${drawing}.svg)
    add_custom_command(
        OUTPUT ${rendered_dir}/${name}.ico
        COMMAND ${BASH} ${icon_dir}/render.sh ${icon_dir}/${drawing}.svg ${rendered_dir}/${name}.ico ${ARGN}
        DEPENDS ${drawings} ${icon_dir}/render.sh
        COMMENT "Rendering ${name}.ico"
        VERBATIM)
    set(icons ${icons} ${rendered_dir}/${name}.ico PARENT_SCOPE)
endfunction()

# The pictures of a tool bar, which only the program reads.
function(render_tool_icon name)
    render_icon(${name}.full 16 20 24 32)
    set(icon ${rendered_dir}/${name}.ico)
    add_custom_command(
        OUTPUT ${icon}
        COMMAND ${PERL} ${icon_dir}/index-colours ${rendered_dir}/${name}.full.ico ${icon}
        DEPENDS ${rendered_dir}/${name}.full.ico ${icon_dir}/index-colours
        COMMENT "Indexing the colours of ${name}.ico"
        VERBATIM)
    set(icons ${icons} ${icon} PARENT_SCOPE)
endfunction()

render_icon(huevox 16 20 24 32 48 64 128 256)
foreach(name New Open OpenInNotepad Save CopyColor PasteColor Find CustomFormat Options Help ColorProperties
    Back Forward)
    render_tool_icon(${name})
endforeach()

string(REPLACE "." "," version_numbers "${PROJECT_VERSION}.0")
configure_file(resources/version.rc.h.in ${PROJECT_BINARY_DIR}/resources/version.rc.h @ONLY)
configure_file(resources/app.manifest.in ${PROJECT_BINARY_DIR}/resources/app.manifest @ONLY)
file(GLOB resource_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/*.h ${PROJECT_SOURCE_DIR}/resources/*.rc
    ${PROJECT_BINARY_DIR}/resources/*.manifest ${PROJECT_SOURCE_DIR}/*/*.rc ${PROJECT_SOURCE_DIR}/*/*.rc.h)

# add_resources(LIBRARY FILE): an object library of a resource script and everything it includes.
function(add_resources library file)
    add_library(${library} OBJECT ${file})
    target_include_directories(${library} PRIVATE
        ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/resources ${rendered_dir})
    set_source_files_properties(${file} PROPERTIES OBJECT_DEPENDS "${icons};${resource_files}")
endfunction()
