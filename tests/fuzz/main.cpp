// With FUZZ_TARGET one target for libFuzzer. Without it every target over its corpus, a folder in the folder
// that is the argument: so what was once found is tried in every build.

#include "tests/fuzz/fuzztarget.h"

#include <QDirIterator>
#include <QFile>
#include <cstdio>

#ifdef FUZZ_TARGET
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const FuzzTarget::Run run = FuzzTarget::all.value(FUZZ_TARGET);
    run(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    return 0;
}
#else
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
    return 0;
}
#endif
