#pragma once

#include "search/numberquery.h"
#include "search/places.h"

#include <vector>

struct DataStore;

/// Finds the rows that have the numbers of a query. It copies the numbers of all tables when it is made.
class NumberAnswers final
{
public:
    /// A cell that fits one term of the query.
    struct Match
    {
        int row;
        int cell;
    };

    /// A row with its matches, at most one for each term. For several terms they may be in other rows of the
    /// same compound.
    struct Answer
    {
        const ListPlace *place;
        QList<Match> matches;
    };

    struct Answers
    {
        QList<Answer> best; ///< in the order that NumberQuery::understood() says
        int count = 0;      ///< of all
    };

    explicit NumberAnswers(const DataStore &store);

    Answers find(const NumberQuery &query, int limit) const;

private:
    struct Number
    {
        NumberSpan span;
        double strength; ///< of a peak
        int row;
        int compound; ///< the first row of the same name
    };

    /// A column of numbers.
    struct Column
    {
        size_t quantity; ///< position in NumberGrammar::quantities()
        size_t place;    ///< position in Places::all()
        int cell;
        int solvent; ///< position in NumberGrammar::solvents(); -1 for none
        std::vector<Number> numbers = {};
    };

    struct Hit;

    void addColumns(size_t number, size_t position, const DataStore &store);
    static void addNumbers(const ListPlace &place, const DataStore &store, Column &column);
    void addHits(const NumberQuery &query, int number, std::vector<Hit> &hits) const;
    static void keepTheBestOfEachTerm(std::vector<Hit> &hits);

    std::vector<Column> m_columns;
};
