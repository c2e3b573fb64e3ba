# SPDX-License-Identifier: GPL-2.0-or-later
# Which room knows which: `cmake -P tests/arrows.cmake` names every include that is not in this
# table, with its file and line. A name with a slash is a header that is known, and not its room.
# There is no circle in it; one that must be is to be written here with its reason.
cmake_minimum_required(VERSION 3.25)
set(platform_knows)
set(store_knows platform)
set(data_knows ${store_knows} store)
set(shell_knows ${data_knows} data)
# The rooms of the windows.
foreach(room dives evaluation diver printing calculators)
  set(${room}_knows ${shell_knows} shell)
endforeach()
set(search_knows ${shell_knows} shell dives) # opens its hits in the record windows
set(app_knows ${search_knows} search evaluation diver printing calculators)
# The companion needs no window but its own.
set(exchange_knows ${store_knows} store data)
# Its window shows what the exchange does.
set(companion_knows ${exchange_knows} exchange)
set(tools_knows ${store_knows} store)
# The look paints controls. Besides it knows the program that it shows and the windows that it
# frames by a class of their own, the companion and its window likewise, the folder and the lock
# that it sees to before, and what a report is made of.
set(look_knows platform data/grid.h store/divers_folder.h store/lock.h shell/Form1.h
               shell/placing.h app/MDIForm1.h app/Nautrel.h companion/Companion.h
               companion/ExchangeForm.h printing/column_widths.h printing/make_report.h
               printing/report_document.h printing/report_fault.h)
set(main_knows look/application.h)
set(exchange_main_knows exchange look/application.h)
set(exchange_window_main_knows look/application.h)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
set(wrong 0)

macro(refuse)
  file(READ ${root}/src/${file} content)
  string(REGEX REPLACE "${include}.*" "" before "${content}")
  string(REGEX MATCHALL "\n" lines "${before}")
  list(LENGTH lines line)
  math(EXPR line "${line} + 1")
  math(EXPR wrong "${wrong} + 1")
  message("src/${file}:${line}: ${include}: the room '${room}' does not know it")
endmacro()

file(GLOB_RECURSE files RELATIVE ${root}/src ${root}/src/*.h ${root}/src/*.cpp)
foreach(file ${files})
  string(REGEX REPLACE "[/.].*" "" room "${file}")
  file(STRINGS ${root}/src/${file} includes REGEX "^[ \t]*#[ \t]*include")
  foreach(include ${includes})
    string(REGEX REPLACE "^[^\"<]*[\"<]([^\">]*)[\">].*" "\\1" header "${include}")
    string(REGEX REPLACE "/.*" "" known "${header}")
    # Of other folders only the rooms' are judged.
    if(NOT header MATCHES "^Q" AND NOT header MATCHES "[.][.]" AND NOT IS_DIRECTORY ${root}/src/${known})
      continue()
    endif()
    if(header MATCHES "^Q")
      set(known look)
    endif()
    if(NOT known STREQUAL room AND NOT known IN_LIST ${room}_knows
       AND NOT header IN_LIST ${room}_knows)
      refuse()
    endif()
  endforeach()
endforeach()

if(wrong)
  message(FATAL_ERROR "${wrong} includes against the arrows: the table is in tests/arrows.cmake")
endif()
