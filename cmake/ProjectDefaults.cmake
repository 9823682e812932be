# What every target of this tree is built with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The build tree has the layout of an installation, so that it can be used as one.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(PRIORITY_LIBRARY_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(PRIORITY_PLUGIN_DIRECTORY "${CMAKE_BINARY_DIR}/plugins")
set(PRIORITY_LANGUAGE_DIRECTORY "${CMAKE_BINARY_DIR}/share/priority-dashboard/languages")

# The number in the names of the host libraries: raised when what was linked against them can't run any more, and only
# then. The check in .ci/abi tells.
set(PRIORITY_HOST_ABI 1)

add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wshadow)
# For product code: implicit conversions are where the names of networks get damaged.
macro(priority_strict_text)
    add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
endmacro()

# For what a foreign host loads or links, which may be built with an older compiler and Qt.
macro(priority_inner_circle)
    set(CMAKE_CXX_STANDARD ${PRIORITY_INNER_CXX_STANDARD})
endmacro()

if(PRIORITY_WERROR)
    add_compile_options(-Werror)
endif()

if(PRIORITY_SANITIZE)
    add_compile_options(-fsanitize=${PRIORITY_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${PRIORITY_SANITIZE})
else()
    add_link_options(-Wl,--no-undefined)
endif()
