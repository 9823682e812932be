# Qt behind one set of names, so that no other file names its generation: the targets PriorityQtCore,
# PriorityQtWidgets, PriorityQtTest and, but for 4, PriorityQtDBus, the function priority_compile_languages with its PRIORITY_LANGUAGE_COMPILER, and
# PRIORITY_INNER_CXX_STANDARD.

set(PRIORITY_QT "" CACHE STRING
    "Generation of Qt to build for: 4, 5 or 6; empty: the newest that NetworkManagerQt is here for")
set_property(CACHE PRIORITY_QT PROPERTY STRINGS "" 4 5 6)

# priority_choose_qt(<variable for the generation> <variable for the reason>)
# The list takes effect only with NetworkManagerQt, so that counts before the age of Qt.
function(priority_choose_qt generation reason)
    find_package(KF6NetworkManagerQt QUIET)
    if(NOT KF6NetworkManagerQt_FOUND)
        # The package for Qt 5 does not look for all that it links.
        find_package(Qt5 5.15 QUIET COMPONENTS Network)
        find_package(KF5NetworkManagerQt QUIET)
    endif()
    foreach(candidate 6 5)
        if(KF${candidate}NetworkManagerQt_FOUND)
            set(${generation} ${candidate} PARENT_SCOPE)
            set(${reason} "NetworkManagerQt ${KF${candidate}NetworkManagerQt_VERSION} is here for it" PARENT_SCOPE)
            return()
        endif()
    endforeach()
    set(minimum_6 6.4)
    set(minimum_5 5.15)
    foreach(candidate 6 5)
        find_package(Qt${candidate} ${minimum_${candidate}} QUIET COMPONENTS Core Gui Widgets)
        if(Qt${candidate}_FOUND)
            set(${generation} ${candidate} PARENT_SCOPE)
            set(${reason} "it is the newest here, and NetworkManagerQt is here for none" PARENT_SCOPE)
            return()
        endif()
    endforeach()
    message(FATAL_ERROR "There is neither Qt 6.4 nor Qt 5.15 here, nor anything newer of the two. "
        "packaging/install-packages build installs one on Debian and Ubuntu.")
endfunction()

if(PRIORITY_QT STREQUAL "")
    priority_choose_qt(PRIORITY_QT reason)
elseif(PRIORITY_QT MATCHES "^[456]$")
    set(reason "PRIORITY_QT says so")
else()
    message(FATAL_ERROR "PRIORITY_QT is \"${PRIORITY_QT}\". It names the generation of Qt to build for: "
        "4 (4.8), 5 (5.15) or 6 (6.4 or later); empty, the newest that NetworkManagerQt is here for.")
endif()

foreach(target PriorityQtCore PriorityQtWidgets PriorityQtTest)
    add_library(${target} INTERFACE)
endforeach()
target_link_libraries(PriorityQtWidgets INTERFACE PriorityQtCore)
target_link_libraries(PriorityQtTest INTERFACE PriorityQtWidgets)

include(ToolkitQt${PRIORITY_QT})
message(STATUS "Building for Qt ${Qt${PRIORITY_QT}_VERSION}: ${reason}")
