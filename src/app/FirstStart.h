#pragma once

#include <QStringList>

class Services;

// Puts the files a new data folder needs to be useful (the help topics, the starter icons and
// their captions) into it. A file that exists in any letter case is never touched. Returns the
// names installed.
QStringList InstallDefaultFiles(Services& services);
