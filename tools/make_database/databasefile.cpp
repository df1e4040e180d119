#include "tools/make_database/databasefile.h"

#include "store/jet/jetformat.h"
#include "tools/make_database/bytewriter.h"
#include "tools/make_database/indexleaf.h"
#include "tools/make_database/pages.h"
#include "tools/make_database/rows.h"
#include "tools/make_database/systemtables.h"
#include "tools/tables/builderror.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

QByteArray headerPage(const QString &password)
{
    constexpr quint16 CodePage = 1252;
    constexpr quint32 EngineBuild = 0x261C;
    constexpr quint32 Collation = 0x0409;
    constexpr int Users = 256;

    QByteArray passwordField = Rows::plainText(password);
    Q_ASSERT(passwordField.size() <= Jet::PasswordSize);
    passwordField.append(Jet::PasswordSize - passwordField.size(), '\0');
    const auto created = qFromLittleEndian<double>(SystemTables::CreationDate);
    Jet::maskPassword(passwordField, created);

    ByteWriter page;
    page.u32(0x100).bytes(QByteArrayView("Standard Jet DB\0", 16)).u32(Jet::Jet4Version);
    page.u32(0x100).u32(0x101); // page 1: the maps of free pages
    page.u32(SystemTables::Objects).u32(SystemTables::Permissions);
    page.u32(SystemTables::Queries).u32(SystemTables::Relationships);
    page.zeros(12).u16(CodePage).u32(0).bytes(passwordField);
    page.zeros(4); // 0x6A is written below
    page.u32(Collation).bytes(SystemTables::CreationDate).zeros(30);
    page.u16(0x0654).u16(0).bytes(QByteArrayView("4.0\0", 4));
    page.zeros(0xE00 - page.size()).u16(0x0101);
    for (int user = 1; user < Users; ++user)
        page.u16(0x0100);
    qToLittleEndian(EngineBuild, page.data().data() + 0x6A);
    page.zeros(Jet::PageSize - page.size());
    Jet::maskHeader(page.data());
    return page.data();
}

// Rows laid out on consecutive pages.
struct Placement
{
    QList<DataPageWriter> pages;
    quint32 firstPage = 0;

    QList<quint32> allPages() const
    {
        QList<quint32> numbers(pages.size());
        std::iota(numbers.begin(), numbers.end(), firstPage);
        return numbers;
    }

    QList<quint32> pagesWithRoom() const
    {
        QList<quint32> numbers = allPages();
        numbers.removeIf([this](quint32 number) { return !pages[number - firstPage].hasRoom(); });
        return numbers;
    }

    QByteArray bytes() const
    {
        QByteArray bytes;
        for (const DataPageWriter &page : pages)
            bytes += page.page();
        return bytes;
    }

    // Calls visit(row number, page, slot) for every row.
    template<class Visit>
    void forEachRow(Visit visit) const
    {
        qsizetype row = 0;
        for (qsizetype i = 0; i < pages.size(); ++i) {
            for (qsizetype slot = 0; slot < pages[i].rowCount(); ++slot)
                visit(row++, firstPage + quint32(i), quint8(slot));
        }
    }
};

QByteArray pageOfMaps(quint32 owner, const QList<QByteArray> &maps)
{
    DataPageWriter page(owner);
    for (const QByteArray &map : maps)
        page.add(map);
    Q_ASSERT(page.rowCount() == maps.size());
    return page.page();
}

QList<QByteArray> rowsOf(const TableData &table)
{
    QList<QByteArray> rows;
    for (const QStringList &cells : table.rows) {
        rows.append(Rows::ofTexts(cells));
        if (rows.last().size() > Pages::LongestRow) {
            throw BuildError(
                table.file, rows.size() + 1,
                u"the row needs %1 bytes, %2 is the limit"_s.arg(rows.last().size()).arg(Pages::LongestRow));
        }
    }
    return rows;
}

// The rows of the catalogue and of the permissions.
struct Catalogue
{
    QList<SystemTables::Object> objects = SystemTables::fixedObjects();
    QList<SystemTables::Permission> permissions = SystemTables::fixedPermissions();

    Catalogue(const QList<TableData> &tables, const QList<quint32> &definitionPages)
    {
        for (qsizetype i = 0; i < tables.size(); ++i) {
            objects.append(SystemTables::Object::table(tables[i].name, definitionPages[i]));
            permissions.append(SystemTables::tablePermissions(definitionPages[i]));
        }
    }

