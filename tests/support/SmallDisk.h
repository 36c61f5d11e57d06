#pragma once

#include <QString>

// A real full disk for a test: a tiny tmpfs mounted in a mount namespace of the calling
// process's own, so that no other process sees it and it goes away with the process. Meant for
// a forked child that ends once it has done its part.

// Mounts a tmpfs of kilobytes at folder (an existing empty folder). False when the machine
// allows no such mount, neither to root nor to a user through a user namespace.
bool MountSmallDisk(const QString& folder, int kilobytes);

// Fills the file system of path to its last byte with a file at path. False when it could not
// be filled that far.
bool FillDisk(const QString& path);
