# The warnings of every target of the project. They are errors in the test preset alone (PLEXEL_WERROR): a compiler that knows
# more of them builds the programs all the same. GCC 12 sees overlapping copies in "x" + std::string where there are none, so
# that one check is off for it; in code with sanitizers it takes much for uninitialised that is not, so that this check is left
# to the builds without. Of Clang two are off that say more than GCC's of the same name: each conversion between signed and
# unsigned, and an enumerator of a class that is named as one outside; so is what older standard libraries of GCC use though
# they call it deprecated.
add_library(plexel_warnings INTERFACE)
target_compile_options(plexel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<BOOL:${PLEXEL_WERROR}>:-Werror>
  "$<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wno-sign-conversion;-Wno-shadow;-Wno-deprecated-declarations>"
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${PLEXEL_SANITIZE}>>:-Wno-maybe-uninitialized>)
