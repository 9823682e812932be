# What is installed where, in components: runtime (the plug-in and the host libraries), development (what other teams
# build with), dashboard (the reference host) and kcm (the module for System Settings, installed in its own folder).
# Everything finds everything else relative to itself, so that an
# installation can be moved as a whole.

include(CMakePackageConfigHelpers)

set(PRIORITY_CONFIGURATION_DIRECTORY "" CACHE STRING
    "Where to install the plug-in's config.xml, with a link to it in the resource folder; empty: in that folder itself")

# The plug-in library path of the installation: the directory with the folder "plugins" in it.
set(library_path "${CMAKE_INSTALL_LIBDIR}/priority-dashboard")
set(header_directory "${CMAKE_INSTALL_INCLUDEDIR}/priority-plugin")
set(package_directory "${CMAKE_INSTALL_LIBDIR}/cmake/PriorityPlugin")

# From the folder of a plug-in up to the host libraries.
set(host_libraries_from_plugin "$ORIGIN/../../..")

function(priority_install_plugin target component)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${host_libraries_from_plugin}")
    install(TARGETS ${target} LIBRARY DESTINATION "${library_path}/plugins/${target}" COMPONENT ${component})
endfunction()

# Runtime

priority_install_plugin(PriorityPlugin runtime)
set(resource_directory "${PROJECT_SOURCE_DIR}/plugins/PriorityPlugin")
set(installed_resources "${library_path}/plugins/PriorityPlugin")
install(FILES "${resource_directory}/wifi.png" "${resource_directory}/3G .png"
    DESTINATION "${installed_resources}" COMPONENT runtime)
if(PRIORITY_CONFIGURATION_DIRECTORY)
    install(FILES "${resource_directory}/config.xml"
        DESTINATION "${PRIORITY_CONFIGURATION_DIRECTORY}" COMPONENT runtime)
    set(configuration_link "${CMAKE_CURRENT_BINARY_DIR}/installed/config.xml")
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/installed")
    file(CREATE_LINK "${PRIORITY_CONFIGURATION_DIRECTORY}/config.xml" "${configuration_link}" SYMBOLIC)
    install(FILES "${configuration_link}" DESTINATION "${installed_resources}" COMPONENT runtime)
else()
    install(FILES "${resource_directory}/config.xml" DESTINATION "${installed_resources}" COMPONENT runtime)
endif()

install(TARGETS coreui zeltsdk EXPORT PriorityPluginTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
    INCLUDES DESTINATION "${header_directory}")

# Development

file(GLOB contract_headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/include/*.h")
# Not a contract: how this tree copes with several generations of Qt.
list(FILTER contract_headers EXCLUDE REGEX "/ToolkitCompat\\.h$")
install(FILES ${contract_headers}
    "${PROJECT_SOURCE_DIR}/host/coreui/HostControl.h" "${PROJECT_SOURCE_DIR}/host/sdk/ZeltSdkStatus.h"
    DESTINATION "${header_directory}" COMPONENT development)

set_target_properties(PriorityContracts PROPERTIES EXPORT_NAME Contracts)
set_target_properties(PriorityQtCore PROPERTIES EXPORT_NAME QtCore)
set_target_properties(PriorityQtWidgets PROPERTIES EXPORT_NAME QtWidgets)
install(TARGETS PriorityContracts EXPORT PriorityPluginTargets INCLUDES DESTINATION "${header_directory}")
install(TARGETS PriorityQtCore PriorityQtWidgets EXPORT PriorityPluginTargets)
install(EXPORT PriorityPluginTargets NAMESPACE PriorityPlugin::
    DESTINATION "${package_directory}" COMPONENT development)

if(PRIORITY_QT EQUAL 4)
    set(toolkit_package "Qt4 ${QT_VERSION_MAJOR}.${QT_VERSION_MINOR}")
    set(toolkit_components "QtCore QtGui")
else()
    set(toolkit "Qt${PRIORITY_QT}")
    set(toolkit_package "${toolkit} ${${toolkit}_VERSION_MAJOR}.${${toolkit}_VERSION_MINOR}")
    set(toolkit_components "Core Gui Widgets")
endif()
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/PriorityPluginConfig.cmake.in" PriorityPluginConfig.cmake
    INSTALL_DESTINATION "${package_directory}"
    PATH_VARS library_path
    NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(PriorityPluginConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/PriorityPluginConfig.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/PriorityPluginConfigVersion.cmake"
    DESTINATION "${package_directory}" COMPONENT development)

# In two folders side by side, as the links from one to the other want it.
set(documentation_directory "${CMAKE_INSTALL_DATADIR}/doc/priority-plugin-dev")
install(FILES "${PROJECT_SOURCE_DIR}/docs/integrating.md" "${PROJECT_SOURCE_DIR}/docs/plugin-authors.md"
    DESTINATION "${documentation_directory}/docs" COMPONENT development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples" DESTINATION "${documentation_directory}" COMPONENT development
    PATTERN ".clang-format" EXCLUDE)

if(PRIORITY_QT EQUAL 4)
    return()
endif()

# Dashboard

install(TARGETS priority-dashboard RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT dashboard)
file(RELATIVE_PATH host_libraries_from_program "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
set_target_properties(priority-dashboard PROPERTIES INSTALL_RPATH "$ORIGIN/${host_libraries_from_program}")
foreach(sibling WLANStored WLANNetworkManager)
    if(TARGET ${sibling})
        priority_install_plugin(${sibling} dashboard)
    endif()
endforeach()

set(data_directory "${CMAKE_INSTALL_DATADIR}/priority-dashboard")
install(DIRECTORY "${PRIORITY_LANGUAGE_DIRECTORY}" DESTINATION "${data_directory}" COMPONENT dashboard
    FILES_MATCHING PATTERN "*.qm")
# Desktops know the program by this name, which main.cpp tells them as well.
set(application_id com.torvik.netquillforge.PriorityDashboard)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/${application_id}.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT dashboard)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/${application_id}.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT dashboard)
set(icon_directory "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${PROJECT_SOURCE_DIR}/packaging/${application_id}.svg"
    DESTINATION "${icon_directory}/scalable/apps" COMPONENT dashboard)
foreach(size 48 128)
    install(FILES "${PROJECT_SOURCE_DIR}/packaging/${application_id}-${size}.png"
        DESTINATION "${icon_directory}/${size}x${size}/apps" COMPONENT dashboard RENAME ${application_id}.png)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/packaging/priority-dashboard.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT dashboard)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/priority-dashboard.bash"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME priority-dashboard COMPONENT dashboard)

# Where the installed dashboard finds the rest, seen from its own directory.
set(library_path_from_program "${host_libraries_from_program}/priority-dashboard")
file(RELATIVE_PATH languages_from_program
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_DATADIR}/priority-dashboard/languages")
target_compile_definitions(dashboard_base PRIVATE
    DASHBOARD_LIBRARY_PATH="${library_path_from_program}"
    DASHBOARD_LANGUAGES="${languages_from_program}")
