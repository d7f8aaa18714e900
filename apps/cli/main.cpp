#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "cli/program.h"

int main(int count, char** values) {
  const std::vector<std::string> arguments(values + std::min(count, 1), values + count);
  return plexel::RunProgram(arguments, {std::cin, std::cout, std::cerr});
}
