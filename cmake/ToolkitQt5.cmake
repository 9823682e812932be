set(PRIORITY_INNER_CXX_STANDARD 11)

find_package(Qt5 5.15 REQUIRED COMPONENTS Core DBus Gui Widgets Test LinguistTools)
target_link_libraries(PriorityQtCore INTERFACE Qt5::Core)
target_link_libraries(PriorityQtWidgets INTERFACE Qt5::Gui Qt5::Widgets)
target_link_libraries(PriorityQtTest INTERFACE Qt5::Test)
add_library(PriorityQtDBus INTERFACE)
target_link_libraries(PriorityQtDBus INTERFACE Qt5::DBus)

set(PRIORITY_LANGUAGE_COMPILER "$<TARGET_FILE:Qt5::lrelease>")

# priority_compile_languages(<variable for the .qm files> OUTPUT_DIRECTORY <dir> FILES <.ts>...)
function(priority_compile_languages result)
    cmake_parse_arguments(arg "" "OUTPUT_DIRECTORY" "FILES" ${ARGN})
    set_source_files_properties(${arg_FILES} PROPERTIES OUTPUT_LOCATION "${arg_OUTPUT_DIRECTORY}")
    qt5_add_translation(compiled ${arg_FILES})
    set(${result} ${compiled} PARENT_SCOPE)
endfunction()
