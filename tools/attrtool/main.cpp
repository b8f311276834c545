// attrtool: what is in a buffer, why it is refused, what is in the dictionary.
#include <iostream>

#include "command_line.h"
#include "failure.h"

int main(int argc, char **argv) {
  try {
    return attrtool::run(argc, argv);
  } catch (const attrtool::Refusal &refusal) {
    std::cerr << "attrtool: " << refusal.what() << '\n';
    return attrtool::kNo;
  } catch (const std::exception &failure) {
    std::cerr << "attrtool: " << failure.what() << '\n';
    return attrtool::kUsage;
  }
}
