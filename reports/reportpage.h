#pragma once

#include "core/module1.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The two colour schemes of reports, slot 77 of the options.
enum class ReportTheme { Colors, Grayscale };

/// Builds a report line by line from the markup that all reports share, in the theme of the options.
///
/// The result is Windows-1252 with CR LF line ends. Texts are not escaped, not even "<" and "&" in the data,
/// and the head of the page declares no character set.
///
/// A row is closed twice, by itself and by the next row; the header row only by the first data row. Browsers
/// ignore the surplus tags.
class ReportPage final
{
    Q_DISABLE_COPY_MOVE(ReportPage)

public:
    /// Reads options, folder and version from @p module and switches its row class with each row.
    explicit ReportPage(Module1 &module) : m_module(module) {}

    ReportTheme theme() const;
    bool isOn(Slot slot) const { return m_module.OptionSlots(slot).equals(1); }

    /// The first text for `Colors`, the second for `Grayscale`.
    QString byTheme(const QString &colors, const QString &grayscale) const;

    /// Everything from the first line to the rule below the captions. An empty @p subsection gets no line.
    void ReportPreamble(const QString &title, const QString &section, const QString &subsection = {});

    /// Some headings have their line break only in `Grayscale`.
    enum class HeadingBreak { Always, GrayscaleOnly };
    void sectionHeading(const QString &heading, HeadingBreak lineBreak = HeadingBreak::Always);

    /// The table of a heading, empty.
    void emptySectionHeading();

    /// Opens the data table and writes its header row. @p head has complete title cells.
    void openTable(const QStringList &head);
    void headerRow(const QStringList &head);
    void startRow();
    void cell(QStringView text);
    void endRow();
    void closeTable();

    /// "file:///", the folder that holds the picture and @p relative ("\Data\..."), with %20 for blanks: the
    /// value of an unquoted `src`. Backslashes stay; browsers read them as separators in such an address.
    QString imageSource(const QString &relative) const;

    void rule();
    void end();

    /// One line of the file.
    void line(const QString &text);

    const QByteArray &bytes() const { return m_bytes; }

private:
    void styleSheet();
    void captions(const QString &section, const QString &subsection);

    /// The colour attribute of captions and headings; empty in `Colors`.
    QString fontColour() const;

    Module1 &m_module;
    QByteArray m_bytes;
};
