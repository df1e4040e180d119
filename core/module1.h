#pragma once

#include "core/optionslots.h"

#include <QString>

/// The program-wide values. `Main` creates the only one; all others get a reference.
struct Module1
{
    /// The folder of the user's files, options and database: that of the executable unless the command line
    /// names another. "/" as separator, without one at its end.
    QString AppFolder;

    /// The folder of the executable where it is not `AppFolder`, otherwise empty.
    QString ShippedFolder;

    ::OptionSlots OptionSlots;

    /// Number of unit names in the lists of the conversions, for the statistics.
    int UnitItemCount = 0;

    /// The chart or structure last chosen by its one-based number.
    int SelectedChart = 0;

    /// Class of the last row written to a report, "teven" or "tnoteven"; empty before the first row of a run.
    /// It continues from table to table and from report to report.
    QString ReportRowClass;

    /// File length in bytes, set by ProbeFileLength. After a save: the number of its error, or 0.
    qint64 ProbedLength = 0;

    /// Stores @p folder as `AppFolder` and, only if @p request is "opt", reads the options file in it.
    /// The result is always empty. A failure is the RuntimeError of OptionSlots::read.
    QString ReadOptions(const QString &request, const QString &folder);

    /// Writes the options file back. A failure is the RuntimeError of OptionSlots::write.
    void WriteOptions() const;

    /// The folder that holds the shipped @p file ("Data/ir/1.gif"): `AppFolder` if the user put one there,
    /// otherwise that of the executable.
    const QString &folderOf(const QString &file) const;

    /// The path of the shipped @p file, by folderOf().
    QString shippedFile(const QString &file) const { return folderOf(file) + u'/' + file; }

    /// "1.1.0"
    static QString version();
};
