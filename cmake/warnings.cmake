# The warnings of every target of the project; each is an error. GCC 12 sees overlapping copies in "x" + std::string where
# there are none, so that one check is off for it; in code with sanitizers it takes much for uninitialised that is not, so
# that this check is left to the builds without.
add_library(plexel_warnings INTERFACE)
target_compile_options(plexel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${PLEXEL_SANITIZE}>>:-Wno-maybe-uninitialized>)
