# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0

# The library kelmar_xdg_foreign, which places a dialog in front of another program's window on Wayland. Not built if
# wayland-client, wayland-scanner, wayland-protocols or Qt's private headers are missing: Qt has no public interface to the
# surface of a window.
find_package(PkgConfig REQUIRED)
pkg_check_modules(WaylandClient QUIET IMPORTED_TARGET wayland-client)
pkg_check_modules(WaylandProtocols QUIET wayland-protocols)
find_program(KELMAR_WAYLAND_SCANNER wayland-scanner)
# In a subfolder of the public headers in all versions of Qt 6; the CMake package for them differs between versions.
get_target_property(qpa_folders Qt6::Gui INTERFACE_INCLUDE_DIRECTORIES)
list(TRANSFORM qpa_folders APPEND /${Qt6Gui_VERSION}/QtGui)
find_path(KELMAR_QPA_FOLDER qpa/qplatformnativeinterface.h PATHS ${qpa_folders} NO_DEFAULT_PATH)
if(NOT WaylandClient_FOUND OR NOT WaylandProtocols_FOUND OR NOT KELMAR_WAYLAND_SCANNER OR NOT KELMAR_QPA_FOLDER)
  message(STATUS "Dialogs on Wayland do without the window of the application that asks for them")
  return()
endif()

pkg_get_variable(protocols wayland-protocols pkgdatadir)
set(generated)
foreach(version v1 v2)
  set(description ${protocols}/unstable/xdg-foreign/xdg-foreign-unstable-${version}.xml)
  set(name ${CMAKE_CURRENT_BINARY_DIR}/xdg-foreign-unstable-${version})
  add_custom_command(
    OUTPUT ${name}-client-protocol.h ${name}-protocol.c
    COMMAND ${KELMAR_WAYLAND_SCANNER} client-header ${description} ${name}-client-protocol.h
    COMMAND ${KELMAR_WAYLAND_SCANNER} private-code ${description} ${name}-protocol.c
    DEPENDS ${description}
    COMMENT "Making the code of xdg-foreign ${version}"
    VERBATIM)
  list(APPEND generated ${name}-client-protocol.h ${name}-protocol.c)
endforeach()
add_library(kelmar_xdg_foreign STATIC ${generated})
set_target_properties(kelmar_xdg_foreign PROPERTIES AUTOMOC OFF)
target_link_libraries(kelmar_xdg_foreign PUBLIC PkgConfig::WaylandClient)
# With -isystem, the standard headers would not find those of the C library in a folder that the compiler searches anyway.
list(REMOVE_ITEM WaylandClient_INCLUDE_DIRS ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
# Only for the source that uses it; the others must keep the options of the precompiled headers.
set(KELMAR_XDG_FOREIGN_OPTIONS -DKELMAR_WAYLAND_PARENT)
foreach(folder ${CMAKE_CURRENT_BINARY_DIR} ${KELMAR_QPA_FOLDER} ${WaylandClient_INCLUDE_DIRS})
  list(APPEND KELMAR_XDG_FOREIGN_OPTIONS -isystem ${folder})
endforeach()
