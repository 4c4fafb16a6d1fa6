# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0

# libcups has no CMake or pkg-config file on Debian 12. Gives Cups::Cups.
include(FindPackageHandleStandardArgs)
find_path(CUPS_INCLUDE_DIR cups/cups.h)
find_library(CUPS_LIBRARY cups)
find_package_handle_standard_args(Cups REQUIRED_VARS CUPS_LIBRARY CUPS_INCLUDE_DIR)
mark_as_advanced(CUPS_INCLUDE_DIR CUPS_LIBRARY)
if(Cups_FOUND AND NOT TARGET Cups::Cups)
  add_library(Cups::Cups UNKNOWN IMPORTED)
  set_target_properties(Cups::Cups PROPERTIES IMPORTED_LOCATION ${CUPS_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES
                                                                                 ${CUPS_INCLUDE_DIR})
endif()
