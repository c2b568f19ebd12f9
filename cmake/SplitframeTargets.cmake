# What every target of this project shares: the language level, warnings as errors, sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(SPLITFRAME_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# libFuzzer steers by the coverage of the libraries, not only of the target.
if(SPLITFRAME_BUILD_FUZZ AND CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Unique symbols pin a shared library in the process: dlclose would never unload it.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fno-gnu-unique)
endif()

# No program is meant to put functions of its own in the place of the libraries': so these may call each other directly.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<CONFIG:Release>:-fno-semantic-interposition>)
endif()

# GCC 12 sees overlapping copies in the standard library's own string concatenation when it inlines deeply.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(-Wno-restrict)
endif()

# Frames and units have a Create of their own beside that of every window: the narrower one is meant to hide it.
function(splitframe_own_code target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-overloaded-virtual -Werror)
endfunction()

# Parses the common headers once for a target of many sources.
function(splitframe_precompile target)
    if(SPLITFRAME_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/Precompiled.h)
    endif()
endfunction()

# The sources below a folder, found again at every build so that a new file needs no list.
function(splitframe_sources out)
    set(patterns)
    foreach(folder IN LISTS ARGN)
        list(APPEND patterns ${folder}/*.cpp)
    endforeach()
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${patterns})
    set(${out} ${found} PARENT_SCOPE)
endfunction()
