# The source tree after a test run holds no file that it didn't hold before: every test, tool and
# benchmark writes into a temporary or build folder. MODUS=vorher notes the untracked files, MODUS=nachher
# compares. Run with -DWURZEL=<source root> -DLISTE=<file in the build folder>.
find_package(Git QUIET)
if(NOT GIT_FOUND OR NOT EXISTS ${WURZEL}/.git)
  message(STATUS "no git checkout: nothing to compare")
  return()
endif()
execute_process(COMMAND ${GIT_EXECUTABLE} status --porcelain --untracked-files=all --ignored
                WORKING_DIRECTORY ${WURZEL} OUTPUT_VARIABLE stand)
# New files count (untracked or ignored); build folders are the place for results.
string(REPLACE "\n" ";" zeilen "${stand}")
set(stand "")
foreach(zeile ${zeilen})
  if(zeile MATCHES "^(\\?\\?|!!) " AND NOT zeile MATCHES "^!! build")
    string(APPEND stand "${zeile}\n")
  endif()
endforeach()
if(MODUS STREQUAL "vorher")
  file(WRITE ${LISTE} "${stand}")
else()
  file(READ ${LISTE} vorher)
  if(NOT stand STREQUAL vorher)
    message(FATAL_ERROR "The test run changed the source tree.\nBefore:\n${vorher}\nAfter:\n${stand}")
  endif()
endif()
