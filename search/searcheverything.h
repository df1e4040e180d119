#pragma once

#include "search/compoundnames.h"
#include "search/numberanswers.h"
#include "search/places.h"
#include "search/searchindex.h"

#include <functional>

struct DataStore;

/// A row that answers a query.
struct SearchAnswer
{
    QString name;
    QList<SearchIndex::Range> marks; ///< parts of the name that were found
    QString table;
    QString values; ///< with their units
    Place place;
};

struct SearchResult
{
    QString understood; ///< what was looked for and found, in words
    QList<SearchAnswer> answers;
};

/// Names that are in no list of the store: units, titles of help pages.
struct NamedPlaces
{
    QString list; ///< in the table of places; row n is name n
    QStringList names;
};

/// Search over all data in memory, by words or by numbers. Reads the store again for each answer, but keeps
/// the folded texts and the numbers: make a new one when the data change.
class SearchEverything final
{
public:
    /// Answers of one search at most.
    static constexpr int Limit = 200;

    /// @p store outlives it.
    SearchEverything(const DataStore &store, const QList<NamedPlaces> &others);

    /// What is no query for numbers, or has no answer as one, is searched as text.
    SearchResult find(const QString &text) const;

    /// The answer for one row: name, table, values and place.
    SearchAnswer answer(const ListPlace &where, int row) const;

private:
    /// A table of the index: rows and cells as its place in the table of places counts them.
    struct Source
    {
        const ListPlace *where;
        int rows;
        std::function<QString(int row, int cell)> cell;
        int rowsOfPlace = 1; ///< rows for one row of the place
    };

    void add(Source source);
    SearchResult findNumbers(const NumberQuery &query) const;
    SearchResult findText(const QString &text) const;
    SearchAnswer answer(const NumberAnswers::Answer &found) const;
    const Source *sourceOf(const ListPlace &where) const;
    static SearchAnswer answer(const Source &source, int row);
    static QString values(const Source &source, int row);
    static QString values(const Source &source, int row, QList<AnswerColumn> columns);
    static bool isTitle(const Source &source, int row);
    static int titleOf(const Source &source, int row);
    static QString ingredients(const Source &source, int title);

    QList<Source> m_sources; ///< in the order of the index
    CompoundNames m_names;
    SearchIndex m_index;
    NumberAnswers m_numbers;
};
