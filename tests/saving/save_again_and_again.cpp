#include "saving/savings.h"

#include <cstdio>
#include <cstdlib>

/// Saves versions of the same thing in turns, until it is killed.
/// Arguments: program folder, what (0 to 2, in the order of Saving), versions.
int main(int argc, char** argv) {
    if (argc < 4) return 2;
    const QString folder = QFile::decodeName(argv[1]);
    const auto what = static_cast<quarvel::Saving>(std::atoi(argv[2]));
    std::puts("saving");
    std::fflush(stdout);
    while (true)
        for (int argument = 3; argument < argc; ++argument)
            if (!quarvel::save(what, folder, std::atoi(argv[argument]))) return 1;
}
