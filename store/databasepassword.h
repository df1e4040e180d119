#pragma once

#include <QString>

/// The password of the delivered database. It keeps curious hands off the tables; it is no secret.
inline constexpr QLatin1StringView DatabasePassword("k3wqj41mz627h05");
