# SPDX-License-Identifier: GPL-2.0-or-later
# What Windows reads off an executable: icon, version, and the manifest with high resolution and long
# paths.
#
#   include(WindowsResource)
#   add_windows_resource(<target> <description>)
#
# Needs the icons that add_rendered_assets() renders, and icotool (Debian: icoutils).
include_guard(GLOBAL)

function(add_windows_resource target description)
  find_program(ICOTOOL icotool REQUIRED DOC "Packs icons (Debian: icoutils)")
  set(windows ${CMAKE_SOURCE_DIR}/packaging/windows)
  set(assets ${CMAKE_CURRENT_BINARY_DIR}/assets)
  set(ICON ${assets}/nautrel.ico)
  foreach(size 16 24 32 48 64 128 256)
    list(APPEND pictures ${assets}/icons/nautrel_${size}.png)
  endforeach()
  get_source_file_property(packed ${ICON} GENERATED)
  if(NOT packed)
    add_custom_command(OUTPUT ${ICON} COMMAND ${ICOTOOL} -c -o ${ICON} ${pictures}
                       DEPENDS ${pictures} COMMENT "Packing the icon" VERBATIM)
  endif()
  set(MANIFEST ${windows}/nautrel.manifest)
  set(NAME ${target})
  set(DESCRIPTION ${description})
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${windows}/nautrel.rc.in ${resource} @ONLY)
  set_source_files_properties(${resource} PROPERTIES OBJECT_DEPENDS "${ICON};${MANIFEST}")
  enable_language(RC)
  target_sources(${target} PRIVATE ${resource})
endfunction()
