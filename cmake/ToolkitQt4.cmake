set(PRIORITY_CXX_STANDARD 11)

set(needed QtCore QtGui)
if(PRIORITY_TESTS)
    list(APPEND needed QtTest)
endif()
# Whatever Qt 4 was installed from, its qmake is asked where it is: -DQT_QMAKE_EXECUTABLE=... names it.
find_package(Qt4 4.8 REQUIRED COMPONENTS ${needed})
set(Qt4_VERSION "${QTVERSION}")
target_link_libraries(PriorityQtCore INTERFACE Qt4::QtCore)
target_link_libraries(PriorityQtWidgets INTERFACE Qt4::QtGui)
if(PRIORITY_TESTS)
    target_link_libraries(PriorityQtTest INTERFACE Qt4::QtTest)
    # In front of every test: what its test library leaves out is not seen where the others are at hand.
    target_compile_options(PriorityQtTest INTERFACE
        "SHELL:-include ${PROJECT_SOURCE_DIR}/tests/support/ToolkitTest.h")
endif()

# The compiled language files are the same in all generations.
if(NOT QT_LRELEASE_EXECUTABLE)
    find_program(PRIORITY_LRELEASE NAMES lrelease-qt4 lrelease REQUIRED)
    set(QT_LRELEASE_EXECUTABLE "${PRIORITY_LRELEASE}")
endif()

set(PRIORITY_LANGUAGE_COMPILER "${QT_LRELEASE_EXECUTABLE}")

# priority_compile_languages(<variable for the .qm files> OUTPUT_DIRECTORY <dir> FILES <.ts>...)
function(priority_compile_languages result)
    cmake_parse_arguments(arg "" "OUTPUT_DIRECTORY" "FILES" ${ARGN})
    file(MAKE_DIRECTORY "${arg_OUTPUT_DIRECTORY}")
    foreach(file ${arg_FILES})
        get_filename_component(name "${file}" NAME_WE)
        get_filename_component(source "${file}" ABSOLUTE)
        set(output "${arg_OUTPUT_DIRECTORY}/${name}.qm")
        add_custom_command(OUTPUT "${output}"
            COMMAND "${QT_LRELEASE_EXECUTABLE}" -silent "${source}" -qm "${output}"
            DEPENDS "${source}"
            VERBATIM)
        list(APPEND compiled "${output}")
    endforeach()
    set(${result} ${compiled} PARENT_SCOPE)
endfunction()
