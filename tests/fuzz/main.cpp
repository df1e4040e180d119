// With FUZZ_TARGET one target for libFuzzer. Without it every target over its corpus, a folder in the folder
// that is the argument: so what was once found is tried in every build. Then databases damaged by chance, but
// the same in every run.

#include "tests/fuzz/fuzztarget.h"
#include "tests/store/sampledatabases.h"

#include <QDataStream>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <cstdio>

#ifdef FUZZ_TARGET
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const FuzzTarget::Run run = FuzzTarget::all.value(FUZZ_TARGET);
    run(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    return 0;
}
#else
// A cut file, or numbers that lead astray: anywhere, or where a page has slots and definitions.
static QByteArray damagedDatabase(QRandomGenerator &random)
{
    static const QByteArray whole = SampleDatabases::varied();
    if (random.bounded(8) == 0)
        return '\1' + whole.first(random.bounded(whole.size()));
    QByteArray input(1, char(random.bounded(2) * 7)); // a start, or all tables of the varied file
    QDataStream changes(&input, QIODevice::Append);
    changes.setByteOrder(QDataStream::LittleEndian);
    for (int change = 0; change < 4; ++change) {
        const quint32 numbers[] = {
            0,      1,      5,          0xFF,       0x100,      0x1FFF,           0x4006,
            0x7FFF, 0xFFFF, 0x3FFFFFFF, 0x80000000, 0xFFFFFFFF, random.generate()};
        const quint32 number = numbers[random.bounded(13)];
        changes << quint16(random.generate()) << quint16(random.bounded(change % 2 == 0 ? 200 : 4092));
        if (change < 2)
            changes << quint8(2) << quint16(number);
        else
            changes << quint8(4) << number;
    }
    return input;
}

int main(int argc, char **argv)
{
    for (auto target = FuzzTarget::all.cbegin(); target != FuzzTarget::all.cend(); ++target) {
        int count = 0;
        QDirIterator corpus(QString::fromLocal8Bit(argv[argc - 1]) + '/' + target.key(), QDir::Files);
        for (; corpus.hasNext(); ++count) {
            QFile file(corpus.next());
            std::printf("%s\n", qUtf8Printable(file.fileName())); // the last one named is the one that failed
            std::fflush(stdout);
            require(file.open(QIODevice::ReadOnly));
            target.value()(file.readAll());
        }
        require(count > 0);
    }
    QRandomGenerator random(20240229);
    for (int copy = 0; copy < 2000; ++copy)
        FuzzTarget::all["database"](damagedDatabase(random));
    return 0;
}
#endif
