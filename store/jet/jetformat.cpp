#include "store/jet/jetformat.h"

#include <QtEndian>
#include <array>
#include <numeric>
#include <utility>

QByteArray Jet::keyStream(QByteArrayView key, int size)
{
    std::array<quint8, 256> state;
    std::iota(state.begin(), state.end(), quint8(0));
    quint8 j = 0;
    for (size_t i = 0; i < state.size(); ++i) {
        j = quint8(j + state[i] + quint8(key[qsizetype(i) % key.size()]));
        std::swap(state[i], state[j]);
    }
    QByteArray stream(size, Qt::Uninitialized);
    quint8 i = 0;
    j = 0;
    for (char &byte : stream) {
        j = quint8(j + state[++i]);
        std::swap(state[i], state[j]);
        byte = char(state[quint8(state[i] + state[j])]);
    }
    return stream;
}

void Jet::maskHeader(QByteArray &header)
{
    static const QByteArray stream = keyStream("\xC7\xDA\x39\x6B", MaskedSize);
    for (int i = 0; i < MaskedSize; ++i)
        header[MaskedAt + i] = char(header[MaskedAt + i] ^ stream[i]);
}

void Jet::maskPassword(QByteArray &field, double creationDate)
{
    // Only damaged files have a date beyond 32 bits.
    const bool inRange = creationDate > -2147483648.0 && creationDate < 2147483648.0;
    std::array<char, 4> mask;
    qToLittleEndian(inRange ? qint32(creationDate) : 0, mask.data());
    for (qsizetype i = 0; i < field.size(); ++i)
        field[i] = char(field[i] ^ mask[size_t(i % 4)]);
}
