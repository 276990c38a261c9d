# What is installed where, and the Debian package made of it.
#
# The data files come from KESTREL_INSTALL_DIR, where ./setup has assembled them, and what is said of the text that they hold
# from KESTREL_DATA_DIR: the text is no part of the tree.

set(application io.github.kestrelreader.KestrelReader)
set(made ${CMAKE_BINARY_DIR}/packaging)
set(program_dir lib/kestrel-reader)
set(doc_dir share/doc/kestrel-reader)

configure_file(man/kestrel-reader.1 ${made}/kestrel-reader.1 @ONLY) # with the version

# Made when installing, since only a package needs them.
install(CODE "
    file(MAKE_DIRECTORY \"${made}\")
    file(CREATE_LINK ../lib/kestrel-reader/kestrel-reader \"${made}/kestrel-reader\" SYMBOLIC)
    execute_process(COMMAND \"${CMAKE_COMMAND}\" -E env QT_QPA_PLATFORM=offscreen
                            \"$<TARGET_FILE:export_pictures>\" \"${made}\"
                    COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND gzip -9nc \"${made}/kestrel-reader.1\"
                    OUTPUT_FILE \"${made}/kestrel-reader.1.gz\" COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND gzip -9nc \"${CMAKE_SOURCE_DIR}/packaging/changelog\"
                    OUTPUT_FILE \"${made}/changelog.gz\" COMMAND_ERROR_IS_FATAL ANY)")

install(TARGETS kestrel-reader RUNTIME DESTINATION ${program_dir})
install(FILES ${KESTREL_INSTALL_DIR}/KESTRPT.DAT ${KESTREL_INSTALL_DIR}/SEARCH.AVI ${KESTREL_INSTALL_DIR}/KESTREL.HLP
        DESTINATION ${program_dir})
install(FILES ${made}/kestrel-reader DESTINATION bin)
install(FILES packaging/${application}.desktop DESTINATION share/applications)
install(FILES packaging/${application}.metainfo.xml DESTINATION share/metainfo)
foreach(side 16 22 24 32 48 64 128 256 512)
    install(FILES ${made}/kestrel-reader-${side}.png DESTINATION share/icons/hicolor/${side}x${side}/apps
            RENAME ${application}.png)
endforeach()
install(FILES ${made}/kestrel-reader.1.gz DESTINATION share/man/man1)
install(FILES ${KESTREL_DATA_DIR}/copyright ${made}/changelog.gz DESTINATION ${doc_dir})

set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_CONTACT "The Kestrel Reader Project <project@kestrel-reader.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.kestrel-reader.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "reader for the whole Bible in Portuguese")
# The description is read when a package is made; before that it may not be there yet.
configure_file(cmake/PackageDescription.cmake.in PackageDescription.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_BINARY_DIR}/PackageDescription.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation) # whose widths the windows are laid out for
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gnome-text-editor | gedit | kwrite | kate | mousepad")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/postinst)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
