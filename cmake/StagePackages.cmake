# Called by CPack with the staged files of all components: adds to each what every Debian package has.

function(compress file)
    execute_process(COMMAND gzip -9n "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(entry "${CPACK_DEBIAN_PACKAGE_SOURCE} (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; \
urgency=medium

  * Built from the sources of version ${CPACK_PACKAGE_VERSION}; changelog.gz tells what changed.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")

foreach(component ${CPACK_COMPONENTS_ALL})
    set(stage "${CPACK_TEMPORARY_DIRECTORY}/${component}")
    string(TOUPPER ${component} component_in_names)
    set(documents "${stage}/usr/share/doc/${CPACK_DEBIAN_${component_in_names}_PACKAGE_NAME}")
    file(MAKE_DIRECTORY "${documents}")
    # These packages name each other. Those for another Qt, when they are installed here, have the same libraries, and
    # are not meant. CPack takes the directory away again where it has looked for libraries.
    if(NOT component STREQUAL "development")
        file(WRITE "${stage}/debian/shlibs.local" "${CPACK_PRIORITY_OWN_LIBRARIES}")
    endif()
    configure_file("${CPACK_PRIORITY_SOURCE_DIRECTORY}/CHANGELOG.md" "${documents}/changelog" COPYONLY)
    file(WRITE "${documents}/changelog.Debian" "${entry}")
    configure_file("${CPACK_PRIORITY_SOURCE_DIRECTORY}/packaging/copyright" "${documents}/copyright" COPYONLY)
    file(GLOB manuals "${stage}/usr/share/man/man*/*.[0-9]")
    foreach(file "${documents}/changelog" "${documents}/changelog.Debian" "${documents}/copyright" ${manuals})
        file(CHMOD "${file}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    endforeach()
    foreach(file "${documents}/changelog" "${documents}/changelog.Debian" ${manuals})
        compress("${file}")
    endforeach()
endforeach()
