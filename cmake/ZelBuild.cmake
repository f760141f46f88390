# One-line helpers for libraries, tests, benchmarks and fuzz targets.
#
#   zel_add_library(<target> EXPORT_NAME <Name> INCLUDE_PREFIX <Prefix> [PCH <header>...]
#                   PUBLIC <libs> PRIVATE <libs>)
#   zel_sources(<target> <file>...)              sources of one folder
#   zel_public_headers(<target> <header>[=Name,Name]...)
#   zel_add_test(<name> [INTERNAL|CORE_INTERNAL|GUILESS] [SCREENS <file>] SOURCES <file>... [LIBRARIES <libs>])
#       INTERNAL reaches classes of the widget library that are not exported, CORE_INTERNAL those
#       of the core library (and links no widget library); GUILESS links no widgets and no support;
#       SCREENS names a screen layout in tests/support
#   zel_add_benchmark(<name> [INTERNAL] SOURCES <file>... [LIBRARIES <libs>])
#   zel_add_fuzzer(<name> SOURCES <file>... SEEDS <folder> [LIBRARIES <libs>])

include_guard(GLOBAL)
include(GenerateExportHeader)

# A library is compiled once, into an object library <target>_objects. The library itself and
# <target>_internal, a static form for tests of what is not exported, are both linked from it.
function(zel_add_library target)
    cmake_parse_arguments(arg "" "EXPORT_NAME;INCLUDE_PREFIX" "PCH;PUBLIC;PRIVATE" ${ARGN})
    set(objects ${target}_objects)
    set(headers "${PROJECT_BINARY_DIR}/include")

    add_library(${objects} OBJECT)
    add_library(${target} $<TARGET_OBJECTS:${objects}>)
    add_library(${target}_internal STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:${objects}>)
    add_library(Zel::${arg_EXPORT_NAME} ALIAS ${target})

    target_compile_definitions(${objects} PRIVATE ${target}_EXPORTS)
    target_link_libraries(${objects} PUBLIC ${arg_PUBLIC}
        PRIVATE ${arg_PRIVATE} $<BUILD_INTERFACE:zel_compile_options>)
    foreach(library ${target} ${target}_internal)
        target_link_libraries(${library} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
        target_compile_features(${library} PUBLIC cxx_std_20)
        set_target_properties(${library} PROPERTIES AUTOMOC OFF AUTORCC OFF LINKER_LANGUAGE CXX)
    endforeach()

    generate_export_header(${target} BASE_NAME ${target}
        EXPORT_FILE_NAME "${headers}/${arg_INCLUDE_PREFIX}/${target}_export.h")
    string(TOUPPER ${target} upper)
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(${objects} PUBLIC ${upper}_STATIC_DEFINE)
        target_compile_definitions(${target} PUBLIC ${upper}_STATIC_DEFINE)
    endif()

    target_include_directories(${objects} PUBLIC "${headers}" PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${headers}>" "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
    target_include_directories(${target}_internal PUBLIC
        "${headers}" "${CMAKE_CURRENT_SOURCE_DIR}")
    if(arg_PCH)
        target_precompile_headers(${objects} PRIVATE ${arg_PCH})
    endif()

    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${arg_EXPORT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        ZEL_INCLUDE_PREFIX ${arg_INCLUDE_PREFIX})
    set_property(GLOBAL APPEND PROPERTY ZEL_LIBRARIES ${target})
    set_property(GLOBAL APPEND PROPERTY ZEL_INSTALLED_HEADERS_${target}
        "${headers}/${arg_INCLUDE_PREFIX}/${target}_export.h")
endfunction()

function(zel_sources target)
    foreach(file ${ARGN})
        target_sources(${target}_objects PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    endforeach()
endfunction()

# Makes <Prefix/Name> for each public header: the file's base name, or the names behind "=".
function(zel_public_headers target)
    get_target_property(prefix ${target} ZEL_INCLUDE_PREFIX)
    set(folder "${PROJECT_BINARY_DIR}/include/${prefix}")
    foreach(entry ${ARGN})
        string(REGEX MATCH "^([^=]+)=?(.*)$" _ "${entry}")
        set(header "${CMAKE_CURRENT_SOURCE_DIR}/${CMAKE_MATCH_1}")
        string(REPLACE "," ";" names "${CMAKE_MATCH_2}")
        get_filename_component(base "${header}" NAME_WE)
        if(NOT names)
            set(names ${base})
        endif()
        get_filename_component(file_name "${header}" NAME)
        file(RELATIVE_PATH relative "${folder}" "${header}")
        # The header under its own file name as well, as it will lie when installed.
        zel_write_if_changed("${folder}/${file_name}" "#include \"${relative}\"\n")
        foreach(name ${names})
            zel_write_if_changed("${folder}/${name}" "#include \"${file_name}\"\n")
            set_property(GLOBAL APPEND PROPERTY ZEL_FORWARDING_HEADERS "${prefix}/${name}")
            set_property(GLOBAL APPEND PROPERTY ZEL_INSTALLED_HEADERS_${target} "${folder}/${name}")
        endforeach()
        set_property(GLOBAL APPEND PROPERTY ZEL_INSTALLED_HEADERS_${target} "${header}")
    endforeach()
endfunction()

# Makes <Prefix/Name> for a class that lives in a library below, so that users need not know.
function(zel_forward_header target name target_header)
    get_target_property(prefix ${target} ZEL_INCLUDE_PREFIX)
    set(file "${PROJECT_BINARY_DIR}/include/${prefix}/${name}")
    zel_write_if_changed("${file}" "#include <${target_header}>\n")
    set_property(GLOBAL APPEND PROPERTY ZEL_FORWARDING_HEADERS "${prefix}/${name}")
    set_property(GLOBAL APPEND PROPERTY ZEL_INSTALLED_HEADERS_${target} "${file}")
endfunction()

function(zel_write_if_changed file text)
    if(EXISTS "${file}")
        file(READ "${file}" present)
        if(present STREQUAL text)
            return()
        endif()
    endif()
    file(WRITE "${file}" "${text}")
endfunction()

# What the environment of every test holds: no display, a fixed locale, no user settings.
set(ZEL_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen" "LC_ALL=C.UTF-8" "QT_LOGGING_RULES=qt.*.debug=false"
    "XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-home" "HOME=${CMAKE_BINARY_DIR}/test-home"
    "XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}/test-home" "DBUS_SESSION_BUS_ADDRESS=disabled:"
    "ASAN_OPTIONS=detect_leaks=1:abort_on_error=0"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")

function(zel_link_for_checks target internal libraries)
    if(internal)
        target_link_libraries(${target} PRIVATE zelwidgets_internal)
    elseif(TARGET zelwidgets)
        target_link_libraries(${target} PRIVATE Zel::Widgets)
    endif()
    target_link_libraries(${target} PRIVATE Zel::Core zel_compile_options ${libraries})
endfunction()

function(zel_add_test name)
    cmake_parse_arguments(arg "INTERNAL;CORE_INTERNAL;GUILESS" "SCREENS" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE Qt6::Test)
    if(arg_GUILESS)
        target_link_libraries(${name} PRIVATE Zel::Core zel_compile_options ${arg_LIBRARIES})
    elseif(arg_CORE_INTERNAL)
        # Neither the shared core nor what links it: there must be one copy in a process.
        target_link_libraries(${name} PRIVATE
            zeltestsupport zelcore_internal zel_compile_options ${arg_LIBRARIES})
    else()
        target_link_libraries(${name} PRIVATE zeltestsupport)
        zel_link_for_checks(${name} "${arg_INTERNAL}" "${arg_LIBRARIES}")
    endif()
    target_compile_definitions(${name} PRIVATE
        "ZEL_SOURCE_DIR=\"${PROJECT_SOURCE_DIR}\"" "ZEL_BINARY_DIR=\"${PROJECT_BINARY_DIR}\"")
    set(environment ${ZEL_TEST_ENVIRONMENT})
    if(arg_SCREENS)
        list(APPEND environment
            "QT_QPA_PLATFORM=offscreen:configfile=${PROJECT_SOURCE_DIR}/tests/support/${arg_SCREENS}")
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 240)
endfunction()

function(zel_add_benchmark name)
    cmake_parse_arguments(arg "INTERNAL" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    zel_link_for_checks(${name} "${arg_INTERNAL}" "${arg_LIBRARIES}")
    target_link_libraries(${name} PRIVATE benchmark::benchmark)
    target_compile_definitions(${name} PRIVATE "ZEL_SOURCE_DIR=\"${PROJECT_SOURCE_DIR}\"")
    set_property(GLOBAL APPEND PROPERTY ZEL_BENCHMARKS ${name})
endfunction()

# With ZEL_FUZZ a libFuzzer target; without, the same entry point over its seeds, as a test.
function(zel_add_fuzzer name)
    cmake_parse_arguments(arg "CORE_INTERNAL" "SEEDS" "SOURCES;LIBRARIES" ${ARGN})
    if(ZEL_FUZZ)
        add_executable(${name} ${arg_SOURCES})
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        set_property(GLOBAL APPEND PROPERTY ZEL_FUZZERS ${name})
    else()
        add_executable(${name} ${arg_SOURCES} "${PROJECT_SOURCE_DIR}/fuzz/replay.cpp")
        add_test(NAME ${name}_seeds COMMAND ${name} "${CMAKE_CURRENT_SOURCE_DIR}/${arg_SEEDS}")
        set_tests_properties(${name}_seeds PROPERTIES
            ENVIRONMENT "${ZEL_TEST_ENVIRONMENT}" TIMEOUT 120)
    endif()
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/fuzz")
    if(arg_CORE_INTERNAL)
        target_link_libraries(${name} PRIVATE
            zelcore_internal zel_compile_options ${arg_LIBRARIES})
    else()
        zel_link_for_checks(${name} TRUE "${arg_LIBRARIES}")
    endif()
endfunction()
