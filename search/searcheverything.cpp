#include "search/searcheverything.h"

#include "core/symboltext.h"
#include "store/datastore.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Isotopes have no list of their own: they are shown with their element.
constexpr int IsotopesOfElement = 5;
constexpr AnswerColumn IsotopeColumns[]{{1, "", "", AnswerColumn::Searched},
                                        {2, "", "", AnswerColumn::Searched},
                                        {3, "half-life"},
                                        {4, "", "", AnswerColumn::Searched}};
constexpr ListPlace Isotopes{Places::Elements, "Isotopes", 0, nullptr, 0, nullptr, nullptr, IsotopeColumns};

QString isotopeCell(const MemoryTables &tables, int row, int cell)
{
    const int element = row / IsotopesOfElement;
    const int column = ElementColumn::FirstIsotope + 3 * (row % IsotopesOfElement);
    QString number = tables.ElementData(element, column);
    number.remove(u'*'); // the sign of a natural isotope
    if (number.isEmpty())
        return {};
    const QString symbol = tables.ElementData(element, ElementColumn::Symbol);
    switch (cell) {
    case 0:
        return tables.ElementData(element, ElementColumn::Name) + u'-' + number;
    case 1:
        return symbol + u'-' + number;
    case 2:
        return number + symbol;
    case 3:
        return tables.ElementData(element, column + 1);
    default:
        return SymbolText::decayModes(tables.ElementData(element, column + 2));
    }
}

QString withUnit(const QString &cell, const QString &unit)
{
    const bool isNumber = std::any_of(cell.begin(), cell.end(), [](QChar c) { return c.isDigit(); });
    return unit.isEmpty() || !isNumber || cell.endsWith(unit) ? cell : cell + u' ' + unit;
}

QString counted(int answers)
{
    if (answers > SearchEverything::Limit)
        return u"the best %1 of %2 answers"_s.arg(SearchEverything::Limit).arg(answers);
    if (answers == 0)
        return u"no answers"_s;
    return answers == 1 ? u"1 answer"_s : u"%1 answers"_s.arg(answers);
}

// The columns of @p where with those of @p cells, which were looked for, before the other values. Of shifts
// the other solvents are left out.
QList<AnswerColumn> arranged(const ListPlace &where, const QList<int> &cells)
{
    QList<AnswerColumn> columns(where.columns.begin(), where.columns.end());
    columns.removeIf([&](const AnswerColumn &each) {
        return qstrcmp(each.unit, "ppm") == 0 && !cells.contains(each.cell);
    });
    const auto place = [&](const AnswerColumn &each) {
        const qsizetype found = cells.indexOf(each.cell);
        const bool isName = each.use == AnswerColumn::Searched && *each.label == '\0';
        return found >= 0 ? found : isName ? -1 : cells.size();
    };
    std::ranges::stable_sort(columns, {}, place);
    return columns;
}

QString nameOf(const ListPlace &where)
{
    return QString::fromUtf8(where.table);
}

} // namespace

SearchEverything::SearchEverything(const DataStore &store, const QList<NamedPlaces> &others)
    : m_names(store.lists.ListView1), m_numbers(store)
{
    for (const ListPlace &where : Places::all()) {
        const QString list = QLatin1StringView(where.list);
        if (list == u"Comb2")
            add({&where, store.lists.Comb2.rowCount(),
                 [&store](int row, int cell) { return store.tables.GeneticCodeData(row, cell); }});
        else if (list == QLatin1StringView(Places::Elements))
            add({&where, store.tables.ElementData.rowCount(),
                 [&store](int row, int cell) { return store.tables.ElementData(row, cell); }});
        else if (where.rows)
            add({&where, where.rows(store.lists).rowCount(),
                 [&rows = where.rows(store.lists)](int row, int cell) { return rows.subItem(row, cell); }});
        for (const NamedPlaces &names : others) {
            if (list == names.list)
                add({&where, int(names.names.size()),
                     [names = names.names](int row, int) { return names[row]; }});
        }
    }
    add({&Isotopes, store.tables.ElementData.rowCount() * IsotopesOfElement,
         [&store](int row, int cell) { return isotopeCell(store.tables, row, cell); }, IsotopesOfElement});
}

void SearchEverything::add(Source source)
{
    QString topic = nameOf(*source.where);
    for (const AnswerColumn &column : source.where->columns)
        topic += u' ' + QString::fromUtf8(column.label) + u' ' + Places::words(column.label);
    m_index.addTable(topic);
    for (int row = 0; row < source.rows; ++row) {
        QStringList texts(source.cell(row, 0));
        for (const AnswerColumn &column : source.where->columns) {
            if (column.use == AnswerColumn::Searched)
                texts << source.cell(row, column.cell);
        }
        m_index.addRow(texts + m_names.synonyms(texts.constFirst()));
    }
    m_sources << std::move(source);
}

