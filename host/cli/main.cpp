#include "host/cli/Program.h"

int main(int argumentCount, char** arguments) {
  return static_cast<int>(host::cli::RunProgram(argumentCount, arguments));
}
