# The target `docs`: the reference of the public headers, by doxygen, as pages in <build>/docs/html. A public name without a
# comment is an error.
find_program(PLEXEL_doxygen doxygen)
mark_as_advanced(PLEXEL_doxygen)
find_package(Python3 QUIET COMPONENTS Interpreter)
if(NOT PLEXEL_doxygen OR NOT Python3_FOUND)
  return()
endif()
get_property(plexel_public_headers GLOBAL PROPERTY PLEXEL_PUBLIC_HEADERS)
list(JOIN plexel_public_headers "\" \"" PLEXEL_REFERENCE_INPUT)
set(PLEXEL_REFERENCE_INPUT "\"${PLEXEL_REFERENCE_INPUT}\"")
configure_file(${PROJECT_SOURCE_DIR}/docs/reference/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
add_custom_target(docs COMMAND ${PLEXEL_doxygen} ${PROJECT_BINARY_DIR}/docs/Doxyfile
                  COMMENT "Writing ${PROJECT_BINARY_DIR}/docs/html/index.html" VERBATIM)
