#include "store/jet/jetfile.h"

#include "core/fileerrors.h"
#include "core/filelock.h"
#include "core/runtimeerror.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MaxFileSize = qint64(512) * 1024 * 1024;

QByteArray readWhole(const QString &path)
{
    FileErrors::refuseSpecialFile(path);
    if (FileLock::forbids(FileLock::Access::Read, path))
        throw RuntimeError(ErrorNumber::PermissionDenied, path);
    if (QFileInfo(path).size() > MaxFileSize)
        throw RuntimeError(ErrorNumber::DatabaseFailure, u"the file is too large"_s);
    return FileErrors::readWhole(path);
}

quint32 numberIn(const JetRow &row, const JetColumn &column)
{
    const std::optional<JetBytes> cell = row.cell(column);
    if (!cell)
        jetDamage("an entry of the catalogue is incomplete");
    return column.type == Jet::Type::Int16 ? cell->u16(0) : cell->u32(0);
}

const JetColumn &catalogueColumn(const JetDefinition &catalogue, const char *name, Jet::Type type)
{
    const JetColumn *column = catalogue.find(QString::fromLatin1(name));
    if (column == nullptr || column->type != type)
        jetDamage("the catalogue lacks a column");
    return *column;
}

} // namespace

JetFile JetFile::open(const QString &path, const QString &password)
{
    QByteArray bytes = readWhole(path);
    try {
        return fromBytes(std::move(bytes), password);
    } catch (const RuntimeError &error) {
        throw RuntimeError(error.number(), path + u": "_s + error.subject());
    }
}

JetFile JetFile::fromBytes(QByteArray bytes, const QString &password)
{
    auto pages = std::make_shared<const JetPages>(std::move(bytes));
    const QString needed = pages->password();
    if (!needed.isEmpty() && needed != password)
        throw RuntimeError(ErrorNumber::DatabaseFailure, u"the password is not that of the file"_s);
    JetFile file(std::move(pages));
    file.readCatalogue();
    return file;
}

JetFile::JetFile(std::shared_ptr<const JetPages> pages) : m_pages(std::move(pages))
{}

void JetFile::readCatalogue()
{
    constexpr quint32 TableObject = 1;
    const JetDefinition catalogue = JetDefinition::read(*m_pages, Jet::CataloguePage);
    const JetColumn &id = catalogueColumn(catalogue, "Id", Jet::Type::Int32);
    const JetColumn &name = catalogueColumn(catalogue, "Name", Jet::Type::Text);
    const JetColumn &type = catalogueColumn(catalogue, "Type", Jet::Type::Int16);
    const JetColumn &flags = catalogueColumn(catalogue, "Flags", Jet::Type::Int32);

    JetCursor cursor = rows(catalogue);
    while (cursor.next()) {
        if (numberIn(cursor.row(), type) != TableObject ||
            (numberIn(cursor.row(), flags) & Jet::SystemObject) != 0)
            continue;
        const QString table = cursor.text(name).value_or(QString());
        if (table.isEmpty() || m_definitionPages.contains(table.toLower()))
            jetDamage("an entry of the catalogue is incomplete");
        m_tables.append(table);
        m_definitionPages.insert(table.toLower(), numberIn(cursor.row(), id) & 0xFFFFFF);
    }
}

JetDefinition JetFile::table(const QString &name) const
{
    const auto page = m_definitionPages.constFind(name.toLower());
    if (page == m_definitionPages.constEnd())
        throw RuntimeError(ErrorNumber::TableNotFound, name);
    return JetDefinition::read(*m_pages, *page);
}
