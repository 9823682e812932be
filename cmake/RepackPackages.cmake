# Called by CPack with the finished packages: takes out the maintainer scripts that CPack puts into a package with a
# shared library. All they do is done by the package's trigger, and a package that runs no code of its own can't do
# anything to a user's files.

foreach(package ${CPACK_PACKAGE_FILES})
    set(content "${CPACK_TEMPORARY_DIRECTORY}/repacked")
    file(REMOVE_RECURSE "${content}")
    execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${content}" COMMAND_ERROR_IS_FATAL ANY)
    if(EXISTS "${content}/DEBIAN/postinst")
        file(REMOVE "${content}/DEBIAN/postinst" "${content}/DEBIAN/postrm")
        execute_process(
            COMMAND dpkg-deb --root-owner-group -Z${CPACK_DEBIAN_COMPRESSION_TYPE} --build "${content}" "${package}"
            COMMAND_ERROR_IS_FATAL ANY)
    endif()
    file(REMOVE_RECURSE "${content}")
endforeach()
