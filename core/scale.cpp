#include "core/scale.h"

#include "core/usersettings.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array Steps{Scale::Least, 90, Scale::Normal, 110, 125, 150, 175, 200, 225, Scale::Most};

constexpr QLatin1StringView Choice("Scale/Choice");
constexpr QLatin1StringView Desktop("Scale/Desktop");

/// 0 if there is none. Anybody can edit the file, so it is clamped.
int read(const QSettings &settings, QLatin1StringView key)
{
    const int percent = settings.value(key).toInt();
    return percent == 0 ? 0 : std::clamp(percent, Scale::Least, Scale::Most);
}

} // namespace

int Scale::forFontSize(double points)
{
    constexpr int Round = 5;
    return std::clamp(int(std::lround(points * 10 / Round)) * Round, Normal, Most);
}

int Scale::larger(int percent)
{
    const auto *step = std::upper_bound(Steps.begin(), Steps.end(), percent);
    return step == Steps.end() ? Most : *step;
}

int Scale::smaller(int percent)
{
    const auto *step = std::lower_bound(Steps.begin(), Steps.end(), percent);
    return step == Steps.begin() ? Least : *(step - 1);
}

int Scale::fitting(QSize window, QSize room)
{
    constexpr int Round = 5;
    const int percent = std::min(room.width() * 100 / window.width(), room.height() * 100 / window.height());
    return std::clamp(percent / Round * Round, Least, Most);
}

int Scale::remembered()
{
    const QSettings settings = userSettings();
    for (const QLatin1StringView key : {Choice, Desktop}) {
        if (const int percent = read(settings, key))
            return percent;
    }
    return Normal;
}

int Scale::chosenOr(int byDesktop)
{
    QSettings settings = userSettings();
    if (settings.value(Desktop, Normal) != byDesktop)
        settings.setValue(Desktop, byDesktop);
    const int choice = read(settings, Choice);
    return choice ? choice : byDesktop;
}

void Scale::choose(int choice) const
{
    QSettings settings = userSettings();
    if (choice == byDesktop)
        settings.remove(Choice);
    else
        settings.setValue(Choice, choice);
}
