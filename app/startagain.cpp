#include "app/startagain.h"

#include <QJsonDocument>

namespace {

constexpr char Variable[] = "ALEMBRA_START_AGAIN";
constexpr QLatin1StringView Percent("percent");
constexpr QLatin1StringView SessionKey("session");

} // namespace

void StartAgain::leave(const Left &left)
{
    const QJsonObject object{{Percent, left.percent}, {SessionKey, left.session}};
    qputenv(Variable, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

bool StartAgain::isWanted()
{
    return qEnvironmentVariableIsSet(Variable);
}

StartAgain::Left StartAgain::take()
{
    const QJsonObject object = QJsonDocument::fromJson(qgetenv(Variable)).object();
    qunsetenv(Variable);
    return {object[Percent].toInt(), object[SessionKey].toObject()};
}
