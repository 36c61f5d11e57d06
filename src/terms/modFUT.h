#pragma once

#include <QString>
#include <QStringList>

#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;
class UserPreferences;

// The list of terms that is used when the user has not chosen another one; it is created,
// empty, the first time it is read, and it cannot be deleted.
inline const QString kDefaultTermFile = QStringLiteral("Default.fut");
inline const QString kTermFileExtension = QStringLiteral(".fut");
// A term list holds at most as many terms as a 16-bit count can number.
constexpr int kMaxTerms = 32767;

// Lists of frequently used terms, one file per list in the data folder, named by the user with
// the extension ".fut". A file holds its terms in order, each followed by CR LF except the
// last; an empty file is an empty list. One list is current at a time; its name is remembered
// in the preferences ("Frequent Terms File:"), so the next run opens the same list.
class modFUT {
public:
    modFUT(Services& services, UserPreferences& prefs);

    // The current term file's name with its extension: the one remembered in the preferences,
    // else the default list.
    QString CurrentFile() const;
    bool IsDefault() const;
    // Makes name current and remembers it.
    void SetCurrentFile(const QString& name);

    // The terms of the current file as last read or saved.
    const QStringList& Terms() const { return terms_; }
    bool NewFileStarted() const { return newFileStarted_; }

    // Loads the current file; a missing file is created empty first. False when no file is
    // chosen (after saying so) or the file could not be read (the error is logged).
    bool ReadFrequentlyUsedTerms();
    // Saves list as the current file's terms, each on one line (see SaveDataFile). An empty
    // list only says there is nothing to save: the file keeps what it held. False when
    // nothing was written.
    bool SaveFrequentlyUsedTerms(const QStringList& list);
    // Empties the current file, as clearing the list does.
    bool ClearFrequentlyUsedTerms();
    // Asks for a name and starts a new, empty term file, which becomes current. False when the
    // user gave up or the name was refused.
    bool CreateNewFUTFile();

    // The names of every "*.fut" file in the data folder, sorted without regard to case.
    QStringList TermFiles() const;

private:
    Services& services_;
    UserPreferences& prefs_;
    // What is known of the current file (a file made current since it was read is unread).
    DataFile& CurrentDataFile();
    // Saves records as the current file's terms under procedure; the terms are then the file's.
    bool Save(const char* procedure, const Records& records);

    QStringList terms_;
    DataFile file_;
    bool newFileStarted_ = false;
};

// The terms in a term file's bytes (exposed for the fuzz target).
QStringList TermsOfFile(const QByteArray& bytes);
// The layout of a term file: a term a line, CR LF between terms and none after the last.
const RecordLayout& TermsLayout();
