#pragma once

#include <QPageLayout>
#include <QTextDocument>

/// A report for paper, from the page that the export writes: columns as wide as their texts need, their
/// titles on each sheet, and small pictures in the rows.
class PaperReport final : public QTextDocument
{
    Q_OBJECT

public:
    explicit PaperReport(const QByteArray &page);

    /// A4 across.
    static QPageLayout pageLayout();

    /// @p page as a PDF file.
    static QByteArray pdf(const QByteArray &page);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
