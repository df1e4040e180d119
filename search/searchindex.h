#pragma once

#include <QList>
#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

/// The folded texts of many tables, and which rows have the words of a query.
///
/// A word of two or more characters is found anywhere in a row, a single character only at the begin of a
/// word. A word of the table's topic need not be in the row: "acetonitrile boiling".
class SearchIndex final
{
public:
    /// How well a word fits, the best first.
    enum Rank { WholeName, FirstWord, WholeWord, BeginOfName, BeginOfWord, Anywhere, OfTopic, None };

    struct Hit
    {
        int table; ///< both from 0, in the order of adding
        int row;
    };

    struct Hits
    {
        QList<Hit> best; ///< the best first, then in the order of adding
        int count = 0;   ///< of all
    };

    struct Range
    {
        qsizetype begin;
        qsizetype length;
    };

    void addTable(const QString &topic);

    /// A row of the table added last. The first of @p texts is its name.
    void addRow(const QStringList &texts);

    /// The rows with all words of @p query, in any order; at most @p limit of them.
    Hits find(const QString &query, int limit) const;

    /// The parts of @p name that the words of @p query match, in order and apart.
    static QList<Range> marks(const QString &name, const QString &query);

private:
    struct Table
    {
        void add(const QStringList &texts);
        std::string_view row(size_t number) const;
        std::vector<std::pair<size_t, Rank>> rowsWith(const std::vector<std::string> &spellings) const;

        std::string topic;
        std::string text;           ///< of each row: '\n', the name, '\t', the other texts, each with a '\t'
        std::vector<size_t> starts; ///< of the rows in the text
        std::vector<size_t> words;  ///< begins of words in the text, for words of one character
    };

    std::vector<Table> m_tables;
};
