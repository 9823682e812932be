set(PRIORITY_INNER_CXX_STANDARD 17)
# What Qt 6.8 and those before it advise against is not declared at all, so that nothing here uses it.
add_compile_definitions(QT_DISABLE_DEPRECATED_UP_TO=0x060800)

find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Widgets Test LinguistTools)
target_link_libraries(PriorityQtCore INTERFACE Qt6::Core)
target_link_libraries(PriorityQtWidgets INTERFACE Qt6::Gui Qt6::Widgets)
target_link_libraries(PriorityQtTest INTERFACE Qt6::Test)
add_library(PriorityQtDBus INTERFACE)
target_link_libraries(PriorityQtDBus INTERFACE Qt6::DBus)

set(PRIORITY_LANGUAGE_COMPILER "$<TARGET_FILE:Qt6::lrelease>")

# priority_compile_languages(<variable for the .qm files> OUTPUT_DIRECTORY <dir> FILES <.ts>...)
function(priority_compile_languages result)
    cmake_parse_arguments(arg "" "OUTPUT_DIRECTORY" "FILES" ${ARGN})
    set_source_files_properties(${arg_FILES} PROPERTIES OUTPUT_LOCATION "${arg_OUTPUT_DIRECTORY}")
    qt6_add_translation(compiled ${arg_FILES})
    set(${result} ${compiled} PARENT_SCOPE)
endfunction()
