# The warnings of every target of the project; each is an error. GCC 12 sees overlapping copies in "x" + std::string where
# there are none, so that one check is off for it.
add_library(plexel_warnings INTERFACE)
target_compile_options(plexel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
