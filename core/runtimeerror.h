#pragma once

#include <QString>
#include <exception>

/// Error numbers that the program checks or reports to the user.
namespace ErrorNumber {

inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int Subscript = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int DiskFull = 61;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ObjectNotSet = 91;
inline constexpr int InvalidNull = 94;
inline constexpr int InvalidFileFormat = 321;
inline constexpr int InvalidPicture = 481;
inline constexpr int PastEnd = 3021;
inline constexpr int ObjectClosed = 3704;
inline constexpr int ObjectOpen = 3705;
inline constexpr int DialogCancelled = 32755;
inline constexpr int TableNotFound = static_cast<int>(0x80040E37);
inline constexpr int ColumnNotFound = static_cast<int>(0x80040E10);
inline constexpr int DatabaseFailure = static_cast<int>(0x80004005);

} // namespace ErrorNumber

/// The only exception type of the program. Caught only where the behaviour requires it; otherwise it ends the
/// process with its report.
class RuntimeError final : public std::exception
{
public:
    /// @p subject is the file, table or control concerned, or empty.
    explicit RuntimeError(int number, QString subject = {});

    int number() const { return m_number; }
    const QString &subject() const { return m_subject; }

    /// "Run-time error '53':", an empty line, the description and, on the next line, the subject.
    QString report() const;

    const char *what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_subject;
    QByteArray m_what;
};

/// Runs @p step. A RuntimeError ends the step and nothing else.
template<class Step>
void ignoringErrors(Step step)
{
    try {
        step();
    } catch (const RuntimeError &) {
        // Ignored on purpose: the caller goes on with its next step.
    }
}
