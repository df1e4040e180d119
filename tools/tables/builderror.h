#pragma once

#include <QString>
#include <stdexcept>

/// Why a tool failed, ready to print: "<file>:<line>: <reason>" where a table is at fault. Line 1 is its
/// header.
class BuildError final : public std::runtime_error
{
public:
    explicit BuildError(const QString &message) : std::runtime_error(message.toStdString()) {}
    BuildError(const QString &file, qsizetype line, const QString &reason)
        : BuildError(QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(reason))
    {}
};
