#pragma once

#include <QPageLayout>
#include <QTextDocument>

/// A report for printing, made from the exported page: columns as wide as their texts, titles repeated on
/// each sheet, and small pictures in the rows.
class PaperReport final : public QTextDocument
{
    Q_OBJECT

public:
    explicit PaperReport(const QByteArray &page);

    /// A4, landscape.
    static QPageLayout pageLayout();

    /// @p page as a PDF file.
    static QByteArray pdf(const QByteArray &page);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
