#pragma once

#include <QString>

// The date calculators' captions and messages, exactly as the user sees them.

inline const QString kDateDiffCaption = QStringLiteral("Date Difference");
inline const QString kStartDateInvalid = QStringLiteral("Start Date is not a valid date.");
inline const QString kEndDateInvalid = QStringLiteral("End Date is not a valid date.");
inline const QString kCurrentInterval = QStringLiteral("Current Interval = ");

// What cmdHelpInterval shows about the intervals.
inline const QString kIntervalHelpTitle = QStringLiteral("Intervals");
inline const QString kIntervalHelp = QStringLiteral(
    "Each interval counts how many of its beginnings lie between the two dates:\r\n"
    "Years: from 31 December to 1 January is 1 year.\r\n"
    "Quarters and Months: the first days of quarters or months passed.\r\n"
    "Weeks: whole seven-day periods from the start date.\r\n"
    "Calendar Weeks: the Sundays passed.\r\n"
    "Day of Year and Days: the days passed.\r\n"
    "Hours, Minutes and Seconds: counted from midnight of each date.\r\n"
    "An end date earlier than the start date gives a negative number.");

inline const QString kNumDaysCaption =
    QStringLiteral("Number of Specific Weekdays Within a Period");
inline const QString kTooManyOccurrences =
    QStringLiteral("Too many occurrences: narrow the Date Difference");
inline const QString kInvalidStartDate = QStringLiteral("Invalid Date in Start Date Box!");
inline const QString kInvalidEndDate = QStringLiteral("Invalid Date in End Date Box!");
inline const QString kStartAfterEnd =
    QStringLiteral("Start Date is Greater than End Date. Please adjust.");
inline const QString kTooMuchOrInvalidData = QStringLiteral("Error: Too Much or Invalid Data");
