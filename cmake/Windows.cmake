# How the code is built for Windows: small, hardened, using only what is part of Windows, and the same bytes every time.
enable_language(RC)
target_compile_definitions(huevox_flags INTERFACE
    WIN32_LEAN_AND_MEAN NOMINMAX STRICT UNICODE
    WINVER=0x0A00 _WIN32_WINNT=0x0A00 _WIN32_IE=0x0A00
    _FORTIFY_SOURCE=2)
# The program's own code runs in one thread: a local variable that lives on need not wait for another.
target_compile_options(huevox_flags INTERFACE -ffunction-sections -fdata-sections -fstack-protector-strong
    $<$<COMPILE_LANGUAGE:CXX>:-fno-threadsafe-statics>)
target_link_options(huevox_flags INTERFACE
    -static -s -fstack-protector-strong -Wl,--gc-sections -Wl,--no-insert-timestamp
    -Wl,--dynamicbase -Wl,--nxcompat -Wl,--tsaware $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>:-Wl,--high-entropy-va>
    # Sections that lie on whole pages of the file are mapped from it, not read into the process's own memory.
    -Wl,--file-alignment,4096)
