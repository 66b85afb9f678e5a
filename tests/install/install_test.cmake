# Installs the build into a fresh prefix and runs the installed kvelder-cli from
# another folder: it must take the installed data files, without a note.
#   cmake -DBUILD_DIR=... -DPREFIX=... -DCLI=bin/kvelder-cli[.exe] [-DEMULATOR=...] [-DWINDOW=ON] -P install_test.cmake
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}"
                RESULT_VARIABLE installed OUTPUT_QUIET)
if(NOT installed EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${installed}")
endif()

set(expected "${CLI}" share/kvelder/EC5Material.csv share/kvelder/EC5Profile.csv share/kvelder/Kveldersetup.csv)
if(WINDOW)
  list(APPEND expected bin/kvelder "share/kvelder/Help/Kvelder manual.pdf"
       "share/kvelder/Help/Kvelder Update information.pdf" share/applications/kvelder.desktop
       share/icons/hicolor/scalable/apps/kvelder.svg share/mime/packages/kvelder.xml)
endif()
foreach(file IN LISTS expected)
  if(NOT EXISTS "${PREFIX}/${file}")
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()

# A material renamed in the installed catalogue shows that the installed data
# is the data read, and not the source tree's.
file(READ "${PREFIX}/share/kvelder/EC5Material.csv" materials)
string(REPLACE "GL30c;" "GL30i;" materials "${materials}")
file(WRITE "${PREFIX}/share/kvelder/EC5Material.csv" "${materials}")

file(MAKE_DIRECTORY "${PREFIX}/elsewhere")
execute_process(COMMAND ${EMULATOR} "${PREFIX}/${CLI}" calc --text
                WORKING_DIRECTORY "${PREFIX}/elsewhere"
                RESULT_VARIABLE exit OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT exit EQUAL 0 OR NOT err STREQUAL "" OR NOT out MATCHES "Material GL30i")
  message(FATAL_ERROR "installed kvelder-cli: exit ${exit}\n${err}\n${out}")
endif()
file(REMOVE_RECURSE "${PREFIX}")
