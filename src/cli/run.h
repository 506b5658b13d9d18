#pragma once

#include "cli/command_line.h"
#include "install/program_folder.h"

namespace quarvel {

/// Carries out what the command line asks for, all but the start of the program, without a display. Answers
/// in the language of the program folder, on the terminal. Returns the exit status.
[[nodiscard]] int runCommand(const CommandLine& command, const ProgramFolder& folder);

} // namespace quarvel
