#pragma once

#include <QString>
#include <stdexcept>

/// Why a tool cannot make what the program ships, ready to print: "<file>:<line>: <reason>" where a table is
/// at fault, line 1 being its header row.
class BuildError final : public std::runtime_error
{
public:
    explicit BuildError(const QString &message) : std::runtime_error(message.toStdString()) {}
    BuildError(const QString &file, qsizetype line, const QString &reason)
        : BuildError(QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(reason))
    {}
};
