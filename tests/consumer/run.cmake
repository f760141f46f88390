# Usage: cmake -D MODE=installed|static -D SOURCE=... -D BUILD=... -D WORK=... -D HEADERS=a,b
#              -D BUILD_TYPE=... -P run.cmake
#
# installed  installs BUILD and builds the consumer through find_package and through pkg-config
# static     builds the consumer with the sources as a subfolder and static libraries, installs
#            those, and builds it through find_package and pkg-config again

set(here "${CMAKE_CURRENT_LIST_DIR}")
# Nobody debugs these builds, and they are large.
set(build_kind "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" -DCMAKE_CXX_FLAGS_DEBUG=-O0)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "failed (${result}): ${command}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(run_consumer program)
    set(ENV{QT_QPA_PLATFORM} offscreen)
    set(ENV{ZEL_SETTINGS} "${WORK}/settings.json")
    run("${program}")
    message(STATUS "${output}")
endfunction()

function(consume_package prefix headers)
    run(${CMAKE_COMMAND} -S "${here}" -B "${WORK}/package" -G Ninja
        ${build_kind} "-DCMAKE_PREFIX_PATH=${prefix}" "-DCONSUMER_HEADERS=${headers}")
    run(${CMAKE_COMMAND} --build "${WORK}/package")
    run_consumer("${WORK}/package/consumer")
endfunction()

function(consume_pkg_config prefix flag)
    file(GLOB_RECURSE pc "${prefix}/zelwidgets.pc")
    get_filename_component(folder "${pc}" DIRECTORY)
    get_filename_component(libraries "${folder}" DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} "${folder}")
    run(pkg-config --cflags --libs ${flag} zelwidgets)
    separate_arguments(flags UNIX_COMMAND "${output}")
    run(c++ -std=c++20 "${here}/main.cpp" -o "${WORK}/by-pkg-config" ${flags}
        "-Wl,-rpath,${libraries}")
    run_consumer("${WORK}/by-pkg-config")
endfunction()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
set(prefix "${WORK}/prefix")
if(MODE STREQUAL "installed")
    run(${CMAKE_COMMAND} --install "${BUILD}" --prefix "${prefix}")
    run("${prefix}/bin/zel-workspace-lint" --help)
    consume_package("${prefix}" "${HEADERS}")
    consume_pkg_config("${prefix}" "")
else()
    run(${CMAKE_COMMAND} -S "${here}" -B "${WORK}/subfolder" -G Ninja
        ${build_kind} -DCONSUMER_ADD_SUBDIRECTORY=ON
        "-DCONSUMER_SOURCE_DIR=${SOURCE}" -DBUILD_SHARED_LIBS=OFF -DZEL_INSTALL=ON)
    run(${CMAKE_COMMAND} --build "${WORK}/subfolder")
    run_consumer("${WORK}/subfolder/consumer")
    run(${CMAKE_COMMAND} --install "${WORK}/subfolder" --prefix "${prefix}")
    # The headers are the same as those of the other mode, which compiles each of them alone.
    consume_package("${prefix}" "")
    consume_pkg_config("${prefix}" --static)
endif()
