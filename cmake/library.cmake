# A library of the installation, and the files by which another build finds it.
include(CMakePackageConfigHelpers)

set(PLEXEL_CMAKE_DESTINATION "${CMAKE_INSTALL_LIBDIR}/cmake/Plexel")
set(PLEXEL_INCLUDE_DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/plexel")

# What is installed finds its libraries wherever it was moved to. Distributions switch this off (CMAKE_SKIP_INSTALL_RPATH).
if(BUILD_SHARED_LIBS)
  file(RELATIVE_PATH plexel_libraries_from_programs "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  set(CMAKE_INSTALL_RPATH "$ORIGIN/${plexel_libraries_from_programs}")
endif()

# How code of the libraries is compiled: for shared ones as well, and it calls its own procedures without detours.
function(plexel_objects target)
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang>:-fno-semantic-interposition>)
endfunction()

# plexel_library(TARGET COMPONENT name DESCRIPTION text BASE folder HEADERS header...
#                [REQUIRES module...] [REQUIRES_PRIVATE module...])
#
# Makes TARGET the component `name` of the package: Plexel::<name>, the library file plexel-<name> (plexel for the component of
# that name), and plexel-<name>.pc. HEADERS, relative to BASE, are all that is installed. The modules are pkg-config's: those
# that the headers need, and those that the library alone needs. Parts of the installation: plexel-<name>-runtime and
# plexel-<name>-development.
function(plexel_library target)
  cmake_parse_arguments(PARSE_ARGV 1 library "" "COMPONENT;DESCRIPTION;BASE" "HEADERS;REQUIRES;REQUIRES_PRIVATE")
  set(file plexel-${library_COMPONENT})
  string(REGEX REPLACE "^plexel-plexel$" "plexel" file ${file})
  add_library(Plexel::${library_COMPONENT} ALIAS ${target})
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${file} EXPORT_NAME ${library_COMPONENT}
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  plexel_objects(${target})
  if(BUILD_SHARED_LIBS)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()
  # A shared library names all that it needs.
  if(BUILD_SHARED_LIBS AND NOT (PLEXEL_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
    target_link_options(${target} PRIVATE LINKER:--no-undefined)
  endif()
  target_compile_features(${target} PUBLIC cxx_std_20)
  list(TRANSFORM library_HEADERS PREPEND "${library_BASE}/")
  set_property(GLOBAL APPEND PROPERTY PLEXEL_PUBLIC_HEADERS ${library_HEADERS})
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${library_BASE}" FILES ${library_HEADERS})
  target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${PLEXEL_INCLUDE_DESTINATION}>)

  install(TARGETS ${target} EXPORT Plexel-${library_COMPONENT}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${file}-runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${file}-runtime NAMELINK_COMPONENT ${file}-development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${file}-development
    FILE_SET HEADERS DESTINATION ${PLEXEL_INCLUDE_DESTINATION} COMPONENT ${file}-development)
  install(EXPORT Plexel-${library_COMPONENT} FILE Plexel-${library_COMPONENT}.cmake NAMESPACE Plexel::
    DESTINATION ${PLEXEL_CMAKE_DESTINATION} COMPONENT ${file}-development)
  plexel_pkg_config(${file} "${library_DESCRIPTION}" "${library_REQUIRES}" "${library_REQUIRES_PRIVATE}")
endfunction()

# A static library hands all that it needs on to the program; a shared one has it by itself.
function(plexel_pkg_config file description requires requires_private)
  if(NOT BUILD_SHARED_LIBS)
    list(APPEND requires ${requires_private})
    set(requires_private "")
  endif()
  list(JOIN requires ", " requires)
  list(JOIN requires_private ", " requires_private)
  file(RELATIVE_PATH prefix "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
  string(REGEX REPLACE "/$" "" prefix "${prefix}")
  foreach(folder LIBDIR INCLUDEDIR DATADIR)
    cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_${folder} BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE ${folder})
  endforeach()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/module.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${file}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${file}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT ${file}-development)
endfunction()

# What programs need to have for Plexel::qt. Its public headers show Widgets alone.
set(PLEXEL_KEYBOARD_MODULES xkbcommon xkbcommon-x11 xcb-xtest xcb)
if(BUILD_SHARED_LIBS)
  set(PLEXEL_SHARED TRUE)
  set(PLEXEL_QT_COMPONENTS Widgets)
else()
  set(PLEXEL_SHARED FALSE)
  set(PLEXEL_QT_COMPONENTS "Widgets Svg")
endif()

# The package itself, which every component's users have. Programs go on compiling with every version of their major one; those that
# link shared libraries are linked anew with each minor one.
list(JOIN PLEXEL_KEYBOARD_MODULES " " PLEXEL_KEYBOARD_WORDS)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/PlexelConfig.cmake.in ${PROJECT_BINARY_DIR}/PlexelConfig.cmake
  INSTALL_DESTINATION ${PLEXEL_CMAKE_DESTINATION} PATH_VARS CMAKE_INSTALL_DATADIR NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/PlexelConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/PlexelConfig.cmake ${PROJECT_BINARY_DIR}/PlexelConfigVersion.cmake
  DESTINATION ${PLEXEL_CMAKE_DESTINATION} COMPONENT plexel-development)
