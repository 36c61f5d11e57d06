#pragma once

#include <QString>

// The one error type of the program. Failing code throws it with a classic run-time error
// number, so that the reports a user sees in Error.log read familiarly; the procedure's trap
// (Services::Trap) catches it, logs it and leaves the procedure.
namespace err {
constexpr int InvalidProcedureCall = 5;
constexpr int Overflow = 6;
constexpr int SubscriptOutOfRange = 9;
constexpr int TypeMismatch = 13;
constexpr int FileNotFound = 53;
constexpr int InputPastEndOfFile = 62;
constexpr int DiskFull = 61;
constexpr int PermissionDenied = 70;
constexpr int PathFileAccessError = 75;
constexpr int PathNotFound = 76;
}  // namespace err

class VbError {
public:
    VbError(int number, QString description);
    explicit VbError(int number);

    int number() const { return number_; }
    const QString& description() const { return description_; }

    // The standard description of a classic error number ("File not found" for 53 ...).
    static QString StandardDescription(int number);

private:
    int number_;
    QString description_;
};

[[noreturn]] void Raise(int number, const QString& description = {});

// The exception being handled (called inside a catch block) as the program's error: a VbError
// as it is, running out of memory as 7, any other failure of a library as 5 with its text.
// Anything else is thrown on.
VbError CurrentError();

// Reads a whole field as a number the way the classic conversion does: surrounding blanks are
// allowed, anything else that is not a number is a type mismatch (error 13).
int ToInt(QStringView field);
qint64 ToInt64(QStringView field);
