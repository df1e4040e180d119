#pragma once

#include <QByteArray>
#include <QtEndian>

/// Appends little-endian numbers to a byte array.
class ByteWriter final
{
public:
    ByteWriter &u8(quint8 value) { return number(value); }
    ByteWriter &u16(quint16 value) { return number(value); }
    ByteWriter &u32(quint32 value) { return number(value); }

    ByteWriter &bytes(QByteArrayView value)
    {
        m_data.append(value);
        return *this;
    }

    ByteWriter &zeros(qsizetype count)
    {
        m_data.append(count, '\0');
        return *this;
    }

    qsizetype size() const { return m_data.size(); }
    QByteArray &data() { return m_data; }

private:
    template<class T>
    ByteWriter &number(T value)
    {
        const T little = qToLittleEndian(value);
        m_data.append(reinterpret_cast<const char *>(&little), sizeof little);
        return *this;
    }

    QByteArray m_data;
};
