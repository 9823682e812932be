# NetworkManagerQt, for the WLAN plug-in over NetworkManager: the target PriorityNetworkManagerQt, where there is one.
# PRIORITY_HAS_NETWORKMANAGER tells whether. The generations of its library have the numbers of Qt's.

set(PRIORITY_HAS_NETWORKMANAGER OFF)
if(PRIORITY_QT EQUAL 4)
    return()
endif()

# Both components have to be known before the package is looked for.
find_package(Qt${PRIORITY_QT} QUIET COMPONENTS DBus Network)
find_package(KF${PRIORITY_QT}NetworkManagerQt QUIET)
if(KF${PRIORITY_QT}NetworkManagerQt_FOUND)
    set(PRIORITY_HAS_NETWORKMANAGER ON)
    add_library(PriorityNetworkManagerQt INTERFACE)
    target_link_libraries(PriorityNetworkManagerQt INTERFACE KF${PRIORITY_QT}::NetworkManagerQt)
else()
    message(STATUS "WLANNetworkManager is left out: NetworkManagerQt for Qt ${PRIORITY_QT} is missing; "
        "its package is libkf${PRIORITY_QT}networkmanagerqt-dev")
endif()
