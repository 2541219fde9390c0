# Fails when a source file outside the toolkit layer (src/gui), the programs (app/), the GUI
# companion tools, the widget tests and the chart benchmarks (bench/gui) includes a Qt header.
# Run with -DWURZEL=<source root>.
set(gui_werkzeuge tavik1w)
file(GLOB_RECURSE dateien LIST_DIRECTORIES false
     ${WURZEL}/src/*.h ${WURZEL}/src/*.hpp ${WURZEL}/src/*.cpp
     ${WURZEL}/tools/*.h ${WURZEL}/tools/*.hpp ${WURZEL}/tools/*.cpp
     ${WURZEL}/tests/*.h ${WURZEL}/tests/*.cpp
     ${WURZEL}/bench/*.h ${WURZEL}/bench/*.cpp ${WURZEL}/fuzz/*.h ${WURZEL}/fuzz/*.cpp)
set(verstoesse "")
foreach(datei ${dateien})
  file(RELATIVE_PATH relativ ${WURZEL} ${datei})
  if(relativ MATCHES "^src/gui/" OR relativ MATCHES "^tests/gui/" OR relativ MATCHES "^tests/data/"
     OR relativ MATCHES "^bench/gui/")
    continue()
  endif()
  set(ist_gui_werkzeug FALSE)
  foreach(w ${gui_werkzeuge})
    if(relativ MATCHES "^tools/${w}/")
      set(ist_gui_werkzeug TRUE)
    endif()
  endforeach()
  if(ist_gui_werkzeug)
    continue()
  endif()
  file(STRINGS ${datei} zeilen REGEX "^[ \t]*#[ \t]*include[ \t]*<Q")
  if(zeilen)
    list(APPEND verstoesse "${relativ}: ${zeilen}")
  endif()
endforeach()
if(verstoesse)
  list(JOIN verstoesse "\n  " text)
  message(FATAL_ERROR "Qt header outside the toolkit layer:\n  ${text}")
endif()
