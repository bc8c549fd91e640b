# What `cmake --install` puts where, and the Debian package that `cpack` makes of it.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(FILES resources/desktop/chronomender.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES resources/desktop/org.chronomender.chronomender.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/icons/chronomender.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES resources/package/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/chronomender)

# Packages hold these compressed, without the time of compression.
find_program(GZIP gzip REQUIRED)
add_custom_target(package_files ALL)
function(install_compressed source name destination)
  set(compressed ${CMAKE_CURRENT_BINARY_DIR}/package/${name}.gz)
  add_custom_command(OUTPUT ${compressed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/package
    COMMAND sh -c "${GZIP} -9 -n -c '${CMAKE_CURRENT_SOURCE_DIR}/${source}' > '${compressed}'"
    DEPENDS ${source} VERBATIM)
  add_custom_target(compress_${name} DEPENDS ${compressed})
  add_dependencies(package_files compress_${name})
  install(FILES ${compressed} DESTINATION ${destination})
endfunction()
install_compressed(resources/package/changelog changelog
                   ${CMAKE_INSTALL_DATADIR}/doc/chronomender)
install_compressed(docs/man/mend.1 mend.1 ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(docs/man/chronomender.1 chronomender.1 ${CMAKE_INSTALL_MANDIR}/man1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME chronomender)
set(CPACK_PACKAGE_VENDOR "The chronoMender developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "put the dates of photos and movies right")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"chronoMender shows the photos and movies of several cameras in one order,
lets you shift them in time, set time zones and rename them, and writes the
corrected dates into the files: exactly the bytes of a date, after proving
that they are what was read.
.
This package holds the window chronomender and the command line mend.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER
    "The chronoMender developers <maintainers@chronomender.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Plugins and programs that are looked for at run time.
set(CPACK_DEBIAN_PACKAGE_DEPENDS 
    "libimage-exiftool-perl, libqt6svg6, qt6-image-formats-plugins, tzdata")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
