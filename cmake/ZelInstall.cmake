# Install rules, the package files for find_package and pkg-config, and the build-tree export.

include(CMakePackageConfigHelpers)

get_property(libraries GLOBAL PROPERTY ZEL_LIBRARIES)
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/ZelWidgets")

install(TARGETS ${libraries} EXPORT ZelWidgetsTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")

# The folder below lib/qt6/plugins is where findIconEngines.cpp looks; static programs link it.
install(TARGETS zelsvgiconengines EXPORT ZelWidgetsTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/qt6/plugins/iconengines"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
set_target_properties(zelsvgiconengines PROPERTIES EXPORT_NAME IconEngines)

# The libraries find each other, and the checker of workspace files finds them, wherever they lie.
set_target_properties(${libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS zel-workspace-lint RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
file(RELATIVE_PATH libraries_from_programs
    "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
set_target_properties(zel-workspace-lint PROPERTIES
    INSTALL_RPATH "$ORIGIN/${libraries_from_programs}")

foreach(library ${libraries})
    get_target_property(prefix ${library} ZEL_INCLUDE_PREFIX)
    get_property(headers GLOBAL PROPERTY ZEL_INSTALLED_HEADERS_${library})
    install(FILES ${headers} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${prefix}")
endforeach()

install(EXPORT ZelWidgetsTargets NAMESPACE Zel:: DESTINATION "${package_folder}")
export(EXPORT ZelWidgetsTargets NAMESPACE Zel::
    FILE "${PROJECT_BINARY_DIR}/ZelWidgetsTargets.cmake")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/ZelWidgetsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ZelWidgetsConfig.cmake" INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZelWidgetsConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/ZelWidgetsConfig.cmake"
    "${PROJECT_BINARY_DIR}/ZelWidgetsConfigVersion.cmake"
    DESTINATION "${package_folder}")

file(RELATIVE_PATH ZEL_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
# pkg-config's link line: libraries from the highest floor down, so that static ones resolve too.
set(ZEL_PC_LIBRARIES "")
foreach(library ${libraries})
    set(ZEL_PC_LIBRARIES "-l${library} ${ZEL_PC_LIBRARIES}")
endforeach()
set(ZEL_PC_CFLAGS "")
if(NOT BUILD_SHARED_LIBS)
    foreach(library ${libraries})
        string(TOUPPER ${library} upper)
        string(APPEND ZEL_PC_CFLAGS " -D${upper}_STATIC_DEFINE")
    endforeach()
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/zelwidgets.pc.in"
    "${PROJECT_BINARY_DIR}/zelwidgets.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/zelwidgets.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
