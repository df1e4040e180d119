#include "search/numberanswers.h"

#include "store/datastore.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

constexpr double RoundingError = 1e-9; // 2.10 - 2.05 is a little more than 0.05

double strengthOf(QStringView peak) // "43 (100)"
{
    const QList<NumberSpan> strength = NumberSpan::inCell(peak.sliced(peak.indexOf(u'(') + 1));
    return strength.isEmpty() ? 0 : strength.constFirst().middle();
}

int rowCount(const ListPlace &place, const DataStore &store)
{
    return place.rows ? place.rows(store.lists).rowCount() : store.tables.ElementData.rowCount();
}

QString text(const ListPlace &place, const DataStore &store, int row, int cell)
{
    return place.rows ? place.rows(store.lists).subItem(row, cell) : store.tables.ElementData(row, cell);
}

} // namespace

/// A number that fits one term of a query.
struct NumberAnswers::Hit
{
    // What answers are made of: place, solvent and row, or the compound if there are several terms.
    size_t place;
    int solvent;
    int compound;
    int term;
    double distance; ///< in tolerances; of a peak the strength, below 0
    Match match;

    auto answer() const { return std::tie(place, solvent, compound); }
};

void NumberAnswers::keepTheBestOfEachTerm(std::vector<Hit> &hits)
{
    std::ranges::sort(hits, {}, [](const Hit &hit) {
        return std::tuple(hit.place, hit.solvent, hit.compound, hit.term, hit.distance);
    });
    const auto isSameTerm = [](const Hit &one, const Hit &other) {
        return std::tie(one.place, one.solvent, one.compound, one.term) ==
               std::tie(other.place, other.solvent, other.compound, other.term);
    };
    hits.erase(std::unique(hits.begin(), hits.end(), isSameTerm), hits.end());
}

NumberAnswers::NumberAnswers(const DataStore &store)
{
    for (size_t quantity = 0; quantity < NumberGrammar::quantities().size(); ++quantity) {
        for (size_t place = 0; place < Places::all().size(); ++place)
            addColumns(quantity, place, store);
    }
}

void NumberAnswers::addColumns(size_t number, size_t position, const DataStore &store)
{
    const SoughtQuantity &quantity = NumberGrammar::quantities()[number];
    const ListPlace &place = Places::all()[position];
    int solvent = 0;
    for (const AnswerColumn &each : place.columns) {
        if (!quantity.isIn(place, each))
            continue;
        Column column{number, position, each.cell, quantity.hasSolvents() ? solvent++ : -1};
        addNumbers(place, store, column);
        m_columns.push_back(std::move(column));
    }
}

// The rows of one compound follow one another.
void NumberAnswers::addNumbers(const ListPlace &place, const DataStore &store, Column &column)
{
    const SoughtQuantity &quantity = NumberGrammar::quantities()[column.quantity];
    const QLatin1StringView only(quantity.only);
    QString name;
    int compound = 0;
    for (int row = 0; row < rowCount(place, store); ++row) {
        if (const QString before = std::exchange(name, text(place, store, row, 0)); before != name)
            compound = row;
        if (!only.isEmpty() && !name.contains(only, Qt::CaseInsensitive))
            continue;
        const QString cell = text(place, store, row, column.cell);
        const double strength = quantity.match == SoughtQuantity::Peak ? strengthOf(cell) : 0;
        for (const NumberSpan &span : NumberSpan::inCell(cell))
            column.numbers.push_back({span, strength, row, compound});
    }
}

void NumberAnswers::addHits(const NumberQuery &query, int number, std::vector<Hit> &hits) const
{
    const NumberQuery::Term &term = query.terms[number];
    double scale = 0;
    for (const Column &column : m_columns) {
        const SoughtQuantity &quantity = NumberGrammar::quantities()[column.quantity];
        if (!term.quantities.test(column.quantity) || (query.solvent >= 0 && column.solvent != query.solvent))
            continue;
        scale = scale > 0 ? scale : quantity.tolerance > 0 ? quantity.tolerance : 1;
        for (const Number &each : column.numbers) {
            if (each.span.gapTo(term.span) > quantity.tolerance + RoundingError)
                continue;
            const double distance = quantity.match == SoughtQuantity::Peak
                                        ? -each.strength
                                        : std::abs(each.span.middle() - term.span.middle()) / scale;
            const int compound = query.terms.size() > 1 ? each.compound : each.row;
            hits.push_back(
                {column.place, column.solvent, compound, number, distance, {each.row, column.cell}});
        }
    }
}

NumberAnswers::Answers NumberAnswers::find(const NumberQuery &query, int limit) const
{
    std::vector<Hit> hits;
    for (int term = 0; term < query.terms.size(); ++term)
        addHits(query, term, hits);
    keepTheBestOfEachTerm(hits);

    struct Ranked
    {
        qsizetype missing; ///< terms without a hit
        double distance;
        std::span<const Hit> hits;
    };
    std::vector<Ranked> ranked;
    for (auto begin = hits.cbegin(); begin != hits.cend();) {
        const auto end =
            std::find_if(begin, hits.cend(), [&](const Hit &hit) { return hit.answer() != begin->answer(); });
        double distance = 0;
        for (auto hit = begin; hit != end; ++hit)
            distance += hit->distance;
        ranked.push_back({query.terms.size() - (end - begin), distance, {begin, end}});
        begin = end;
    }
    const auto shown = ranked.begin() + std::min(qsizetype(limit), qsizetype(ranked.size()));
    std::ranges::partial_sort(ranked, shown, {}, [](const Ranked &each) {
        return std::tuple(each.missing, each.distance, each.hits.data());
    });

    Answers answers{{}, int(ranked.size())};
    for (auto each = ranked.begin(); each != shown; ++each) {
        answers.best << Answer{&Places::all()[each->hits.front().place], {}};
        for (const Hit &hit : each->hits)
            answers.best.last().matches << hit.match;
    }
    return answers;
}
