# NetworkManagerQt, for the WLAN plug-in over NetworkManager. PRIORITY_HAS_NETWORKMANAGER tells whether it is there:
# Debian has it for Qt 5 only, and in a package of its own.

set(PRIORITY_HAS_NETWORKMANAGER OFF)
if(NOT PRIORITY_QT EQUAL 5)
    message(STATUS "WLANNetworkManager is left out: NetworkManagerQt is for Qt 5, and this build for Qt ${PRIORITY_QT}")
    return()
endif()

# Both have to be known before the package is looked for.
find_package(Qt5 5.15 QUIET COMPONENTS DBus Network)
find_package(KF5NetworkManagerQt QUIET)
if(KF5NetworkManagerQt_FOUND)
    set(PRIORITY_HAS_NETWORKMANAGER ON)
else()
    message(STATUS "WLANNetworkManager is left out: NetworkManagerQt is missing, install libkf5networkmanagerqt-dev")
endif()
