// Feeds a fuzz target the files of its corpus, one after another, where no fuzzer drives it: so what was once
// found is tried in every build. Argument: the folder of the corpus.

#include <QDir>
#include <QFile>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    const QDir corpus(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    const QStringList names = corpus.entryList(QDir::Files);
    for (const QString &name : names) {
        std::printf("%s\n", qUtf8Printable(name)); // the last one named is the one that failed
        std::fflush(stdout);
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
    }
    return argc == 2 && !names.isEmpty() ? 0 : 1;
}
