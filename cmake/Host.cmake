# How the pure code is built on the host: with every check that finds mistakes.
target_compile_definitions(huevox_flags INTERFACE _GLIBCXX_ASSERTIONS)
set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
target_compile_options(huevox_flags INTERFACE -O1 ${sanitizers})
target_link_options(huevox_flags INTERFACE ${sanitizers})
