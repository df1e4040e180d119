#include "jetfilebuilder.h"

#include <algorithm>

using namespace Jet;

namespace {

constexpr auto little = [](auto value) { return JetFileBuilder::little(value); };

QByteArray filled(QByteArray page)
{
    return page.append(PageSize - page.size(), '\0');
}

QByteArray dataPage(quint32 owner, const JetFileBuilder::Page &rows)
{
    QByteArray slotBytes;
    QByteArray rowBytes;
    for (const JetFileBuilder::Slot &slot : rows) {
        rowBytes.prepend(slot.bytes);
        slotBytes += little(quint16(quint16(PageSize - rowBytes.size()) | slot.flags));
    }
    const QByteArray head = QByteArray("\1\1\0\0", 4) + little(owner) + little(quint32(0)) +
                            little(quint16(rows.size())) + slotBytes;
    return head + QByteArray(PageSize - head.size() - rowBytes.size(), '\0') + rowBytes;
}

QByteArray mask(int columns, const QList<int> &present)
{
    QByteArray bytes((columns + 7) / 8, '\0');
    for (const int column : present)
        bytes[column / 8] = char(bytes[column / 8] | 1 << column % 8);
    return bytes;
}

void encode(QByteArray *file, quint32 pageKey)
{
    for (quint32 page = 1; page < quint32(file->size() / PageSize); ++page) {
        const QByteArray stream = keyStream(little(pageKey ^ page), PageSize);
        for (int i = 0; i < PageSize; ++i) {
            char &byte = file->data()[qsizetype(page) * PageSize + i];
            byte = char(byte ^ stream[i]);
        }
    }
}

} // namespace

QByteArray JetFileBuilder::utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes += little(c.unicode());
    return bytes;
}

QByteArray JetFileBuilder::row(int columns, const QByteArray &fixed,
                               const QList<std::optional<QByteArray>> &variable, const QList<int> &present)
{
    QByteArray bytes = little(quint16(columns)) + fixed;
    QByteArray offsets;
    for (const std::optional<QByteArray> &value : variable) {
        offsets.prepend(little(quint16(bytes.size())));
        bytes += value.value_or(QByteArray());
    }
    offsets.prepend(little(quint16(bytes.size())));
    return bytes + offsets + little(quint16(variable.size())) + mask(columns, present);
}

QByteArray JetFileBuilder::fixedRow(int columns, const QByteArray &fixed, const QList<int> &present)
{
    return little(quint16(columns)) + fixed + mask(columns, present);
}

quint32 JetFileBuilder::addDataPage(quint32 owner, const Page &rows)
{
    m_pages.append(dataPage(owner, rows));
    return nextPage() - 1;
}

QByteArray JetFileBuilder::definition(const QList<Column> &columns, quint32 rowCount, quint32 map) const
{
    const auto variable = std::count_if(columns.begin(), columns.end(),
                                        [](const Column &column) { return column.variableIndex >= 0; });
    int columnsEver = 0;
    QByteArray entries;
    QByteArray names;
    for (const Column &column : columns) {
        columnsEver = std::max(columnsEver, column.number + 1);
        const bool isFixed = column.variableIndex < 0;
        QByteArray entry =
            little(quint8(column.type)) + little(quint32(1625)) + little(quint16(column.number)) +
            little(quint16(isFixed ? 0 : column.variableIndex)) + little(quint16(column.number));
        entry += column.type == Type::Decimal ? QByteArray(1, '\x1C') + char(column.scale)
                                              : little(quint16(0x0409));
        entry += little(quint16(0)) + char(isFixed ? 3 : 2) + char(column.packed ? 1 : 0) +
                 little(quint32(0)) + little(quint16(column.fixedOffset)) + little(quint16(column.length));
        entries += entry;
        names += little(quint16(2 * column.name.size())) + utf16(column.name);
    }
    return QByteArray(4, '\0') + little(quint32(1625)) + little(rowCount) + QByteArray(20, '\0') + 'N' +
           little(quint16(columnsEver)) + little(quint16(variable)) + little(quint16(columns.size())) +
           QByteArray(8, '\0') + little(map) + little(map) + entries + names + "\xFF\xFF";
}

void JetFileBuilder::addTable(const QString &name, const QList<Column> &columns, const QList<Page> &pages,
                              quint32 rowCount)
{
    const quint32 page = nextPage();
    const quint32 map = pointer(3, quint32(m_maps.size()) + 1); // the catalogue's comes first
    const QByteArray whole = definition(columns, rowCount, map);
    const qsizetype room = PageSize - 8;
    const qsizetype parts = (whole.size() + room - 1) / room;
    // The continuation comes behind the data.
    const auto second = page + 1 + quint32(pages.size());
    for (qsizetype part = 0; part < parts; ++part) {
        const quint32 next = part + 1 < parts ? second + quint32(part) : 0;
        m_pages.append(filled(QByteArray("\2\1\0\0", 4) + little(next) + whole.mid(part * room, room)));
        for (qsizetype data = 0; part == 0 && data < pages.size(); ++data)
            addDataPage(page, pages[data]);
    }

    QByteArray bitmap(64, '\0');
    for (quint32 data = page + 1; data <= page + quint32(pages.size()); ++data)
        bitmap[data / 8] = char(bitmap[data / 8] | 1 << data % 8);
    if (m_bitmapPage) {
        m_maps.append({QByteArray(1, '\1') + little(nextPage()) + QByteArray(64, '\0')});
        m_pages.append(filled(QByteArray("\5\1\0\0", 4) + bitmap));
        m_bitmapPage = false;
    } else {
        m_maps.append({QByteArray(5, '\0') + bitmap});
    }
    const QByteArray fixed = little(page) + little(qint16(1)) + little(quint32(0));
    m_objects.append({row(4, fixed, {utf16(name)}, {0, 1, 2, 3})});
}

QByteArray JetFileBuilder::file(const QString &password, quint32 pageKey) const
{
    const double created = 42329.5;
    QByteArray field = utf16(password);
    field.append(PasswordSize - field.size(), '\0');
    maskPassword(field, created);
    QByteArray header = filled(QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24));
    header.replace(PageKeyAt, 4, little(pageKey));
    header.replace(PasswordAt, PasswordSize, field);
    header.replace(CreationDateAt, 8, little(created));
    maskHeader(header);

    const QList<Column> columns{{QStringLiteral("Id"), Type::Int32, 0, -1, 0, 4},
                                {QStringLiteral("Type"), Type::Int16, 1, -1, 4, 2},
                                {QStringLiteral("Flags"), Type::Int32, 2, -1, 6, 4},
                                {QStringLiteral("Name"), Type::Text, 3, 0, 0, 510, false}};
    QByteArray ownMap(69, '\0');
    ownMap[5] = 1 << 4;
    QByteArray file = header + dataPage(1, {}) +
                      filled(QByteArray("\2\1\0\0", 4) + little(quint32(0)) +
                             definition(columns, quint32(m_objects.size()), pointer(3, 0))) +
                      dataPage(0, Page{{ownMap}} + m_maps) + dataPage(CataloguePage, m_objects) +
                      m_pages.join();
    if (pageKey != 0)
        encode(&file, pageKey);
    return file;
}
