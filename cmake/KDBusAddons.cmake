# KDBusAddons, which lets a second start of the dashboard raise the window of the first: the target PriorityKDBusAddons,
# where there is one. PRIORITY_HAS_KDBUSADDONS tells whether. The generations of its library have the numbers of Qt's.

set(PRIORITY_HAS_KDBUSADDONS OFF)
if(PRIORITY_QT EQUAL 4)
    return()
endif()

# Has to be known before the package is looked for.
find_package(Qt${PRIORITY_QT} QUIET COMPONENTS DBus)
find_package(KF${PRIORITY_QT}DBusAddons QUIET)
if(KF${PRIORITY_QT}DBusAddons_FOUND)
    set(PRIORITY_HAS_KDBUSADDONS ON)
    add_library(PriorityKDBusAddons INTERFACE)
    target_link_libraries(PriorityKDBusAddons INTERFACE KF${PRIORITY_QT}::DBusAddons)
    target_compile_definitions(PriorityKDBusAddons INTERFACE HAS_KDBUSADDONS)
else()
    message(STATUS "Each start of the dashboard has a window of its own: KDBusAddons for Qt ${PRIORITY_QT} is missing; "
        "its package is libkf${PRIORITY_QT}dbusaddons-dev")
endif()
