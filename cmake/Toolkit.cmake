# The toolkit behind one set of names, so that no other file names its generation: the targets PriorityQtCore,
# PriorityQtWidgets and PriorityQtTest, the function priority_compile_languages with its PRIORITY_LANGUAGE_COMPILER, and
# PRIORITY_CXX_STANDARD.

set(PRIORITY_QT "5" CACHE STRING "Generation of the toolkit to build for: 4, 5 or 6")
set_property(CACHE PRIORITY_QT PROPERTY STRINGS 4 5 6)
if(NOT PRIORITY_QT MATCHES "^[456]$")
    message(FATAL_ERROR "PRIORITY_QT is \"${PRIORITY_QT}\". It names the generation of Qt to build for: "
        "4 (4.8), 5 (5.15) or 6 (6.4).")
endif()

foreach(target PriorityQtCore PriorityQtWidgets PriorityQtTest)
    add_library(${target} INTERFACE)
endforeach()
target_link_libraries(PriorityQtWidgets INTERFACE PriorityQtCore)
target_link_libraries(PriorityQtTest INTERFACE PriorityQtWidgets)

include(ToolkitQt${PRIORITY_QT})
