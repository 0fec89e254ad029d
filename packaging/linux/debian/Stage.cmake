# Makes what was installed below the staging directory what Debian expects of a package.
unset(ENV{DESTDIR}) # the whole of the paths is given here
set(root "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr")
set(documents "${root}/share/doc/kelvo")

file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/copyright" DESTINATION "${documents}")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/changelog" DESTINATION "${documents}" RENAME changelog.Debian)
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/../../../CHANGELOG.md" DESTINATION "${documents}" RENAME changelog)
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides" DESTINATION "${root}/share/lintian/overrides" RENAME kelvo)

file(GLOB texts "${documents}/changelog*" "${root}/share/man/man1/*.1")
execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)

# Qt's catalogues have a package of their own, and its licence.
file(GLOB copies "${root}/lib/kelvo/Resources/qt_*.qm")
foreach(copy IN LISTS copies)
    string(REGEX REPLACE ".*/qt_" "../../../share/qt6/translations/qtbase_" original "${copy}")
    file(CREATE_LINK "${original}" "${copy}" SYMBOLIC)
endforeach()
