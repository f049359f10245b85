# How the pure code is built on the host: with every check that finds mistakes.
target_compile_definitions(huevox_flags INTERFACE _GLIBCXX_ASSERTIONS)
set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
# Not as an option of the targets: they may have a level of their own, and the last one counts. The reports of the checks need
# lines and no more.
set(CMAKE_CXX_FLAGS_DEBUG "-g1 -O1")
target_compile_options(huevox_flags INTERFACE ${sanitizers})
target_link_options(huevox_flags INTERFACE ${sanitizers})
