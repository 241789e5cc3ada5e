# Run with cmake -P: links every entry of APP_DIR but the program itself into
# OUT_DIR, so that a program built there reads the same data beside it.
file(MAKE_DIRECTORY "${OUT_DIR}")
file(GLOB entries RELATIVE "${APP_DIR}" "${APP_DIR}/*")
foreach(entry IN LISTS entries)
  if(NOT entry STREQUAL "tallix" AND NOT EXISTS "${OUT_DIR}/${entry}")
    file(CREATE_LINK "${APP_DIR}/${entry}" "${OUT_DIR}/${entry}" SYMBOLIC)
  endif()
endforeach()
