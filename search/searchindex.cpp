#include "search/searchindex.h"

#include "search/folding.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Rank = SearchIndex::Rank;

/// The spellings of one word: as typed, and with a Greek letter in place of a leading Latin one, "a-pinene".
using Word = std::vector<std::string>;

constexpr std::array<std::string_view, 5> Fillers{"of", "in", "for", "the", "at"};

Word spellings(const std::string &typed)
{
    Word word{typed};
    const bool startsWithLetter = typed.size() == 1 || (typed.size() > 1 && !Folding::isOfWord(typed[1]));
    const std::string greek = startsWithLetter ? Folding::greekName(typed[0]) : std::string();
    if (!greek.empty() && (typed.size() > 1 || greek[0] != typed[0]))
        word.push_back(greek + typed.substr(1));
    return word;
}

std::vector<Word> wordsOf(const QString &query)
{
    std::vector<Word> words;
    std::vector<Word> fillers;
    for (const QString &each : query.simplified().split(u' ', Qt::SkipEmptyParts)) {
        const std::string folded = Folding::fold(each);
        const bool fills = std::ranges::find(Fillers, folded) != Fillers.end();
        if (!folded.empty())
            (fills ? fillers : words).push_back(spellings(folded));
    }
    return words.empty() ? fillers : words;
}

/// How the @p length characters at @p at fit into @p text, in which other characters surround every name.
Rank rankAt(std::string_view text, size_t at, size_t length)
{
    const char before = text[at - 1];
    const char after = text[at + length];
    const bool begins = !Folding::isOfWord(before) || !Folding::isOfWord(text[at]);
    const bool ends = !Folding::isOfWord(after) || !Folding::isOfWord(text[at + length - 1]);
    if (before == '\n')
        return after == '\t' ? Rank::WholeName : ends ? Rank::WholeWord : Rank::BeginOfName;
    if (begins)
        return ends ? Rank::WholeWord : Rank::BeginOfWord;
    return length > 1 ? Rank::Anywhere : Rank::None;
}

struct Found
{
    Rank rank = Rank::None;
    size_t at = 0;
};

/// Where @p spelling fits best into @p text.
Found bestIn(std::string_view text, std::string_view spelling)
{
    Found best;
    for (size_t at = text.find(spelling, 1); at != text.npos; at = text.find(spelling, at + 1)) {
        const Rank rank = rankAt(text, at, spelling.size());
        if (rank < best.rank)
            best = {rank, at};
    }
    return best;
}

Rank rankIn(std::string_view text, const Word &word)
{
    Rank best = Rank::None;
    for (const std::string &spelling : word)
        best = std::min(best, bestIn(text, spelling).rank);
    return best;
}

bool isTopic(std::string_view topic, const Word &word)
{
    return word[0].size() > 1 && rankIn(topic, word) < Rank::Anywhere;
}

/// The words of a query as one table needs them.
struct Needed
{
    std::vector<const Word *> inRow; ///< the longest first
    std::vector<const Word *> ofTopic;
};

Needed neededIn(std::string_view topic, const std::vector<Word> &words)
{
    Needed needed;
    for (const Word &word : words)
        (isTopic(topic, word) ? needed.ofTopic : needed.inRow).push_back(&word);
    if (needed.inRow.empty())
        needed.inRow.swap(needed.ofTopic);
    std::ranges::stable_sort(needed.inRow, std::greater(),
                             [](const Word *word) { return word->at(0).size(); });
    return needed;
}

/// The lower the better; nothing if a word is missing.
std::optional<size_t> scoreOf(std::string_view row, const Needed &needed)
{
    size_t score = 0;
    for (const Word *word : needed.inRow) {
        const Rank rank = rankIn(row, *word);
        if (rank == Rank::None)
            return {};
        score += rank;
    }
    for (const Word *word : needed.ofTopic)
        score += std::min(rankIn(row, *word), Rank::OfTopic);
    return score;
}

} // namespace

// In a text, '\n' and '\t' surround every name, so there is a character before and after each word.
void SearchIndex::addTable(const QString &topic)
{
    m_tables.push_back({'\n' + Folding::fold(topic) + '\n', "\n", {}});
}

void SearchIndex::addRow(const QStringList &texts)
{
    Table &table = m_tables.back();
    table.starts.push_back(table.text.size() - 1);
    for (const QString &text : texts)
        table.text += Folding::fold(text) + '\t';
    table.text += '\n';
}

std::string_view SearchIndex::Table::row(size_t number) const
{
    const size_t end = number + 1 < starts.size() ? starts[number + 1] + 1 : text.size();
    return std::string_view(text).substr(starts[number], end - starts[number]);
}

// One pass over the text for each spelling, however many rows it has.
std::vector<size_t> SearchIndex::Table::rowsWith(const Word &word) const
{
    std::vector<size_t> rows;
    for (const std::string &spelling : word) {
        size_t row = 0;
        for (size_t at = text.find(spelling, 1); at != text.npos; at = text.find(spelling, at + 1)) {
            if (rankAt(text, at, spelling.size()) == Rank::None)
                continue;
            while (row + 1 < starts.size() && starts[row + 1] < at)
                ++row;
            if (rows.empty() || rows.back() != row)
                rows.push_back(row);
        }
    }
    if (word.size() > 1)
        std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

SearchIndex::Hits SearchIndex::find(const QString &query, int limit) const
{
    const std::vector<Word> words = wordsOf(query);
    if (words.empty())
        return {};
    const std::string wholeName = '\n' + Folding::fold(query.simplified()) + '\t';
    std::vector<QList<Hit>> byScore(words.size() * None);
    Hits hits;
    for (size_t number = 0; number < m_tables.size(); ++number) {
        const Table &table = m_tables[number];
        const Needed needed = neededIn(table.topic, words);
        for (const size_t row : table.rowsWith(*needed.inRow[0])) {
            const std::string_view text = table.row(row);
            const auto score = text.starts_with(wholeName) ? 0 : scoreOf(text, needed);
            if (!score)
                continue;
            ++hits.count;
            if (byScore[*score].size() < limit)
                byScore[*score] << Hit{int(number), int(row)};
        }
    }
    for (const QList<Hit> &equal : byScore)
        hits.best << equal.first(qMin(equal.size(), limit - hits.best.size()));
    return hits;
}

QList<SearchIndex::Range> SearchIndex::marks(const QString &name, const QString &query)
{
    QList<qsizetype> origins;
    const std::string folded = '\n' + Folding::fold(name, &origins) + '\t';
    QList<Range> found;
    for (const Word &word : wordsOf(query)) {
        for (const std::string &spelling : word) {
            const Found best = bestIn(folded, spelling);
            if (best.rank == Rank::None)
                continue;
            const qsizetype first = qsizetype(best.at) - 1; // without the '\n'
            const qsizetype last = first + qsizetype(spelling.size()) - 1;
            found << Range{origins[first], origins[last] + 1 - origins[first]};
        }
    }
    std::ranges::sort(found, {}, &Range::begin);
    return found;
}
