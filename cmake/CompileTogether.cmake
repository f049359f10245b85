# compile_together(TARGET HEADER...): several sources as one, after headers that are compiled before, because reading the
# headers of Windows, of the library and of the test framework takes longer than compiling what is not part of the product.
function(compile_together target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    if(ARGN)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
    # A fixture is in the unnamed namespace of a source that another includes.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()

# compile_tests(TARGET HEADER...): optimising a test takes longer than running it, and the code under test is optimised.
function(compile_tests target)
    compile_together(${target} <gtest/gtest.h> ${ARGN})
    target_compile_options(${target} PRIVATE -O0 -U_FORTIFY_SOURCE)
endfunction()
