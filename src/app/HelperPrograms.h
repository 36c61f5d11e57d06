#pragma once

#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <string>

// The command orvanta hands its work to one of two programs, the windowed program and the
// command-line one. They lie beside it in the build folder, and in the program's libexec folder
// (ORVANTA_HELPERS_FROM_BIN, relative to the command's own folder) once installed. Plain C++,
// so that the command itself loads no library before it hands over.
namespace helpers {

inline std::string OwnFolder() {
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path - 1);
    if (length <= 0)
        return ".";
    const std::string exe(path, static_cast<size_t>(length));
    return exe.substr(0, exe.rfind('/'));
}

inline std::string ProgramPath(const char* name) {
    const std::string folder = OwnFolder();
    const std::string beside = folder + '/' + name;
    if (::access(beside.c_str(), X_OK) == 0)
        return beside;
    return folder + "/" ORVANTA_HELPERS_FROM_BIN "/" + name;
}

// Replaces this process with the program called name, giving it the same arguments; returns
// (with status 1, after saying why) only when that program cannot be started.
inline int Become(const char* name, char** argv) {
    const std::string path = ProgramPath(name);
    argv[0] = const_cast<char*>(path.c_str());
    ::execv(path.c_str(), argv);
    std::fprintf(stderr, "orvanta: cannot start %s: %s\n", path.c_str(), std::strerror(errno));
    return 1;
}

}  // namespace helpers
