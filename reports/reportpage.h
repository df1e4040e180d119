#pragma once

#include "core/module1.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The two colour schemes of reports, slot 77 of the options.
enum class ReportTheme { Colors, Grayscale };

/// A report in the making: the markup that all reports share, line by line, in the theme of the options.
///
/// The result is Windows-1252 with lines ended by CR LF. Texts go into it as they are: a "<" or "&" in the
/// data is not escaped, and the head of the page declares no character set.
///
/// A row is closed twice, by itself and by the row after it; the header row is closed by the first data row
/// alone. Browsers pass over the surplus.
class ReportPage final
{
    Q_DISABLE_COPY_MOVE(ReportPage)

public:
    /// Reads options, folder and version from @p module and moves its row class on with each row.
    explicit ReportPage(Module1 &module) : m_module(module) {}

    ReportTheme theme() const;
    bool isOn(Slot slot) const { return m_module.OptionSlots(slot).equals(1); }

    /// The first text for `Colors`, the second for `Grayscale`.
    QString byTheme(const QString &colors, const QString &grayscale) const;

    /// From the first line to the rule below the captions. Without a @p subsection its line is left out.
    void ReportPreamble(const QString &title, const QString &section, const QString &subsection = {});

    /// In some headings `Colors` has no line break; `Grayscale` always has it.
    enum class HeadingBreak { Always, GrayscaleOnly };
    void sectionHeading(const QString &heading, HeadingBreak lineBreak = HeadingBreak::Always);

    /// The place of a heading, without one.
    void emptySectionHeading();

    /// The data table up to its header row; @p head are whole title cells.
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

    /// What colours a caption or a heading, if anything.
    QString fontColour() const;

    Module1 &m_module;
    QByteArray m_bytes;
};
