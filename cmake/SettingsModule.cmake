# What a module for System Settings needs: the target PrioritySettingsModule, where there is one.
# PRIORITY_HAS_SETTINGS_MODULE tells whether. The generations of these libraries have the numbers of Qt's.

option(PRIORITY_SETTINGS_MODULE "Build the module for System Settings where its libraries are there" ON)

set(PRIORITY_HAS_SETTINGS_MODULE OFF)
if(NOT PRIORITY_SETTINGS_MODULE OR NOT PRIORITY_QT EQUAL 5)
    return()
endif()

find_package(KF5CoreAddons QUIET)
find_package(KF5ConfigWidgets QUIET)
find_package(KF5KCMUtils QUIET)
if(KF5CoreAddons_FOUND AND KF5ConfigWidgets_FOUND AND KF5KCMUtils_FOUND)
    set(PRIORITY_HAS_SETTINGS_MODULE ON)
    add_library(PrioritySettingsModule INTERFACE)
    target_link_libraries(PrioritySettingsModule INTERFACE KF5::CoreAddons KF5::ConfigWidgets)
else()
    message(STATUS "The module for System Settings is left out: its libraries are missing; "
        "their package is libkf5kcmutils-dev")
endif()
