# Installation as a desktop program (the command, the windowed program, the menu entry, the
# icon and the software-centre description) and the Debian package built from it by CPack.
# The version everywhere (--version, Help > Get Software Version, the description's release,
# the package) is project(VERSION) of the top-level CMakeLists.txt.
include(GNUInstallDirs)

set(ORVANTA_APP_ID org.orvanta.Orvanta)
set(ORVANTA_SCREENSHOT_URL "https://orvanta.org/screenshots/main-window.png" CACHE STRING
    "Web address of the main window's screenshot (docs/main-window.png) for software centres")
set(ORVANTA_PACKAGE_MAINTAINER "Orvanta developers <packaging@orvanta.org>" CACHE STRING
    "Maintainer field of the Debian package")

# orvanta-window and orvanta-cli are started by orvanta, never by the user, so they live in
# libexec; orvanta (and orvanta-cli, which may start the window) find them through this path
# relative to their own folder, or beside themselves in the build tree.
set(ORVANTA_HELPERS_DIR ${CMAKE_INSTALL_LIBEXECDIR}/orvanta)
foreach(program orvanta orvanta-cli)
    set(installed_in ${CMAKE_INSTALL_BINDIR})
    if(program STREQUAL orvanta-cli)
        set(installed_in ${ORVANTA_HELPERS_DIR})
    endif()
    file(RELATIVE_PATH helpers_from_bin ${CMAKE_INSTALL_PREFIX}/${installed_in}
         ${CMAKE_INSTALL_PREFIX}/${ORVANTA_HELPERS_DIR})
    if(helpers_from_bin STREQUAL "")
        set(helpers_from_bin .)
    endif()
    target_compile_definitions(${program} PRIVATE ORVANTA_HELPERS_FROM_BIN="${helpers_from_bin}")
endforeach()

install(TARGETS orvanta RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS orvanta-window orvanta-cli RUNTIME DESTINATION ${ORVANTA_HELPERS_DIR})

set(linux ${CMAKE_SOURCE_DIR}/resources/linux)
configure_file(${linux}/${ORVANTA_APP_ID}.metainfo.xml.in
               ${CMAKE_BINARY_DIR}/generated/${ORVANTA_APP_ID}.metainfo.xml @ONLY)
install(FILES ${linux}/${ORVANTA_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_BINARY_DIR}/generated/${ORVANTA_APP_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${linux}/icons/${ORVANTA_APP_ID}.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 32 48 64 128 256)
    install(FILES ${linux}/icons/${ORVANTA_APP_ID}-${size}.png
            DESTINATION ${icons}/${size}x${size}/apps RENAME ${ORVANTA_APP_ID}.png)
endforeach()

# cpack -G DEB in the build folder gives orvanta_<version>_amd64.deb. Its Depends are worked
# out by dpkg-shlibdeps from the libraries the programs link (Qt, libical); the xcb platform
# plugin is loaded at run time, so no link shows it and it is named here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvanta)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
    "A desktop calendar and daily planner: a calendar of twelve months with coloured day\n"
    "marks and notes, a daily planner page for any date, expense and mileage reports,\n"
    "holidays, birthdays, alerts, a to-do list, an alarm clock and date calculators,\n"
    "all kept in plain text files in one data folder.")
set(CPACK_PACKAGE_CONTACT "${ORVANTA_PACKAGE_MAINTAINER}")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
# Printouts set in Arial and Times New Roman keep their line breaks with these metric twins.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, libqt6svg6")
include(CPack)
