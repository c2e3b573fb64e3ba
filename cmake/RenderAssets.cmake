# SPDX-License-Identifier: GPL-2.0-or-later
# Pictures are kept as SVG and rendered while building, so that the program shows them with Qt's
# base modules alone.
#
#   include(RenderAssets)
#   add_rendered_assets(<target> <folder> [LARGE <icon>...])
#
# <folder> holds icons/*.svg and pictures/*.svg. They become a Qt resource compiled into <target>:
#
#   :/icons/einfuegen_24.png        every icon at 16, 24, 32, 48 and 64 pixels; those named after
#                                   LARGE at 128 and 256 too, as desktops want the program's sign
#   :/pictures/splash.png           every picture at its own size,
#   :/pictures/splash@2x.png        at twice and
#   :/pictures/splash@3x.png        three times that; QIcon(":/pictures/splash.png") picks by screen
#
# The PNG files stand in <build folder of the caller>/assets/icons and .../pictures for whoever
# packs them. Needs Qt6::rcc and rsvg-convert (Debian: librsvg2-bin). In a static library call
# Q_INIT_RESOURCE(assets) once from the executable, or the linker leaves the pictures out.
include_guard(GLOBAL)

set(ASSET_ICON_SIZES 16 24 32 48 64)
set(ASSET_LARGE_SIZES 128 256)
set(ASSET_PICTURE_SCALES 1 2 3)

# One command per SVG writes all its sizes; `outputs` in the caller's scope grows by their paths.
function(_render_icon svg large)
  cmake_path(GET svg STEM name)
  set(sizes ${ASSET_ICON_SIZES})
  if(name IN_LIST large)
    list(APPEND sizes ${ASSET_LARGE_SIZES})
  endif()
  foreach(size IN LISTS sizes)
    set(png ${folder}/icons/${name}_${size}.png)
    list(APPEND pngs ${png})
    list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${png} ${svg})
  endforeach()
  add_custom_command(OUTPUT ${pngs} ${commands} DEPENDS ${svg} COMMENT "Rendering icon ${name}" VERBATIM)
  set(outputs ${outputs} ${pngs} PARENT_SCOPE)
endfunction()

function(_render_picture svg)
  cmake_path(GET svg STEM name)
  foreach(scale IN LISTS ASSET_PICTURE_SCALES)
    set(suffix "@${scale}x")
    if(scale EQUAL 1)
      set(suffix "")
    endif()
    set(png ${folder}/pictures/${name}${suffix}.png)
    list(APPEND pngs ${png})
    list(APPEND commands COMMAND ${RSVG_CONVERT} --zoom ${scale} -o ${png} ${svg})
  endforeach()
  add_custom_command(OUTPUT ${pngs} ${commands} DEPENDS ${svg} COMMENT "Rendering picture ${name}" VERBATIM)
  set(outputs ${outputs} ${pngs} PARENT_SCOPE)
endfunction()

function(_write_qrc qrc)
  set(lines "<RCC>")
  foreach(prefix IN ITEMS icons pictures)
    string(APPEND lines "\n  <qresource prefix=\"/${prefix}\">")
    foreach(png IN LISTS ARGN)
      cmake_path(GET png PARENT_PATH parent)
      cmake_path(GET parent FILENAME kind)
      cmake_path(GET png FILENAME file)
      if(kind STREQUAL prefix)
        string(APPEND lines "\n    <file alias=\"${file}\">${kind}/${file}</file>")
      endif()
    endforeach()
    string(APPEND lines "\n  </qresource>")
  endforeach()
  # CONFIGURE leaves an unchanged file alone, so that configuring anew compiles nothing anew
  file(CONFIGURE OUTPUT ${qrc} CONTENT "${lines}\n</RCC>\n" @ONLY)
endfunction()

function(add_rendered_assets target source)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LARGE")
  find_program(RSVG_CONVERT rsvg-convert REQUIRED DOC "Renders SVG to PNG (Debian: librsvg2-bin)")
  cmake_path(ABSOLUTE_PATH source)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/assets)
  file(MAKE_DIRECTORY ${folder}/icons ${folder}/pictures)

  set(outputs)
  file(GLOB icons CONFIGURE_DEPENDS ${source}/icons/*.svg)
  foreach(svg IN LISTS icons)
    _render_icon(${svg} "${arg_LARGE}")
  endforeach()
  file(GLOB pictures CONFIGURE_DEPENDS ${source}/pictures/*.svg)
  foreach(svg IN LISTS pictures)
    _render_picture(${svg})
  endforeach()

  set(qrc ${folder}/assets.qrc)
  _write_qrc(${qrc} ${outputs})
  set(compiled ${folder}/qrc_assets.cpp)
  add_custom_command(OUTPUT ${compiled}
    COMMAND Qt6::rcc --name assets -o ${compiled} ${qrc}
    DEPENDS ${qrc} ${outputs} COMMENT "Compiling the pictures" VERBATIM)
  set_source_files_properties(${compiled} PROPERTIES SKIP_AUTOGEN ON)
  target_sources(${target} PRIVATE ${compiled})
endfunction()
