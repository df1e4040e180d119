#include "core/numbers.h"
#include "core/optionslots.h"
#include "core/runtimeerror.h"
#include "tests/fuzz/fuzztarget.h"
#include "update/profilefile.h"
#include "update/versionnumber.h"

#include <QFile>
#include <cmath>

namespace {

// What reads as a number is finite, is written in plain characters, and reads as the same number again, once
// the digits beyond the fifteenth are gone.
const FuzzTarget numbers("numbers", [](const QByteArray &input) {
    const QString text = QString::fromUtf8(input);
    Numbers::parseLocal(text);
    const std::optional<double> number = Numbers::parseInvariant(text);
    if (!number)
        return;
    require(std::isfinite(*number));
    const QString plain = Numbers::formatInvariant(*number);
    require(plain.size() <= 22);
    const std::optional<double> again = Numbers::parseInvariant(plain);
    if (!again) // the last digits of the largest numbers round upwards out of the range
        require(std::fabs(*number) > 1.797e308);
    else
        require(Numbers::formatInvariant(*again) == plain);
});

// The version file comes from the network: whatever it is, its values are short lines, and comparing them
// ends in an answer or in one of two errors.
const FuzzTarget profile("profile", [](const QByteArray &input) {
    const InputFile file(input);
    const QString version =
        ProfileFile::value(file.path(), QStringLiteral("ALEMBRA"), QStringLiteral("Version"));
    const QString url = ProfileFile::value(file.path(), QStringLiteral("ALEMBRA"), QStringLiteral("URL"));
    for (const QString &value : {version, url}) {
        require(value.size() <= ProfileFile::LongestValue);
        require(!value.contains(QLatin1Char('\n')) && !value.contains(QLatin1Char('\r')));
    }
    try {
        VersionNumber::isNewer(version, QStringLiteral("1.1.0"));
    } catch (const RuntimeError &error) {
        require(error.number() == ErrorNumber::TypeMismatch || error.number() == ErrorNumber::Overflow);
    }
});

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
    const InputFile file({});
    values.write(file.path());
    QFile reader(file.path());
    require(reader.open(QIODevice::ReadOnly));
    return reader.readAll();
}

// Whatever the file is, reading ends in at most 101 values or in the subscript error, and a file that the
// program has written once stays as it is from then on. Only a quote inside a text has no form of its own in
// the file.
const FuzzTarget options("options", [](const QByteArray &input) {
    OptionSlots values;
    try {
        values.read(InputFile(input).path());
    } catch (const RuntimeError &error) {
        require(error.number() == ErrorNumber::Subscript);
        return;
    }
    require(values.lastIndex() <= OptionSlots::LastIndex);
    if (hasTextWithQuote(values))
        return;
    const QByteArray once = written(values);
    OptionSlots again;
    again.read(InputFile(once).path());
    require(again.lastIndex() == values.lastIndex());
    require(written(again) == once);
});

} // namespace
