// orvanta: starts the windowed program, or runs a command of the command line. Deciding which
// needs no library at all, so the window does not wait for Qt to be loaded twice: arguments
// that only choose the data folder (--data-dir DIR) open the window, anything else (a command,
// --version, --help, a mistake) goes to the command-line program, which checks it whole.
#include <cstring>

#include "app/HelperPrograms.h"

namespace {

bool OnlyWindowOptions(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const char* argument = argv[i];
        if (std::strcmp(argument, "--data-dir") == 0 && i + 1 < argc)
            ++i;
        else if (std::strncmp(argument, "--data-dir=", 11) != 0 &&
                 std::strcmp(argument, "--exit-when-shown") != 0)
            return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    return helpers::Become(OnlyWindowOptions(argc, argv) ? "orvanta-window" : "orvanta-cli", argv);
}