SearchResult SearchEverything::find(const QString &text) const
{
    const std::optional<NumberQuery> query = NumberQuery::parse(text);
    const SearchResult byNumbers = query ? findNumbers(*query) : SearchResult();
    if (!byNumbers.answers.isEmpty() || text.trimmed().isEmpty())
        return byNumbers;
    const SearchResult byText = findText(text);
    return query && byText.answers.isEmpty() ? byNumbers : byText;
}

SearchResult SearchEverything::findNumbers(const NumberQuery &query) const
{
    const NumberAnswers::Answers found = m_numbers.find(query, Limit);
    SearchResult result{u"Looked for "_s + query.understood() + u": "_s + counted(found.count), {}};
    for (const NumberAnswers::Answer &each : found.best)
        result.answers << answer(each);
    return result;
}

SearchResult SearchEverything::findText(const QString &text) const
{
    const SearchIndex::Hits hits = m_index.find(text, Limit);
    SearchResult result;
    for (const SearchIndex::Hit &hit : hits.best) {
        result.answers << answer(m_sources[hit.table], hit.row);
        result.answers.last().marks = SearchIndex::marks(result.answers.last().name, text);
    }
    result.understood =
        hits.count == 0 ? u"Nothing found for \"%1\""_s.arg(text.trimmed()) : counted(hits.count);
    result.understood.front() = result.understood.front().toUpper();
    return result;
}

SearchAnswer SearchEverything::answer(const ListPlace &where, int row) const
{
    const Source *source = sourceOf(where);
    return source ? answer(*source, row) : SearchAnswer();
}

const SearchEverything::Source *SearchEverything::sourceOf(const ListPlace &where) const
{
    const auto source = std::ranges::find(m_sources, &where, &Source::where);
    return source == m_sources.end() ? nullptr : &*source;
}

// Of a compound with several shifts each has its row.
SearchAnswer SearchEverything::answer(const NumberAnswers::Answer &found) const
{
    const Source &source = *sourceOf(*found.place);
    SearchAnswer made = answer(source, found.matches.constFirst().row);
    QList<int> rows;
    QStringList texts;
    for (const auto &[row, cell] : found.matches) {
        if (rows.contains(row))
            continue;
        rows << row;
        QList<int> cells;
        for (const NumberAnswers::Match &match : found.matches) {
            if (match.row == row)
                cells << match.cell;
        }
        texts << values(source, row, arranged(*found.place, cells));
    }
    made.values = texts.join(u"; "_s);
    return made;
}

SearchAnswer SearchEverything::answer(const Source &source, int row)
{
    SearchAnswer answer{source.cell(row, 0),
                        {},
                        nameOf(*source.where),
                        values(source, row),
                        {QLatin1StringView(source.where->list), row / source.rowsOfPlace}};
    if (source.where->content != ListPlace::Recipes)
        return answer;
    const int title = titleOf(source, row);
    if (title == row)
        answer.values = ingredients(source, row);
    else
        answer.table += u": "_s + source.cell(title, 0);
    return answer;
}

QString SearchEverything::values(const Source &source, int row)
{
    return values(source, row, {source.where->columns.begin(), source.where->columns.end()});
}

// Values that follow each other share label and unit: "m/z 43 (100), 58 (30)", "ex 492, em 518 nm".
QString SearchEverything::values(const Source &source, int row, QList<AnswerColumn> columns)
{
    columns.removeIf([&](const AnswerColumn &column) {
        const QString cell = source.cell(row, column.cell);
        return cell.isEmpty() || cell == u"-";
    });
    QString text;
    for (qsizetype number = 0; number < columns.size(); ++number) {
        const auto [cell, label, unit, use] = columns[number];
        const bool goesOn = *label == ' ';
        const bool sameLabel = number > 0 && qstrcmp(columns[number - 1].label, label) == 0;
        const bool sharedUnit = number + 1 < columns.size() && qstrcmp(columns[number + 1].unit, unit) == 0;
        text += number == 0 ? u""_s : goesOn ? u" "_s : u", "_s;
        if (const QString caption = QString::fromUtf8(label).trimmed(); !sameLabel && !caption.isEmpty())
            text += caption + u' ';
        text += withUnit(source.cell(row, cell), sharedUnit ? QString() : QString::fromUtf8(unit));
    }
    return text;
}

// A row of a recipe with a name only.
bool SearchEverything::isTitle(const Source &source, int row)
{
    const auto &columns = source.where->columns;
    return !source.cell(row, 0).isEmpty() &&
           std::all_of(columns.begin(), columns.end(),
                       [&](const AnswerColumn &column) { return source.cell(row, column.cell).isEmpty(); });
}

int SearchEverything::titleOf(const Source &source, int row)
{
    while (row > 0 && !isTitle(source, row))
        --row;
    return row;
}

QString SearchEverything::ingredients(const Source &source, int title)
{
    QStringList found;
    for (int row = title + 1; row < source.rows && !source.cell(row, 0).isEmpty(); ++row) {
        if (isTitle(source, row))
            break;
        found << source.cell(row, 0) + u' ' + values(source, row);
    }
    return found.join(u"; "_s);
}
