#include "core/optionslots.h"
#include "core/runtimeerror.h"
#include "tests/fuzz/inputfile.h"

#include <QFile>

namespace {

bool hasTextWithQuote(const OptionSlots &values)
{
    for (int index = 0; index <= OptionSlots::LastIndex; ++index) {
        if (values(index).isText() && values(index).toText().contains(QLatin1Char('"')))
            return true;
    }
    return false;
}

QByteArray written(const OptionSlots &values)
{
    const InputFile file(nullptr, 0);
    values.write(file.path());
    QFile reader(file.path());
    reader.open(QIODevice::ReadOnly);
    return reader.readAll();
}

} // namespace

// Whatever the file is, reading ends in at most 101 values or in the subscript error, and a file that the
// program has written once stays as it is from then on. Only a quote inside a text has no form of its own in
// the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    OptionSlots values;
    try {
        values.read(InputFile(data, size).path());
    } catch (const RuntimeError &error) {
        require(error.number() == ErrorNumber::Subscript);
        return 0;
    }
    require(values.lastIndex() <= OptionSlots::LastIndex);
    if (hasTextWithQuote(values))
        return 0;

    const QByteArray once = written(values);
    OptionSlots again;
    again.read(InputFile(reinterpret_cast<const uint8_t *>(once.constData()), size_t(once.size())).path());
    require(again.lastIndex() == values.lastIndex());
    require(written(again) == once);
    return 0;
}
