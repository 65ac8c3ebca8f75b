#include "host/cli/Program.h"

int main(int argumentCount, char** arguments) {
  return static_cast<int>(bench::RunProgram(argumentCount, arguments));
}
