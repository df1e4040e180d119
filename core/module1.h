#pragma once

#include "core/optionslots.h"

#include <QString>

/// The program-wide values. `Main` creates the only instance; everyone else gets a reference.
struct Module1
{
    /// The folder of the user's files, options and database: the executable's folder unless the command line
    /// names another. Separator "/", none at the end.
    QString AppFolder;

    /// The executable's folder if it is not `AppFolder`, otherwise empty.
    QString ShippedFolder;

    ::OptionSlots OptionSlots;

    /// Number of unit names in the conversions, for the statistics.
    int UnitItemCount = 0;

    /// One-based number of the chart or structure last chosen.
    int SelectedChart = 0;

    /// Class of the last row written to a report, "teven" or "tnoteven"; empty before the first row of a run.
    /// Tables and reports continue the alternation.
    QString ReportRowClass;

    /// File length in bytes, set by ProbeFileLength. After a save, its error number or 0.
    qint64 ProbedLength = 0;

    /// Sets `AppFolder` to @p folder and, if @p request is "opt", reads its options file. What the file of an
    /// earlier release lacks takes the delivered values. The result is always empty. RuntimeError as in
    /// OptionSlots::read.
    QString ReadOptions(const QString &request, const QString &folder);

    /// Writes the options file. RuntimeError as in OptionSlots::write.
    void WriteOptions() const;

    /// The folder of the shipped @p file ("Data/ir/1.gif"): `AppFolder` if the file is there, otherwise the
    /// executable's folder.
    const QString &folderOf(const QString &file) const;

    /// The path of the shipped @p file, from folderOf().
    QString shippedFile(const QString &file) const { return folderOf(file) + u'/' + file; }

    /// "1.1.0"
    static QString version();

private:
    void addNewOptions();
};
