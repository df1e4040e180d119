#include "core/optionslots.h"

#include "core/codepage.h"
#include "core/fileerrors.h"
#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Reads delimited values one by one. A comma or the end of the line ends a value.
class DelimitedReader
{
public:
    explicit DelimitedReader(QStringView text) : m_rest(text) {}

    bool atEnd() const { return m_rest.isEmpty(); }

    Value next()
    {
        skipBlanks();
        Value value = m_rest.startsWith(u'"') ? quoted() : bare();
        skipBlanks();
        skipDelimiter();
        return value;
    }

private:
    void skipBlanks()
    {
        while (m_rest.startsWith(u' ') || m_rest.startsWith(u'\t'))
            m_rest = m_rest.sliced(1);
    }

    void skipDelimiter()
    {
        if (m_rest.startsWith(u"\r\n"))
            m_rest = m_rest.sliced(2);
        else if (!m_rest.isEmpty() && isDelimiter(m_rest.front()))
            m_rest = m_rest.sliced(1);
    }

    static bool isDelimiter(QChar c) { return c == u',' || c == u'\r' || c == u'\n'; }

    // Up to the next quote or, without one, to the end of the file.
    Value quoted()
    {
        m_rest = m_rest.sliced(1);
        const qsizetype end = m_rest.indexOf(u'"');
        const QStringView text = end < 0 ? m_rest : m_rest.first(end);
        m_rest = end < 0 ? QStringView() : m_rest.sliced(end + 1);
        return text.toString();
    }

    Value bare()
    {
        qsizetype end = 0;
        while (end < m_rest.size() && !isDelimiter(m_rest[end]))
            ++end;
        const QStringView text = m_rest.first(end).trimmed();
        m_rest = m_rest.sliced(end);
        if (text.isEmpty())
            return {};
        if (const std::optional<double> number = Numbers::parseInvariant(text))
            return *number;
        return text.toString();
    }

    QStringView m_rest;
};

QByteArray delimited(const Value &value)
{
    return CodePage::encode(value.isText() ? u'"' + value.toText() + u'"' : value.toText());
}

void requireIndex(int index)
{
    if (index < 0 || index > OptionSlots::LastIndex)
        throw RuntimeError(ErrorNumber::Subscript, u"OptionSlots(%1)"_s.arg(index));
}

} // namespace

const Value &OptionSlots::operator()(int index) const
{
    requireIndex(index);
    return m_slots[size_t(index)];
}

Value &OptionSlots::operator()(int index)
{
    requireIndex(index);
    return m_slots[size_t(index)];
}

void OptionSlots::read(const QString &path)
{
    const QString text = CodePage::decode(FileErrors::readWhole(path));
    DelimitedReader reader(text);
    while (!reader.atEnd()) {
        if (m_readCount > LastIndex)
            throw RuntimeError(ErrorNumber::Subscript, path);
        m_slots[size_t(m_readCount++)] = reader.next();
    }
}

void OptionSlots::addMissing(const OptionSlots &delivered)
{
    for (; m_readCount < delivered.m_readCount; ++m_readCount)
        m_slots[size_t(m_readCount)] = delivered.m_slots[size_t(m_readCount)];
}

void OptionSlots::write(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw FileErrors::ofWriting(file);
    for (int index = 0; index < m_readCount; ++index)
        file.write(delimited((*this)(index)) + "\r\n");
    if (!file.flush() || file.error() != QFileDevice::NoError)
        throw FileErrors::ofWriting(file);
}
