# What a module for System Settings needs: the targets PrioritySettingsModule and, for what loads such modules,
# PrioritySettingsLoader, where there are any. PRIORITY_HAS_SETTINGS_MODULE tells whether. The generations of these
# libraries have the numbers of Qt's.

option(PRIORITY_SETTINGS_MODULE "Build the module for System Settings where its libraries are there" ON)

set(PRIORITY_HAS_SETTINGS_MODULE OFF)
if(NOT PRIORITY_SETTINGS_MODULE OR PRIORITY_QT EQUAL 4)
    return()
endif()

set(module_libraries_5 KF5::CoreAddons KF5::ConfigWidgets)
set(module_libraries_6 KF6::CoreAddons KF6::KCMUtils)
set(framework KF${PRIORITY_QT})
find_package(${framework}CoreAddons QUIET)
find_package(${framework}ConfigWidgets QUIET)
find_package(${framework}KCMUtils QUIET)
if(${framework}CoreAddons_FOUND AND ${framework}ConfigWidgets_FOUND AND ${framework}KCMUtils_FOUND)
    set(PRIORITY_HAS_SETTINGS_MODULE ON)
    add_library(PrioritySettingsModule INTERFACE)
    target_link_libraries(PrioritySettingsModule INTERFACE ${module_libraries_${PRIORITY_QT}})
    add_library(PrioritySettingsLoader INTERFACE)
    target_link_libraries(PrioritySettingsLoader INTERFACE ${framework}::CoreAddons ${framework}::KCMUtils)
else()
    message(STATUS "The module for System Settings is left out: its libraries are missing; "
        "their package is libkf${PRIORITY_QT}kcmutils-dev")
endif()
