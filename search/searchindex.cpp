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
        return after == '\t' ? Rank::WholeName : ends ? Rank::FirstWord : Rank::BeginOfName;
    if (begins)
        return ends ? Rank::WholeWord : Rank::BeginOfWord;
    return length > 1 ? Rank::Anywhere : Rank::None;
}

struct Fit
{
    Rank rank = Rank::None;
    size_t at = 0;
    size_t length = 0;
};

/// Where @p word fits best into @p text.
Fit bestFit(std::string_view text, const Word &word)
{
    Fit best;
    for (const std::string &spelling : word) {
        for (size_t at = text.find(spelling, 1); at != text.npos; at = text.find(spelling, at + 1)) {
            const Rank rank = rankAt(text, at, spelling.size());
            if (rank < best.rank)
                best = {rank, at, spelling.size()};
        }
    }
    return best;
}

Rank rankIn(std::string_view text, const Word &word)
{
    return bestFit(text, word).rank;
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

/// The lower the better; nothing if a word is missing. The first word has @p rank.
std::optional<size_t> scoreOf(std::string_view row, const Needed &needed, Rank rank)
{
    size_t score = rank;
    for (size_t number = 1; number < needed.inRow.size(); ++number) {
        const Rank next = rankIn(row, *needed.inRow[number]);
        if (next == Rank::None)
            return {};
        score += next;
    }
    for (const Word *word : needed.ofTopic)
        score += std::min(rankIn(row, *word), Rank::OfTopic);
    return score;
}

} // namespace

// In a text, '\n' and '\t' surround every name, so there is a character before and after each word.
void SearchIndex::addTable(const QString &topic)
{
    m_tables.push_back({'\n' + Folding::fold(topic) + '\n', "\n", {}, {}});
}

void SearchIndex::addRow(const QStringList &texts)
{
    m_tables.back().add(texts);
}

void SearchIndex::Table::add(const QStringList &texts)
{
    size_t at = text.size();
    starts.push_back(at - 1);
    for (const QString &each : texts)
        text += Folding::fold(each) + '\t';
    for (; at < text.size(); ++at) {
        if (!Folding::isOfWord(text[at - 1]) || !Folding::isOfWord(text[at]))
            words.push_back(at);
    }
    text += '\n';
}

std::string_view SearchIndex::Table::row(size_t number) const
{
    const size_t end = number + 1 < starts.size() ? starts[number + 1] + 1 : text.size();
    return std::string_view(text).substr(starts[number], end - starts[number]);
}

// One pass for each spelling, however many rows it has.
std::vector<std::pair<size_t, Rank>> SearchIndex::Table::rowsWith(const Word &word) const
{
    std::vector<std::pair<size_t, Rank>> rows;
    for (const std::string &spelling : word) {
        size_t row = 0;
        const auto addRowOf = [&](size_t at) {
            const Rank rank = rankAt(text, at, spelling.size());
            while (row + 1 < starts.size() && starts[row + 1] < at)
                ++row;
            if (rows.empty() || rows.back().first != row)
                rows.emplace_back(row, rank);
            else
                rows.back().second = std::min(rows.back().second, rank);
        };
        if (spelling.size() == 1) {
            for (const size_t at : words) {
                if (text[at] == spelling[0])
                    addRowOf(at);
            }
        } else {
            for (size_t at = text.find(spelling, 1); at != text.npos; at = text.find(spelling, at + 1))
                addRowOf(at);
        }
    }
    if (word.size() > 1) {
        std::ranges::sort(rows);
        const auto isSameRow = [](const auto &one, const auto &other) { return one.first == other.first; };
        rows.erase(std::unique(rows.begin(), rows.end(), isSameRow), rows.end());
    }
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
        for (const auto &[row, rank] : table.rowsWith(*needed.inRow[0])) {
            const std::string_view text = table.row(row);
            const auto score = text.starts_with(wholeName) ? 0 : scoreOf(text, needed, rank);
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
    std::vector<bool> marked(size_t(name.size()) + 1);
    for (const Word &word : wordsOf(query)) {
        const Fit fit = bestFit(folded, word);
        for (size_t at = fit.at; at < fit.at + fit.length; ++at)
            marked[size_t(origins[qsizetype(at) - 1])] = true; // without the '\n'
    }
    QList<Range> ranges;
    for (size_t at = 0; at < marked.size(); ++at) {
        if (marked[at] && (at == 0 || !marked[at - 1]))
            ranges << Range{qsizetype(at), 0};
        if (marked[at])
            ++ranges.last().length;
    }
    return ranges;
}
