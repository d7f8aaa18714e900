#include <iostream>

#include "cli/program.h"
#include "files/program_start.h"

int main(int count, char** values) {
  return plexel::RunProgram(plexel::StartProgram(count, values), {std::cin, std::cout, std::cerr});
}
