#include "core/optionslots.h"

#include "core/codepage.h"
#include "core/fileerrors.h"
#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Reads delimited values one by one. A comma or the end of the line ends a value.
class DelimitedReader
{
public:
    explicit DelimitedReader(const QString &text) : m_text(text) {}

    bool atEnd() const { return m_position == m_text.size(); }

    Value next()
    {
        // A quoted text, up to the next quote or the end of the file, or a bare value; then the delimiter.
        static const QRegularExpression Next(
            uR"#([ \t]*(?:"([^"]*+)"?|([^,\r\n]*+))[ \t]*(?:\r\n|[,\r\n])?)#"_s);
        const QRegularExpressionMatch match = Next.match(m_text, m_position, QRegularExpression::NormalMatch,
                                                         QRegularExpression::AnchorAtOffsetMatchOption);
        m_position = match.capturedEnd();
        if (match.hasCaptured(1))
            return match.captured(1);
        const QString bare = match.captured(2).trimmed();
        if (bare.isEmpty())
            return {};
        const std::optional<double> number = Numbers::parseInvariant(bare);
        return number ? Value(*number) : Value(bare);
    }

private:
    const QString &m_text;
    qsizetype m_position = 0;
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
