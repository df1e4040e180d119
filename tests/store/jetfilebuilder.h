#pragma once

#include "store/jet/jetformat.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtEndian>
#include <initializer_list>
#include <optional>

/// Puts together Jet 4 files page by page, with whatever in them that our own tool never writes. It shares
/// nothing with the tool but the numbers of the format.
///
/// Pages 0 to 4 are the header, an empty page, the definition of the catalogue, all usage maps, and the rows
/// of the catalogue; what is added follows from page 5.
class JetFileBuilder final
{
public:
    struct Column
    {
        QString name;
        Jet::Type type = Jet::Type::Text;
        int number = 0;
        int variableIndex = -1; ///< -1: in the fixed part
        int fixedOffset = 0;
        int length = 0;
        bool packed = true;
        int scale = 0;
    };

    struct Slot
    {
        QByteArray bytes;
        quint16 flags = 0; ///< Jet::SlotIsPointer, Jet::SlotIsDeleted
    };
    using Page = QList<Slot>;

    /// A row: @p present are the numbers of the columns that are not Null; a Null value is nullopt.
    static QByteArray row(int columns, const QByteArray &fixed,
                          const QList<std::optional<QByteArray>> &variable, const QList<int> &present);
    /// A row without a variable part.
    static QByteArray fixedRow(int columns, const QByteArray &fixed, const QList<int> &present);

    template<class T>
    static QByteArray little(T value)
    {
        QByteArray bytes(sizeof value, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    }
    static QByteArray u16(quint16 value) { return little(value); }
    static QByteArray u32(quint32 value) { return little(value); }
    static QByteArray utf16(const QString &text);
    static quint32 pointer(quint32 page, quint32 slot) { return page << 8 | slot; }

    /// The number of the page that is added next.
    quint32 nextPage() const { return quint32(FirstFreePage + m_pages.size()); }

    quint32 addDataPage(quint32 owner, const Page &rows);
    quint32 addLongValuePage(const Page &rows) { return addDataPage(Jet::LongValueOwner, rows); }

    /// Adds a definition at nextPage() and the data behind it. The definition needs more than one page if it
    /// is long.
    void addTable(const QString &name, const QList<Column> &columns, const QList<Page> &pages,
                  quint32 rowCount);

    /// Writes the usage map of the table added last over a bitmap page of its own.
    void useBitmapPage() { m_bitmapPage = true; }

    QByteArray file(const QString &password = {}, quint32 pageKey = 0) const;

private:
    static constexpr int FirstFreePage = 5;

    QByteArray definition(const QList<Column> &columns, quint32 rowCount, quint32 map) const;

    QList<QByteArray> m_pages;
    Page m_maps;
    Page m_objects;
    bool m_bitmapPage = false;
};
