#pragma once

#include <QByteArrayView>
#include <QtEndian>

/// Throws RuntimeError DatabaseFailure for a damaged file, with @p what as its subject.
[[noreturn]] void jetDamage(const char *what);

/// A view of bytes of a database file. Reading outside it is damage, so that no offset in a file can reach
/// other memory.
class JetBytes final
{
public:
    JetBytes() = default;
    explicit JetBytes(QByteArrayView bytes) : m_bytes(bytes) {}

    qsizetype size() const { return m_bytes.size(); }
    QByteArrayView view() const { return m_bytes; }

    quint8 u8(qsizetype at) const { return number<quint8>(at); }
    quint16 u16(qsizetype at) const { return number<quint16>(at); }
    quint32 u32(qsizetype at) const { return number<quint32>(at); }

    template<class T>
    T number(qsizetype at) const
    {
        return qFromLittleEndian<T>(mid(at, sizeof(T)).view().data());
    }

    JetBytes mid(qsizetype at, qsizetype size) const
    {
        if (at < 0 || size < 0 || at > m_bytes.size() || size > m_bytes.size() - at)
            jetDamage("a value is outside its page or row");
        return JetBytes(m_bytes.sliced(at, size));
    }

    JetBytes from(qsizetype at) const { return mid(at, m_bytes.size() - at); }

private:
    QByteArrayView m_bytes;
};
