#pragma once

#include <QString>

#include "Version.h"
#include "shell/Dialogs.h"

// The messages of the help.
inline const QString kNothingToSearch = QStringLiteral("Nothing to search for.");
inline const QString kPhraseNotFound = QStringLiteral("Search Phrase not Found");
inline const QString kEndOfSearch = QStringLiteral("End of Search");
inline const QString kHelpOnSearchTitle = QStringLiteral("Help on Search");
inline const QString kHelpOnSearchText =
    QStringLiteral(
        "The search looks for your entry as one single phrase throughout each help "
        "topic.") +
    kCrLf + kCrLf +
    QStringLiteral(
        "Two or more words are found only where they stand together, in the order "
        "typed, so a search for two words that appear apart in a topic finds "
        "nothing.") +
    kCrLf + kCrLf +
    QStringLiteral(
        "For the best results, search for one word at a time. Find Now starts at the "
        "first topic; Find Again goes on from the topic after the last one found.");

inline const QString kVersionMessage = QStringLiteral("Orvanta version " ORVANTA_VERSION) + kCrLf +
                                       QStringLiteral("Planner and Date Management");
inline const QString kVersionTitle = QStringLiteral("Software Version");
