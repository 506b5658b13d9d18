#pragma once

#include "files/result.h"
#include "install/program_folder.h"

namespace quarvel {

/// Lays out a program folder from its starter: what is missing of the starter's files at its top, and the
/// whole archive when there is none at all. Whatever has a name already keeps it and is not touched. Each
/// file, and the archive, is whole or absent, even when the process is killed; several processes may do this
/// at once.
///
/// What fails does not keep the rest from being laid out; the first failure is returned: Unwritable or
/// DiskFull of the program folder, Unreadable of the starter, NotFound when there is neither an archive nor a
/// starter.
[[nodiscard]] Result<void> layOutProgramFolder(const ProgramFolder& folder);

} // namespace quarvel
