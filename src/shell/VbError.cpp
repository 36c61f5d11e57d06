#include "shell/VbError.h"

#include <exception>
#include <new>

VbError::VbError(int number, QString description)
    : number_(number), description_(std::move(description)) {
    if (description_.isEmpty())
        description_ = StandardDescription(number_);
}

VbError::VbError(int number) : VbError(number, QString()) {}

QString VbError::StandardDescription(int number) {
    switch (number) {
        case err::InvalidProcedureCall:
            return QStringLiteral("Invalid procedure call or argument");
        case err::Overflow:
            return QStringLiteral("Overflow");
        case err::SubscriptOutOfRange:
            return QStringLiteral("Subscript out of range");
        case err::TypeMismatch:
            return QStringLiteral("Type mismatch");
        case err::FileNotFound:
            return QStringLiteral("File not found");
        case err::InputPastEndOfFile:
            return QStringLiteral("Input past end of file");
        case err::DiskFull:
            return QStringLiteral("Disk full");
        case err::PermissionDenied:
            return QStringLiteral("Permission denied");
        case err::PathFileAccessError:
            return QStringLiteral("Path/File access error");
        case err::PathNotFound:
            return QStringLiteral("Path not found");
        default:
            return QStringLiteral("Application-defined or object-defined error");
    }
}

VbError CurrentError() {
    try {
        throw;
    } catch (const VbError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return VbError(7, QStringLiteral("Out of memory"));
    } catch (const std::exception& error) {
        return VbError(err::InvalidProcedureCall, QString::fromLocal8Bit(error.what()));
    }
}

void Raise(int number, const QString& description) {
    throw VbError(number, description);
}

qint64 ToInt64(QStringView field) {
    bool ok = false;
    const qint64 value = field.trimmed().toLongLong(&ok);
    if (!ok)
        Raise(err::TypeMismatch);
    return value;
}

int ToInt(QStringView field) {
    const qint64 value = ToInt64(field);
    if (value < INT32_MIN || value > INT32_MAX)
        Raise(err::Overflow);
    return static_cast<int>(value);
}
