#pragma once

#include <QString>
#include <stdexcept>

/// Why no database is made, for the one who edits the tables: "<file>:<line>: <message>", line 1 being the
/// header row.
class BuildError final : public std::runtime_error
{
public:
    explicit BuildError(const QString &message) : std::runtime_error(message.toStdString()) {}
    BuildError(const QString &file, qsizetype line, const QString &message)
        : BuildError(QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(message))
    {}
};
