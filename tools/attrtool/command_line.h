// What attrtool is asked on its command line.
#pragma once

namespace attrtool {

// Reads the command line, runs the verb that it names and returns the exit status.
int run(int argc, char **argv);

}  // namespace attrtool
