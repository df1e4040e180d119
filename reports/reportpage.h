#pragma once

#include "core/module1.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The colour schemes of reports, slot 77.
enum class ReportTheme { Colors, Grayscale };

/// Builds a report line by line from the common markup, in the theme of the options.
///
/// The page is Windows-1252 with CR LF and declares no character set. Texts are not escaped, not even "<" and
/// "&". A row is closed by itself and again by the next row, the header row only by the first data row;
/// browsers ignore the surplus tags.
class ReportPage final
{
    Q_DISABLE_COPY_MOVE(ReportPage)

public:
    /// Reads options and folder from @p module and alternates its row class.
    explicit ReportPage(Module1 &module) : m_module(module) {}

    ReportTheme theme() const;
    bool isOn(Slot slot) const { return m_module.OptionSlots(slot).equals(1); }

    QString byTheme(const QString &colors, const QString &grayscale) const;

    /// From the first line to the rule below the captions. An empty @p subsection has no line.
    void ReportPreamble(const QString &title, const QString &section, const QString &subsection = {});

    enum class HeadingBreak { Always, GrayscaleOnly };
    void sectionHeading(const QString &heading, HeadingBreak lineBreak = HeadingBreak::Always);

    /// A heading without text.
    void emptySectionHeading();

    /// Opens the data table and writes its header row of complete title cells.
    void openTable(const QStringList &head);
    void headerRow(const QStringList &head);
    void startRow();
    void cell(QStringView text);
    void endRow();
    void closeTable();

    /// The value of an unquoted `src`: "file:///", the folder of the picture and @p relative ("\Data\..."),
    /// with %20 for blanks. Backslashes stay; browsers accept them.
    QString imageSource(const QString &relative) const;

    void rule();
    void end();

    void line(const QString &text);

    const QByteArray &bytes() const { return m_bytes; }

private:
    void styleSheet();
    void captions(const QString &section, const QString &subsection);

    /// The colour attribute of captions and headings.
    QString fontColour() const;

    Module1 &m_module;
    QByteArray m_bytes;
};
