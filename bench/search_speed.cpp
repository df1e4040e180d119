// The time from a key in "Search everything" to its answers, in a hundred times the data: against one pass
// over the texts, and against a frame of 16 ms.

#include "bench/measure.h"
#include "bench/programdata.h"
#include "search/folding.h"
#include "search/searcheverything.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Times = 100;
constexpr int Presses = 21;  // of each key
constexpr double Frame = 16; // ms
constexpr double PassTarget = 3;
constexpr int LastCell = 10; // of the widest list

std::unique_ptr<DataStore> multiplied(const DataStore &data)
{
    auto large = std::make_unique<DataStore>();
    large->tables = data.tables;
    for (const ListPlace &place : Places::all()) {
        if (place.rows == nullptr)
            continue;
        const bool isOfTable = qstrcmp(place.list, "Comb2") == 0; // its codons have a table of fixed size
        ProgramData::multiply(place.rows(data.lists), isOfTable ? 1 : Times, LastCell,
                              const_cast<RowList &>(place.rows(large->lists)));
    }
    return large;
}

/// All names and searched cells, folded.
std::string textsOf(const DataStore &store)
{
    std::string texts;
    for (const ListPlace &place : Places::all()) {
        for (int row = 0; place.rows && row < place.rows(store.lists).rowCount(); ++row) {
            texts += Folding::fold(place.rows(store.lists).text(row)) + '\n';
            for (const AnswerColumn &column : place.columns) {
                if (column.use == AnswerColumn::Searched)
                    texts += Folding::fold(place.rows(store.lists).subItem(row, column.cell)) + '\t';
            }
        }
    }
    return texts;
}

/// Prints the slowest key of @p typed against @p pass over all texts and against a frame.
void press(const QString &typed, const SearchEverything &search, const Measure::Action &pass,
           Measure &measure)
{
    QList<Measure::Sample> againstPass;
    QList<Measure::Sample> againstFrame;
    for (int run = 0; run < Presses; ++run) {
        double slowest = 0;
        for (qsizetype length = 1; length <= typed.size(); ++length)
            slowest = std::max(slowest, Measure::time([&] { search.find(typed.first(length)); }));
        againstPass << Measure::Sample{Measure::time(pass), slowest};
        againstFrame << Measure::Sample{Frame, slowest};
    }
    measure.add(u"key of \"%1\", 100 times the data / pass"_s.arg(typed), againstPass, PassTarget);
    measure.add(u"the same / frame of 16 ms"_s, againstFrame, 1);
}

} // namespace

int main()
{
    return measureAll([](Measure &measure) {
        const auto data = multiplied(*ProgramData::load(ProgramData::database()));
        const SearchEverything search(*data, {});
        const std::string texts = textsOf(*data);
        size_t found = 0;
        const auto pass = [&] {
            for (size_t at = texts.find("acetonitrile"); at != texts.npos;
                 at = texts.find("acetonitrile", at + 1))
                ++found;
        };
        press(u"acetonitrile"_s, search, pass, measure);
        press(u"pKa acetic acid"_s, search, pass, measure);
        press(u"2.05 4.12 CDCl3"_s, search, pass, measure);
        press(u"m/z 58 43"_s, search, pass, measure);
        if (found == 0)
            throw std::runtime_error("nothing was found");
    });
}
