# Settings that hold for all targets: language level, definitions, warnings, instrumentation.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
    set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
    if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
        set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
    endif()
    find_program(ZEL_CCACHE ccache)
    if(ZEL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
        # Relative paths let work trees share the cache; the slack is what precompiled headers need.
        set(CMAKE_CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1
            CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
            "${ZEL_CCACHE}")
    endif()
endif()

# What our own targets are compiled with; not passed on to those who use the libraries.
add_library(zel_compile_options INTERFACE)
target_compile_definitions(zel_compile_options INTERFACE
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_STRICT_ITERATORS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(zel_compile_options INTERFACE
        -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wcast-align -Woverloaded-virtual
        -Wunused -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Inlining makes this one cry wolf in Qt's own containers.
        target_compile_options(zel_compile_options INTERFACE -Wno-null-dereference)
    endif()
    if(ZEL_WARNINGS_AS_ERRORS)
        target_compile_options(zel_compile_options INTERFACE -Werror)
    endif()
elseif(MSVC)
    target_compile_options(zel_compile_options INTERFACE /W4 /permissive- /Zc:__cplusplus /utf-8)
    if(ZEL_WARNINGS_AS_ERRORS)
        target_compile_options(zel_compile_options INTERFACE /WX)
    endif()
endif()

if(ZEL_SANITIZE)
    add_compile_options("-fsanitize=${ZEL_SANITIZE}" -fno-omit-frame-pointer)
    if(ZEL_SANITIZE MATCHES "undefined")
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
    # Qt's own libraries have no run-time type information for the virtual table check.
    add_compile_options(-fno-sanitize=vptr)
    add_link_options("-fsanitize=${ZEL_SANITIZE}")
endif()

if(ZEL_COVERAGE)
    add_compile_options(--coverage -O0)
    add_link_options(--coverage)
endif()

if(ZEL_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "ZEL_FUZZ needs clang (use the preset \"fuzz\")")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
