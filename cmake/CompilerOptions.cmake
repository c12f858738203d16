# The compiler options for all targets of the project: warnings, sanitizers, Qt's strict mode.
add_library(CavernyxCompilerOptions INTERFACE)

target_compile_options(CavernyxCompilerOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-align -Wformat=2
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>)

# GCC 12 has false positives for std::string at -O3. clang-tidy and the sanitizers find real cases.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(CavernyxCompilerOptions INTERFACE -Wno-maybe-uninitialized)
endif()

# APIs deprecated after Qt 6.4 may have no replacement in it.
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

# cavernyx_precompile(<target> <header>...): precompiles headers for the target. Off by default, since
# it hides missing includes. The sanitizer builds turn it on.
option(CAVERNYX_PRECOMPILED_HEADERS "Compile the libraries' headers once for each target" OFF)
function(cavernyx_precompile target)
    if(CAVERNYX_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
