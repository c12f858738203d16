# One interface target that every target of the project links: warnings, sanitizers, Qt's
# strictness switches. Nothing here changes what a target means, only how it is compiled.
add_library(CavernyxCompilerOptions INTERFACE)

target_compile_options(CavernyxCompilerOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-align -Wformat=2
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>)

# GCC 12 takes a std::string that was moved from or returned for uninitialised once it has inlined
# enough of it, which is at -O3; clang-tidy and the sanitizers look for the real cases.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(CavernyxCompilerOptions INTERFACE -Wno-maybe-uninitialized)
endif()

# What a later Qt deprecates may have no successor in Qt 6.4 yet.
target_compile_definitions(CavernyxCompilerOptions INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_WARN_DEPRECATED_UP_TO=0x060400)

if(CAVERNYX_SANITIZERS)
    target_compile_options(CavernyxCompilerOptions INTERFACE
        -fsanitize=${CAVERNYX_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(CavernyxCompilerOptions INTERFACE -fsanitize=${CAVERNYX_SANITIZERS})
endif()

# cavernyx_precompile(<target> <header>...): compiles the heavy headers of the target's libraries
# once. Off by default, so that a source that forgets an include does not go unnoticed: the sanitizers'
# builds turn it on, and ./test compiles the launcher's sources without it first.
option(CAVERNYX_PRECOMPILED_HEADERS "Compile the libraries' headers once for each target" OFF)
function(cavernyx_precompile target)
    if(CAVERNYX_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
