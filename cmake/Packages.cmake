# The Debian packages, one for each component. packaging/packages builds them.

set(PRIORITY_MAINTAINER "PriorityPlugin maintainers <maintainers@priority-plugin.example>" CACHE STRING
    "Name and address of who answers for the packages")

# A build for another generation of Qt has the same files, and takes the place of any other. The name tells the
# generation, whichever the release has: what was built against the libraries of one crashes with those of another.
if(PRIORITY_QT EQUAL 5)
    set(package_suffix "")
else()
    set(package_suffix "-qt${PRIORITY_QT}")
endif()
set(toolkit_development_4 "libqt4-dev (>= 4:4.8)")
set(toolkit_development_5 "qtbase5-dev (>= 5.15)")
set(toolkit_development_6 "qt6-base-dev (>= 6.4)")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME priority-plugin)
set(CPACK_PACKAGE_CONTACT "${PRIORITY_MAINTAINER}")
# Each package has a summary of its own, the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/StagePackages.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/RepackPackages.cmake")
set(CPACK_PRIORITY_SOURCE_DIRECTORY "${PROJECT_SOURCE_DIR}")

set(CPACK_DEB_COMPONENT_INSTALL ON)
# The package of a later release comes after that of an earlier one, as it is another build.
cmake_host_system_information(RESULT release QUERY DISTRIB_INFO)
set(CPACK_DEBIAN_PACKAGE_RELEASE "1+${release_ID}${release_VERSION_ID}")
set(CPACK_DEBIAN_PACKAGE_SOURCE priority-plugin)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PRIORITY_LIBRARY_DIRECTORY}")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# priority_package(<component> <name> <section> <description>)
macro(priority_package component name section description)
    string(TOUPPER ${component} component_in_names)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${component_in_names}_PACKAGE_NAME ${name}${package_suffix})
    set(CPACK_DEBIAN_${component_in_names}_PACKAGE_SECTION ${section})
    set(CPACK_DEBIAN_${component_in_names}_DESCRIPTION "${description}")
    if(package_suffix)
        set(CPACK_DEBIAN_${component_in_names}_PACKAGE_CONFLICTS ${name})
        set(CPACK_DEBIAN_${component_in_names}_PACKAGE_REPLACES ${name})
    endif()
endmacro()

set(CPACK_COMPONENTS_ALL "")
priority_package(runtime priority-plugin libs [[ordered list of networks for a connection manager's dashboard
A plug-in library for a Qt host that shows the ordered list of networks in
the host's settings dialog, lets the user change it, and serves it to other
plug-ins. With it come the two libraries of host services that it uses, in
the implementation of the reference host.]])
priority_package(development priority-plugin-dev libdevel [[files to build hosts and plug-ins around PriorityPlugin with
The contracts between PriorityPlugin, its host and its sibling plug-ins as
C++ headers, a CMake package, the guides for host teams and for plug-in
authors, and an example for each.]])
priority_package(dashboard priority-dashboard net [[reference host for PriorityPlugin
A dashboard that shows the ordered list of networks, which of them are in
range and which one a connection manager would use now, and that lets the
user edit the list in its settings dialog. It is where a developer of a
plug-in sees it run.]])
if(PRIORITY_HAS_SETTINGS_MODULE)
    priority_package(kcm priority-plugin-kcm kde [[ordered list of networks in System Settings
A module for the settings of the Plasma desktop. It shows the ordered list of
networks of priority-dashboard and how it rules, and lets the user change
both. The list, its history and its rules are those of the dashboard.]])
endif()

set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_DASHBOARD_DEPENDS runtime)
set(CPACK_COMPONENT_KCM_DEPENDS runtime dashboard)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${toolkit_development_${PRIORITY_QT}}")
set(CPACK_DEBIAN_DASHBOARD_PACKAGE_RECOMMENDS hicolor-icon-theme)
if(PRIORITY_HAS_NETWORKMANAGER)
    set(CPACK_DEBIAN_DASHBOARD_PACKAGE_SUGGESTS network-manager)
endif()

set(control_directory "${CMAKE_CURRENT_BINARY_DIR}/control")
file(WRITE "${control_directory}/triggers" "activate-noawait ldconfig\n")
set(runtime_package "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (>= ${PROJECT_VERSION})")
file(WRITE "${control_directory}/shlibs"
    "libcoreui ${PRIORITY_HOST_ABI} ${runtime_package}\nlibzeltsdk ${PRIORITY_HOST_ABI} ${runtime_package}\n")
set(CPACK_PRIORITY_OWN_LIBRARIES "libcoreui ${PRIORITY_HOST_ABI}\nlibzeltsdk ${PRIORITY_HOST_ABI}\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${control_directory}/triggers" "${control_directory}/shlibs")
if(PRIORITY_CONFIGURATION_DIRECTORY)
    file(WRITE "${control_directory}/conffiles" "${PRIORITY_CONFIGURATION_DIRECTORY}/config.xml\n")
    list(APPEND CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${control_directory}/conffiles")
endif()

include(CPack)
