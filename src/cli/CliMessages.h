#pragma once

#include <QString>

// The messages of the command line that are not a command's own usage line.
namespace cli {

// A writing command refused because the window holds the data folder.
inline const QString kFolderInUseMessage = QStringLiteral(
    "Orvanta is open on this data folder: close it first, or use File > Import "
    "from iCalendar.");

}  // namespace cli