    template<class Entry>
    static QList<DataPageWriter> layOut(const QList<Entry> &entries, quint32 owner)
    {
        QList<QByteArray> rows;
        for (const Entry &entry : entries)
            rows.append(entry.row());
        return Pages::layOut(rows, owner);
    }

    QList<DataPageWriter> objectPages() const { return layOut(objects, SystemTables::Objects); }
    QList<DataPageWriter> permissionPages() const { return layOut(permissions, SystemTables::Permissions); }
};

// Pages 2 to 13 (definitions, usage maps and index leaves of the system tables), then their rows.
QByteArray systemPages(const Catalogue &catalogue)
{
    using namespace SystemTables;
    const Placement objects{catalogue.objectPages(), FirstFreePage};
    const Placement permissions{catalogue.permissionPages(), FirstFreePage + quint32(objects.pages.size())};
    IndexLeaf byName;
    IndexLeaf byId;
    objects.forEachRow([&](qsizetype row, quint32 page, quint8 slot) {
        const Object &object = catalogue.objects[row];
        byName.add(IndexLeaf::key(object.parent) + IndexLeaf::key(object.name), page, slot);
        byId.add(IndexLeaf::key(object.id), page, slot);
    });
    IndexLeaf byObject;
    permissions.forEachRow([&](qsizetype row, quint32 page, quint8 slot) {
        byObject.add(IndexLeaf::key(catalogue.permissions[row].object), page, slot);
    });

    QList<QByteArray> maps(UsageMapCount, Pages::usageMap({}));
    const auto setMap = [&maps](quint32 pointer, const QList<quint32> &pages) {
        maps[pointer & 0xFF] = Pages::usageMap(pages);
    };
    QByteArray definitions;
    const auto objectCount = quint32(catalogue.objects.size());
    const TableLayout layouts[] = {objectsLayout(objectCount),
                                   permissionsLayout(quint32(catalogue.permissions.size()), objectCount),
                                   queriesLayout(), relationshipsLayout()};
    for (const TableLayout &layout : layouts) {
        definitions += layout.page();
        for (const TableLayout::Index &index : layout.indexes)
            setMap(index.usageMap, {index.rootPage});
    }
    setMap(layouts[0].ownedPages, objects.allPages());
    setMap(layouts[0].freePages, objects.pagesWithRoom());
    setMap(layouts[1].ownedPages, permissions.allPages());
    setMap(layouts[1].freePages, permissions.pagesWithRoom());

    QByteArray leaves =
        byName.page(Objects) + byId.page(Objects) + byObject.page(Permissions) + IndexLeaf().page(Queries);
    for (quint32 page = FirstRelationshipsPage; page <= LastRelationshipsPage; ++page)
        leaves += IndexLeaf().page(Relationships);
    return definitions + pageOfMaps(0, maps) + leaves + objects.bytes() + permissions.bytes();
}

QByteArray tablePages(const TableData &table, quint32 definitionPage)
{
    const auto rowCount = quint32(table.rows.size());
    const Placement data{Pages::layOut(rowsOf(table), definitionPage), definitionPage + 2};
    return TableLayout::ofTexts(table.columns, rowCount, definitionPage + 1).page() +
           pageOfMaps(0, {Pages::usageMap(data.allPages()), Pages::usageMap(data.pagesWithRoom())}) +
           data.bytes();
}

} // namespace

QByteArray DatabaseFile::make(const QList<TableData> &tables, const QString &password)
{
    // The length of a catalogue entry does not depend on its page numbers, so all places are known before
    // anything is written.
    const Catalogue sample(tables, QList<quint32>(tables.size(), 0));
    quint32 next = SystemTables::FirstFreePage + quint32(sample.objectPages().size()) +
                   quint32(sample.permissionPages().size());
    QList<quint32> definitionPages;
    QByteArray userPages;
    for (const TableData &table : tables) {
        definitionPages.append(next);
        const QByteArray pages = tablePages(table, next);
        next += quint32(pages.size() / Jet::PageSize);
        userPages += pages;
    }

    const QList<QByteArray> globalMaps{Pages::freePageMap(next), Pages::usageMap({})};
    return headerPage(password) + pageOfMaps(1, globalMaps) +
           systemPages(Catalogue(tables, definitionPages)) + userPages;
}
