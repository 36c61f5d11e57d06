#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <optional>

#include "notes_planner/PlannerRecord.h"

class Services;

// A single planner page or note travels as a file of its own, to be handed to somebody else
// and opened again there: "mm/dd/yy" + ":" + the page's 4,100-character record (".pln"), or
// + the note's text with its line breaks as CR LF (".nte"). Neither carries a day cell: the
// page or note belongs to no calendar day until it is merged.

inline const QString kExternalFolder = QStringLiteral("Planners And Notes");
constexpr qsizetype kExternalPlannerSize = 9 + kPlannerRecordLength;

enum class ExternalKind { Planner, Notes };

// ".pln" or ".nte".
QString ExternalExtension(ExternalKind kind);

// The bytes of a page's or a note's file. Throws VbError when the text holds a character no
// data file can hold.
QByteArray ExternalPlannerBytes(const QDate& date, const PlannerPage& page);
QByteArray ExternalNotesBytes(const QDate& date, const QString& text);

// A file read back. Only its start is checked: a file that does not begin with "mm/dd/yy:" is
// refused, and problem tells why (shorter than that, or no date there).
struct ExternalPage {
    QDate date;
    PlannerPage page;
};
struct ExternalNote {
    QDate date;
    QString text;
};
// A two-digit year takes the century nearest nearYear.
std::optional<ExternalPage> ParseExternalPlanner(QByteArrayView bytes, int nearYear,
                                                 QString* problem = nullptr);
std::optional<ExternalNote> ParseExternalNotes(QByteArrayView bytes, int nearYear,
                                               QString* problem = nullptr);

// Asks for a name and writes content under it, with the kind's extension, in the data folder's
// "Planners And Notes" folder: an empty name or one with a character no file name may hold
// cancels, an existing file is replaced only when the user says so, and the place the file was
// saved is reported. Returns the file's path; empty when nothing was written.
QString ExportExternalFile(Services& services, ExternalKind kind, const QByteArray& content);

// Writes content back over the external file at path and reports where it was saved.
void SaveExternalFileTo(Services& services, const QString& path, const QByteArray& content);

// Lets the user pick a ".pln" or ".nte" file, starting in the home folder. Returns its path;
// empty when the user cancelled or the choice was not a file (said so).
QString PickExternalFile(Services& services, const QString& caption);

// Reads a picked file whole; nullopt (after a message naming the file and what is wrong) when
// it is not a file of kind.
std::optional<ExternalPage> ReadExternalPlannerFile(Services& services, const QString& path,
                                                    int nearYear);
std::optional<ExternalNote> ReadExternalNotesFile(Services& services, const QString& path,
                                                  int nearYear);

// "Displaying External Notes for Mar 07, 2026".
QString ExternalNotesCaption(const QDate& date);
