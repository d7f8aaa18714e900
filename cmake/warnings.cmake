# The warnings of every target of the project; each is an error.
add_library(plexel_warnings INTERFACE)
target_compile_options(plexel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
