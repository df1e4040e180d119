#include "core/runtimeerror.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Wording
{
    int number;
    const char *text;
};

constexpr std::array Wordings{
    Wording{ErrorNumber::InvalidCall, "Invalid procedure call or argument"},
    Wording{ErrorNumber::Overflow, "Overflow"},
    Wording{ErrorNumber::Subscript, "Subscript out of range"},
    Wording{ErrorNumber::DivisionByZero, "Division by zero"},
    Wording{ErrorNumber::TypeMismatch, "Type mismatch"},
    Wording{ErrorNumber::FileNotFound, "File not found"},
    Wording{ErrorNumber::DiskFull, "Disk full"},
    Wording{ErrorNumber::PermissionDenied, "Permission denied"},
    Wording{ErrorNumber::PathAccess, "Path/File access error"},
    Wording{ErrorNumber::PathNotFound, "Path not found"},
    Wording{ErrorNumber::ObjectNotSet, "Object variable or With block variable not set"},
    Wording{ErrorNumber::InvalidNull, "Invalid use of Null"},
    Wording{ErrorNumber::InvalidFileFormat, "Invalid file format"},
    Wording{ErrorNumber::InvalidPicture, "Invalid picture"},
    Wording{ErrorNumber::PastEnd, "Either BOF or EOF is True, or the current record has been deleted"},
    Wording{ErrorNumber::ObjectClosed, "Operation is not allowed when the object is closed"},
    Wording{ErrorNumber::ObjectOpen, "Operation is not allowed when the object is open"},
    Wording{ErrorNumber::DialogCancelled, "Cancel was selected"},
    Wording{ErrorNumber::TableNotFound, "The table does not exist"},
    Wording{ErrorNumber::ColumnNotFound, "A column of the statement does not exist"},
    Wording{ErrorNumber::DatabaseFailure, "The database could not be read"},
};

QString wording(int number)
{
    for (const Wording &entry : Wordings) {
        if (entry.number == number)
            return entry.text;
    }
    return u"Application-defined or object-defined error"_s;
}

} // namespace

RuntimeError::RuntimeError(int number, QString subject)
    : m_number(number), m_subject(std::move(subject)), m_what(report().toUtf8())
{}

QString RuntimeError::report() const
{
    QString text = u"Run-time error '%1':\n\n%2"_s.arg(m_number).arg(wording(m_number));
    if (!m_subject.isEmpty())
        text += u'\n' + m_subject;
    return text;
}
